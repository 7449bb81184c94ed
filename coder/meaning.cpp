#include "coder/meaning.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <vector>

#include "air/groups.h"
#include "air/words.h"

namespace corvalis::coder {

namespace {

constexpr int kSixteen = 16;

int Number(std::string_view digits, int base) {
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  return value;
}

std::string Decimal(std::string_view hex) { return std::to_string(Number(hex, kSixteen)); }

std::string OnOff(char flag) { return flag == '1' ? "on" : "off"; }

std::string TwoDigits(int value) { return (value < 10 ? "0" : "") + std::to_string(value); }

// The words whose flag is "1", behind the separator each.
template <std::size_t kCount>
std::string Flagged(std::string_view flags, const std::array<std::string_view, kCount>& words,
                    std::string_view separator) {
  std::string text;
  for (std::size_t i = 0; i < kCount; ++i) {
    if (flags[i] == '1') text.append(separator).append(words[i]);
  }
  return text;
}

std::string ClockWords(const std::string& t) {
  const int offset = Number(t.substr(15, 2), 10) - 24;
  return t.substr(0, 2) + "-" + t.substr(2, 2) + "-" + t.substr(4, 2) + " weekday " + t[6] + ", " +
         t.substr(7, 2) + ":" + t.substr(9, 2) + ", date on PSN " + t.substr(11, 2) +
         ", hour on PSN " + t.substr(13, 2) + ", offset " + (offset < 0 ? "" : "+") +
         std::to_string(offset) + " half hours";
}

std::string DiWords(const std::string& body) {
  const int di = Number(body, kSixteen);
  return std::string((di & air::kStereo) != 0 ? "stereo" : "mono") +
         ((di & air::kArtificialHead) != 0 ? ", artificial head" : "") +
         ((di & air::kCompressed) != 0 ? ", compressed" : "") +
         ((di & air::kDynamicPty) != 0 ? ", dynamic PTY" : ", static PTY");
}

std::string GroupName(int index) { return air::GroupKind::OfIndex(index).Name(); }

// Behind the digit of its number: issued, programme type, day and time.
std::string ItemWords(const std::string& body) {
  const auto item =
      air::FromWord<air::ItemNumber>(static_cast<std::uint16_t>(Number(body.substr(4), kSixteen)));
  return "day " + std::to_string(item.day) + ", " + TwoDigits(item.hour) + ":" +
         TwoDigits(item.minute) + ", type " + body.substr(2, 2) +
         (body[1] == '1' ? ", issued" : "");
}

std::string PlanWords(const std::string& body) {
  constexpr std::array<std::string_view, 7> kDays = {"Mon", "Tue", "Wed", "Thu",
                                                     "Fri", "Sat", "Sun"};
  const bool dated = body.compare(5, 2, "00") != 0;
  return OnOff(body[0]) + ", " + body.substr(1, 2) + ":" + body.substr(3, 2) +
         (dated ? " on " + body.substr(9, 2) + "-" + body.substr(7, 2) + "-" + body.substr(5, 2)
                : std::string()) +
         Flagged(std::string_view(body).substr(11), kDays, " ") + ", page " +
         Decimal(body.substr(18));
}

std::string MHz(int thousandths) {
  std::string text = std::to_string(thousandths % 1000 + 1000).substr(1);
  while (text.size() > 1 && text.back() == '0') text.pop_back();
  return std::to_string(thousandths / 1000) + "." + text;
}

std::vector<int> Codes(std::string_view digits) {
  std::vector<int> codes;
  for (std::size_t at = 0; at + 2 <= digits.size(); at += 2) {
    codes.push_back(Number(digits.substr(at, 2), kSixteen));
  }
  return codes;
}

// The codes of alternative frequency lists.
constexpr int kLastFm = 204;
constexpr int kFiller = 205;
constexpr int kNoneFollow = 224;
constexpr int kLfOrMf = 250;
constexpr int kFirstOffset = 253;

std::string KHz(int code) {
  constexpr int kLastLf = 15;
  return std::to_string(code <= kLastLf ? 144 + code * 9 : 522 + (code - kLastLf) * 9) + " kHz";
}

// A count, the main frequency, and pairs of it and another: a list of method B.
bool HasMain(const std::vector<int>& codes) {
  const int pairs = (codes[0] - kNoneFollow - 1) / 2;
  if ((codes[0] - kNoneFollow) % 2 == 0 || pairs < 1 || pairs > 12) return false;
  for (std::size_t at = 2; at < 2 + 2 * static_cast<std::size_t>(pairs); at += 2) {
    if (codes[at] != codes[1] && codes[at + 1] != codes[1]) return false;
  }
  return codes[1] <= kLastFm;
}

std::string FrequencyListWords(const std::string& body) {
  const std::vector<int> codes = Codes(body);
  const std::string count = "count " + std::to_string(codes[0]);
  if (!HasMain(codes)) {
    const std::string list = Frequencies(std::string_view(body).substr(2));
    return count + (list.empty() ? list : ": " + list);
  }
  std::string others;
  for (std::size_t at = 2; at < codes.size() && codes[at] != kFiller; at += 2) {
    const int other = codes[at] == codes[1] ? codes[at + 1] : codes[at];
    others += (others.empty() ? "" : ", ") + MHz(87500 + other * 100);
  }
  return count + ": main " + MHz(87500 + codes[1] * 100) + " with " + others;
}

std::string EonWords(const std::string& body) {
  const auto listed = [](const char* name, const std::string& list) {
    return list.empty() ? list : name + list;
  };
  const int am = Number(body.substr(38, 2), kSixteen);
  return OnOff(body[44]) + ", PI " + body.substr(40, 4) + ", TP " + OnOff(body[8]) + ", TA " +
         OnOff(body[9]) + ", type " + Decimal(body.substr(10, 2)) + ", PIN " + body.substr(12, 4) +
         listed(", method A ", Frequencies(std::string_view(body).substr(16, 4))) +
         listed(", method B ", Frequencies(std::string_view(body).substr(20, 18))) +
         (am == 0 ? "" : ", " + KHz(am));
}

std::string TmcSystemWords(const std::string& body) {
  constexpr std::array<std::string_view, 4> kScopes = {"international", "national", "regional",
                                                       "urban"};
  return "location table " + Decimal(body.substr(0, 2)) + ", service " +
         Decimal(body.substr(2, 2)) + Flagged(std::string_view(body).substr(4), kScopes, ", ");
}

std::string TmcWords(const std::string& body) {
  return "event " + Decimal(body.substr(0, 3)) + ", location " + Decimal(body.substr(3, 4)) +
         ", duration " + body[10] + (body[7] == '1' ? ", direction" : "") + ", extent " + body[8] +
         (body[9] == '1' ? ", diversion" : "") + ", repetition " + Decimal(body.substr(11));
}

}  // namespace

std::string Frequencies(std::string_view codes) {
  std::string text;
  const std::vector<int> list = Codes(codes);
  for (std::size_t at = 0; at < list.size(); ++at) {
    const int code = list[at];
    if (code == kFiller) continue;
    if (!text.empty()) text += ", ";
    if (code <= kLastFm) {
      text += MHz(87500 + code * 100);
    } else if (at + 1 < list.size() && code == kLfOrMf) {
      text += KHz(list[++at]);
    } else if (at + 1 < list.size() && code >= kFirstOffset) {
      text += MHz(87500 + (code - kFirstOffset + 1) * 25 + list[++at] * 100);
    } else {
      text += "code " + std::to_string(code);
    }
  }
  return text;
}

std::string Meaning(const Command& command, int number, const std::string& body) {
  if (command.tells != nullptr) return Decimal(body);
  switch (command.code) {
    case kPi:
      return std::string("country ") + body[0] + ", coverage " + body[1] + ", programme " +
             body.substr(2);
    case kTp:
    case kTa:
    case kEonTa:
      return OnOff(body[0]);
    case kMs:
      return body == "1" ? "music" : "speech";
    case kDi:
      return DiWords(body);
    case kEnable:
      return "group " + GroupName(number) + " " + OnOff(body[1]) + ", repetitions " +
             Decimal(body.substr(2));
    case kPty:
      return "type " + Decimal(body);
    case kCt:
      return ClockWords(body);
    case kTdc:
      return OnOff(body[0]);
    case kLi:
      return "linkage " + OnOff(body[0]) + ", extended generic " + OnOff(body[1]) +
             ", international " + OnOff(body[2]) + ", set number " + body.substr(3);
    case kPsn:
    case kRt:
      return "rotation " + std::to_string(Number(body.substr(0, 2), 10));
    case kPsnPage:
      return "rotation " + std::to_string(Number(body.substr(1, 2), 10));
    case kIh:
      return command.Marked() ? "rotation " + std::to_string(Number(body.substr(3), 10)) : "";
    case kPsnPageActive:
      return "page " + std::to_string(body[0] - '0');
    case kPin:
      return ItemWords(body);
    case kPsnPlan:
      return PlanWords(body);
    case kAf:
      return FrequencyListWords(body);
    case kEon:
      return EonWords(body);
    case kTmcSystem:
      return TmcSystemWords(body);
    case kTmc:
      return TmcWords(body);
    default:
      return {};
  }
}

}  // namespace corvalis::coder
