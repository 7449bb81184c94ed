#include "air/judge.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "air/characters.h"
#include "air/formatted.h"
#include "air/judge_frequencies.h"

namespace corvalis::air {

namespace {

using Facts = StationFacts;

constexpr int kB = Facts::kB;
constexpr std::size_t kShortText = 32;

constexpr const char* kFirstCode = "87.5 MHz";

// What a radio text may have in it beside characters: a line's end, a headline's, a text's, and a
// hyphen that shows at the end of a line only.
constexpr std::array kControls = {kLineBreak, kEndOfHeadline, kEndOfText, kSoftHyphen};

// What a rule found, by item, with its figures.
struct Found {
  std::string item;
  std::string figures = {};
};
using Founds = std::vector<Found>;

std::string Hex(int value, int digits) { return Formatted("%0*X", digits, value); }

Founds If(bool found, const char* item, std::string figures = {}) {
  if (!found) return {};
  return {{item, std::move(figures)}};
}

void Append(Founds& founds, Founds more) { std::ranges::move(more, std::back_inserter(founds)); }

// One for each thing that `wrong` gives figures for.
template <typename Things, typename Wrong>
Founds Each(const Things& things, Wrong wrong) {
  Founds founds;
  for (const auto& thing : things) {
    if (std::optional<std::string> figures = wrong(thing)) {
      founds.push_back({thing.item, std::move(*figures)});
    }
  }
  return founds;
}
template <typename Wrong>
Founds EachName(const Facts& facts, Wrong wrong) {
  Founds founds;
  for (const auto& set : facts.names) {
    Append(founds, Each(set, wrong));
  }
  return founds;
}
std::optional<std::string> When(bool wrong, std::string figures = {}) {
  return wrong ? std::optional(std::move(figures)) : std::nullopt;
}

std::size_t Length(const std::string& bytes) { return bytes.find_last_not_of(' ') + 1; }

// The first byte that no radio shows, in words. Of a radio text some bytes have a meaning.
std::optional<std::string> NotShown(const std::string& bytes, bool is_radio_text = false) {
  for (const char character : bytes) {
    const auto byte = static_cast<std::uint8_t>(character);
    const bool control = std::ranges::find(kControls, byte) != kControls.end();
    const bool blank = control || (byte != ' ' && RadioCharacter(byte) == U' ');
    if (blank && !(control && is_radio_text)) return Hex(byte, 2);
  }
  return std::nullopt;
}

// Of texts that take turns, the one whose time is over before it has been sent.
template <typename Needs>
Founds TooFast(const std::vector<Facts::Text>& set, Needs needs) {
  const auto same = [&set](const auto& text) { return text.bytes == set.front().bytes; };
  if (std::ranges::all_of(set, same)) return {};
  return Each(set, [&](const auto& text) {
    const double seconds = needs(text);
    return When(text.seconds < seconds, Formatted("%d s < %.1f s", text.seconds, seconds));
  });
}

bool HasMessages(const Facts& facts) {
  return std::ranges::any_of(facts.traffic_messages, [](const auto& m) { return m.event != 0; });
}

Founds EachNetwork(const Facts& facts, bool (*wrong)(const Facts&, const Facts::Network&)) {
  return Each(facts.networks,
              [&](const auto& network) { return When(wrong(facts, network), Hex(network.pi, 4)); });
}

template <typename Wrong>
Founds EachList(const Facts& facts, Wrong wrong) {
  return Each(facts.lists, [&](const auto& list) { return wrong(list, Read(list)); });
}

// Everything that is told of the networks, once.
int NetworkGroups(const Facts& facts) {
  constexpr int kAlways = 6;  // name, PTY, PIN
  int groups = 0;
  for (const auto& network : facts.networks) {
    const auto codes = static_cast<int>(network.codes.size());
    groups += kAlways + (codes == 0 ? 0 : (codes + 2) / 2) + network.pairs;
  }
  return groups;
}

bool EccIsAssigned(int ecc) {
  constexpr std::array kRanges = {std::pair(0xA0, 0xA6), std::pair(0xD0, 0xD4),
                                  std::pair(0xE0, 0xE5), std::pair(0xF0, 0xF4)};
  return std::ranges::any_of(
      kRanges, [ecc](const auto& range) { return ecc >= range.first && ecc <= range.second; });
}

// What is prepared, and no group that is on brings it.
Founds NotBrought(const Facts& facts) {
  struct Brought {
    const char* item;
    bool prepared;
    int group;
    std::string_view name;
    int other_group = group;
  };
  const Brought all[] = {
      {"PS", true, 0, "0A, 0B", kB},
      {"AF", !facts.lists.empty(), 0, "0A"},
      {"PIN", facts.items, 1, "1A, 1B", kB + 1},
      {"ECC", facts.ecc.has_value(), 1, "1A"},
      {"LIC", facts.language.has_value(), 1, "1A"},
      {"RT", !facts.texts.empty(), 2, "2A, 2B", kB + 2},
      {"CT", facts.time, 4, "4A"},
      {"TDC", facts.channels, 5, "5A"},
      {"IH", facts.pages, 6, "6A"},
      {"TMC", HasMessages(facts), 8, "8A"},
      {"PTYN", !facts.type_name.empty(), 10, "10A"},
      {"EON", !facts.networks.empty(), 14, "14A"},
      {"LI", facts.linkage && facts.linkage->active, 14, "14A"},
  };
  Founds founds;
  for (const Brought& each : all) {
    if (!each.prepared || facts.On(each.group) || facts.On(each.other_group)) continue;
    founds.push_back({each.item, std::string(each.name)});
  }
  return founds;
}

struct Rule {
  std::string_view reason;
  Founds (*look)(const Facts&);
};

// By item, in the order of the screens.
const std::array kRules = {
    Rule{"of the groups that bring it none is on, so radios are deaf to it", NotBrought},
    Rule{"country 0 is none, and some radios take the station for one without RDS",
         [](const Facts& f) { return If(f.pi >> 12 == 0, "PI", Hex(f.pi, 4)); }},
    Rule{"coverage 0 is a single transmitter: radios do not look for its other frequencies",
         [](const Facts& f) {
           return If((f.pi >> 8 & 0xF) == 0 && !f.lists.empty(), "PI", Hex(f.pi, 4));
         }},
    Rule{"programme number 00 is not assigned",
         [](const Facts& f) { return If((f.pi & 0xFF) == 0, "PI", Hex(f.pi, 4)); }},
    Rule{"no country has this code, so radios do not know where the station is",
         [](const Facts& f) {
           return If(f.ecc && !EccIsAssigned(*f.ecc), "ECC", Hex(f.ecc.value_or(0), 2));
         }},
    Rule{
        "radios ignore an announcement without TP, unless 14A tells of another network that has it",
        [](const Facts& f) {
          const bool elsewhere =
              f.On(14) && std::ranges::any_of(f.networks, [](const auto& n) { return n.tp; });
          return If(f.ta && !f.tp && !elsewhere, "TA");
        }},
    Rule{"31 is the alarm: radios switch over to it, turned up, for as long as it lasts",
         [](const Facts& f) { return If(f.pty == 31, "PTY"); }},

    Rule{"a name of blanks shows as none",
         [](const Facts& f) {
           return EachName(f, [](const auto& name) { return When(Length(name.bytes) == 0); });
         }},
    Rule{"this character shows as a blank",
         [](const Facts& f) {
           Founds founds = EachName(f, [](const auto& name) { return NotShown(name.bytes); });
           Append(founds,
                  Each(f.texts, [](const auto& text) { return NotShown(text.bytes, true); }));
           if (auto type = NotShown(f.type_name)) founds.push_back({"PTYN", std::move(*type)});
           Append(founds, Each(f.networks, [](const auto& n) { return NotShown(n.name); }));
           return founds;
         }},
    Rule{"the name changes before its four segments have come, and is never whole",
         [](const Facts& f) {
           Founds founds;
           for (const auto& set : f.names) {
             const auto needs = [&f](const auto&) { return NameSeconds(f); };
             Append(founds, TooFast(set, needs));
           }
           return founds;
         }},
    Rule{"a radio that looks through the band is gone before the name is whole",
         [](const Facts& f) {
           constexpr double kPatience = 4;
           const double seconds = NameSeconds(f);
           return If(seconds > kPatience, "PS", Formatted("%.1f s", seconds));
         }},

    Rule{"some radios drop a list with a frequency between the steps of 100 kHz",
         [](const Facts& f) {
           return EachList(f, [](const auto&, const auto& read) { return read.off_raster; });
         }},
    Rule{"radios take the code of this frequency for none, and some drop the list",
         [](const Facts& f) {
           Founds founds = EachList(
               f, [](const auto&, const auto& read) { return When(read.first_code, kFirstCode); });
           Append(founds, Each(f.networks, [](const auto& network) {
                    return When(std::ranges::count(network.codes, 0) > 0, kFirstCode);
                  }));
           return founds;
         }},
    Rule{"this code means nothing, and some radios drop the list",
         [](const Facts& f) {
           return EachList(f, [](const auto&, const auto& read) {
             return When(read.unassigned.has_value(), Hex(read.unassigned.value_or(0), 2));
           });
         }},
    Rule{"a list holds 25 frequencies, and no more go out",
         [](const Facts& f) {
           return EachList(f, [](const auto& list, const auto& read) {
             return When(list.left_out > 0, Formatted("%d", read.frequencies + list.left_out));
           });
         }},
    Rule{"the count is not that of the frequencies, so radios read on too far or stop too early",
         [](const Facts& f) {
           return EachList(f, [](const auto&, const auto& read) {
             return When(!read.off_raster && read.counted != read.frequencies,
                         Formatted("%d / %d", read.counted, read.frequencies));
           });
         }},
    Rule{"the first frequency is in some pairs and not in others: neither method is read",
         [](const Facts& f) {
           return EachList(f, [](const auto&, const auto& read) {
             return When(read.IsMethodB() && read.other_pairs > 0,
                         Formatted("%d / %d", read.pairs, read.other_pairs));
           });
         }},
    Rule{"more than one list, and not of method B: radios keep one of them",
         [](const Facts& f) {
           const auto lists = std::ranges::count_if(
               f.lists, [](const auto& list) { return !Read(list).IsMethodB(); });
           return If(lists > 0 && f.lists.size() > 1, "AF", Formatted("%zu", f.lists.size()));
         }},
    Rule{"2B alone is on, and ends behind 32 characters",
         [](const Facts& f) {
           if (f.On(2) || !f.On(kB + 2)) return Founds();
           return Each(f.texts, [](const auto& text) {
             const std::size_t length = Length(text.bytes);
             return When(length > kShortText, Formatted("%zu > %zu", length, kShortText));
           });
         }},
    Rule{"2A and 2B are both on: radios mix what the two bring",
         [](const Facts& f) { return If(!f.texts.empty() && f.On(2) && f.On(kB + 2), "RT"); }},
    Rule{"a 0D is the end: what is behind it never shows",
         [](const Facts& f) {
           return Each(f.texts, [](const auto& text) {
             const std::size_t end = text.bytes.find(static_cast<char>(kEndOfText));
             const std::size_t length = Length(text.bytes);
             return When(end != std::string::npos && end + 1 < length,
                         Formatted("%zu / %zu", end, length));
           });
         }},
    Rule{"the text changes before it has come, and is never whole",
         [](const Facts& f) {
           return TooFast(f.texts,
                          [&f](const auto& text) { return TextSeconds(f, Length(text.bytes)); });
         }},

    Rule{"4A is on, and has no time: no clock time was sent",
         [](const Facts& f) { return If(!f.time && f.On(4), "CT"); }},
    Rule{"radios show no name for the type 0",
         [](const Facts& f) { return If(!f.type_name.empty() && f.pty == 0, "PTYN"); }},
    Rule{"another network with the PI of this one, or of none, is not another",
         [](const Facts& f) {
           return EachNetwork(
               f, [](const Facts& own, const auto& n) { return n.pi == own.pi || n.pi == 0; });
         }},
    Rule{"radios ignore an announcement on a network without TP",
         [](const Facts& f) {
           return EachNetwork(f, [](const Facts&, const auto& n) { return n.ta && !n.tp; });
         }},
    Rule{"without a frequency radios cannot go there",
         [](const Facts& f) {
           return EachNetwork(
               f, [](const Facts&, const auto& n) { return n.codes.empty() && n.pairs == 0; });
         }},
    Rule{"it takes more than two minutes to tell of all networks once",
         [](const Facts& f) {
           constexpr double kLongest = 120;
           const double seconds = SecondsOf(f, NetworkGroups(f), 14);
           return If(seconds > kLongest, "EON", Formatted("%.0f s", seconds));
         }},
    Rule{"the set 000 is linked to nothing",
         [](const Facts& f) {
           return If(f.linkage && f.linkage->active && f.linkage->set == 0, "LI");
         }},

    Rule{"table 0 announces an encrypted service, which most receivers leave alone",
         [](const Facts& f) {
           return If(f.traffic_system && f.traffic_system->table == 0, "TMC system");
         }},
    Rule{"without a scope receivers look for no messages",
         [](const Facts& f) {
           return If(f.traffic_system && !f.traffic_system->anywhere, "TMC system");
         }},
    Rule{"8A means nothing without 3A, which tells table and service",
         [](const Facts& f) {
           return If(HasMessages(f) && f.On(8) && !(f.On(3) && f.traffic_system), "TMC");
         }},
    Rule{"location 0 is none in any table",
         [](const Facts& f) {
           return Each(f.traffic_messages,
                       [](const auto& m) { return When(m.event != 0 && m.location == 0); });
         }},
};

}  // namespace

std::string Words(const Finding& finding) {
  return finding.item + ": " + std::string(finding.reason) +
         (finding.figures.empty() ? "" : " (" + finding.figures + ")");
}

std::vector<Finding> Judge(const StationFacts& facts) {
  std::vector<Finding> findings;
  for (const Rule& rule : kRules) {
    for (Found& found : rule.look(facts)) {
      findings.push_back({std::move(found.item), rule.reason, std::move(found.figures)});
    }
  }
  return findings;
}

std::vector<std::string_view> Reasons() {
  std::vector<std::string_view> reasons;
  std::ranges::transform(kRules, std::back_inserter(reasons), &Rule::reason);
  return reasons;
}

}  // namespace corvalis::air
