#include "radio/entry.h"

#include <array>
#include <cstddef>

#include "config/conversions.h"
#include "config/words.h"
#include "radio/values.h"
#include "station/groups_data.h"

namespace corvalis::radio {

namespace {

// How a kind is called, with what tells one of it from another.
enum class Form : std::uint8_t {
  kAbbreviation,  // "PI": the same in every language
  kWord,          // "Stereo"
  kName,          // "PS 00.03": page and row
  kRow,           // "RT 03"
  kList,          // "AF 00", "AF B 00"
  kIndex,         // "IH 00"
  kNetwork,       // "EON 00 PI"
  kGroup          // "Group 0A"
};
struct Called {
  const char* name;
  Form form = Form::kAbbreviation;
};

// In the order of `Item`.
constexpr std::array kCalled = {
    Called{"PI"},
    Called{"ECC"},
    Called{LaterWord("Language"), Form::kWord},
    Called{"TP"},
    Called{"TA"},
    Called{"M/S"},
    Called{LaterWord("Stereo"), Form::kWord},
    Called{LaterWord("Artificial head"), Form::kWord},
    Called{LaterWord("Compressed"), Form::kWord},
    Called{LaterWord("Dynamic PTY"), Form::kWord},
    Called{"PTY"},
    Called{"PTYN"},
    Called{"PS", Form::kName},
    Called{"RT", Form::kRow},
    Called{LaterWord("CT offset"), Form::kWord},
    Called{"PIN"},
    Called{"AF", Form::kList},
    Called{"LA"},
    Called{"LSN"},
    Called{"PI", Form::kNetwork},
    Called{"PS", Form::kNetwork},
    Called{"TP", Form::kNetwork},
    Called{"TA", Form::kNetwork},
    Called{"PTY", Form::kNetwork},
    Called{"AF", Form::kNetwork},
    Called{"AF B", Form::kNetwork},
    Called{"PIN", Form::kNetwork},
    Called{"LSN", Form::kNetwork},
    Called{"TDC 0", Form::kRow},
    Called{"TDC", Form::kIndex},
    Called{"IH", Form::kIndex},
    Called{"TMC LTN"},
    Called{"TMC SID"},
    Called{LaterWord("TMC scopes"), Form::kWord},
    Called{"TMC", Form::kRow},
    Called{LaterWord("Group"), Form::kGroup},
};
static_assert(kCalled.size() == static_cast<std::size_t>(Item::kGroup) + 1);

const Called& CalledOf(Item item) { return kCalled.at(static_cast<std::size_t>(item)); }

}  // namespace

bool IsText(Item item) {
  return item == Item::kTypeName || item == Item::kName || item == Item::kText ||
         item == Item::kNetworkName || item == Item::kPage;
}

bool TakesTurns(Item item) {
  return item == Item::kName || item == Item::kText || item == Item::kSubchannel ||
         item == Item::kTrafficMessage;
}

std::string NameOf(const Entry& entry) {
  const Called& called = CalledOf(entry.item);
  std::string name = called.name;
  const auto numbered = [](const std::string& text, int number) {
    return text + " " + Digits(number, 2);
  };
  switch (called.form) {
    case Form::kAbbreviation:
      return name;
    case Form::kWord:
      return InWords(name);
    case Form::kName:
      return numbered(name, entry.index) + "." + Digits(entry.row, 2);
    case Form::kRow:
      return numbered(name, entry.row);
    case Form::kList:
      return numbered(entry.row == kMethodB ? name + " B" : name, entry.index);
    case Form::kIndex:
      return numbered(name, entry.index);
    case Form::kNetwork:
      return numbered("EON", entry.index) + " " + name;
    case Form::kGroup:
      return InWords(name) + " " + GroupName(entry.index);
  }
  return name;
}

std::string KindOf(Item item) { return CalledOf(item).name; }

std::string Shown(const Entry& entry) {
  std::string text;
  for (const Value& value : entry.values) text += (text.empty() ? "" : ", ") + value.shown;
  return text;
}

}  // namespace corvalis::radio
