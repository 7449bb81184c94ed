#include "config/programme_types.h"

#include <array>
#include <string_view>

namespace corvalis {

namespace {

constexpr std::array<std::string_view, kProgrammeTypes> kNames{"No program type or undefined",
                                                               "News",
                                                               "Current Affairs",
                                                               "Information",
                                                               "Sport",
                                                               "Education",
                                                               "Drama",
                                                               "Culture",
                                                               "Science",
                                                               "Varied",
                                                               "Pop Music",
                                                               "Rock Music",
                                                               "M.O.R. Music",
                                                               "Light classics",
                                                               "Serious classics",
                                                               "Other Music",
                                                               "Weather",
                                                               "Finance",
                                                               "Children's programs",
                                                               "Social Affairs",
                                                               "Religion",
                                                               "Phone-In",
                                                               "Travel",
                                                               "Leisure",
                                                               "Jazz Music",
                                                               "Country Music",
                                                               "National Music",
                                                               "Oldies Music",
                                                               "Folk Music",
                                                               "Documentary",
                                                               "Alarm Test",
                                                               "Alarm"};

constexpr std::size_t kMorMusic = 12;
constexpr std::size_t kChildren = 18;
constexpr std::size_t kAlarm = 31;

std::vector<std::string> Lines(std::string_view alarm) {
  std::vector<std::string> lines;
  for (std::size_t code = 0; code < kNames.size(); ++code) {
    const std::string_view name = code == kAlarm ? alarm : kNames[code];
    lines.push_back(std::to_string(code) + (code < 10 ? "    " : "  ") + std::string(name));
  }
  return lines;
}

std::vector<std::string> Names() {
  std::vector<std::string> names(kNames.begin(), kNames.end());
  names[kMorMusic] = "M.O.R.Music";
  names[kChildren] = "Children 's programs";
  return names;
}

}  // namespace

const std::vector<std::string>& ProgrammeTypeLines() {
  static const std::vector<std::string> lines = Lines("Alarm! ");
  return lines;
}

const std::vector<std::string>& PtynTypeLines() {
  static const std::vector<std::string> lines = Lines("Alarm");
  return lines;
}

const std::vector<std::string>& ProgramTypeNames() {
  static const std::vector<std::string> names = Names();
  return names;
}

}  // namespace corvalis
