#include "station/language_codes.h"

#include <algorithm>
#include <numeric>

namespace corvalis {

namespace {

constexpr std::array<std::string_view, kLanguageCodes> kNames{
    "",
    "Albanian",
    "Breton",
    "Catalan",  // 00
    "Croatian",
    "Welsh",
    "Czech",
    "Danish",  // 04
    "German",
    "English",
    "Spanish",
    "Esperanto",  // 08
    "Estonian",
    "Basque",
    "Faroese",
    "French",  // 0C
    "Frisian",
    "Irish",
    "Gaelic",
    "Galician",  // 10
    "Icelandic",
    "Italian",
    "Lappish",
    "Latin",  // 14
    "Latvian",
    "Luxembourgian",
    "Lithuanian",
    "Hungarian",  // 18
    "Maltese",
    "Dutch",
    "Norwegian",
    "Occitan",  // 1C
    "Polish",
    "Portuguese",
    "Romanian",
    "Romansh",  // 20
    "Serbian",
    "Slovak",
    "Slovene",
    "Finnish",  // 24
    "Swedish",
    "Turkish",
    "Flemish",
    "Walloon",  // 28
    "",
    "",
    "",
    "",  // 2C
    "",
    "",
    "",
    "",  // 30
    "",
    "",
    "",
    "",  // 34
    "",
    "",
    "",
    "",  // 38
    "",
    "",
    "",
    "",  // 3C
    "",
    "",
    "",
    "",  // 40
    "",
    "Zulu",
    "Vietnamese",
    "Uzbeck",  // 44
    "Urdu",
    "Ukranian",
    "Thai",
    "Telugu",  // 48
    "Tatar",
    "Tamil",
    "Tadzhik",
    "Swahili",  // 4C
    "Sranan Tongo",
    "Somali",
    "Sinhalese",
    "Shona",  // 50
    "Serbo-Croat",
    "Ruthenian",
    "Russian",
    "Quechua",  // 54
    "Pushtu",
    "Punjabi",
    "Persian",
    "Papamiento",  // 58
    "Orija",
    "Nepali",
    "Ndebele",
    "Marathi",  // 5C
    "Moldavian",
    "Malaysian",
    "Malagasay",
    "Macedonian",  // 60
    "Laotian",
    "Korean",
    "Khmer",
    "Kazakh",  // 64
    "Kannada",
    "Japanese",
    "Indonesian",
    "Hindi",  // 68
    "Hebrew",
    "Hausa",
    "Gurani",
    "Gujurati",  // 6C
    "Greek",
    "Georgian",
    "Fulani",
    "Dari",  // 70
    "Churash",
    "Chinese",
    "Burmese",
    "Bulgarian",  // 74
    "Bengali",
    "Belorussian",
    "Bambora",
    "Azerbijani",  // 78
    "Assamese",
    "Armenian",
    "Arabic",
    "Amharic",  // 7C
};

}  // namespace

std::string_view LanguageOfCode(int code) { return kNames.at(static_cast<std::size_t>(code)); }

LanguageCodeIndex::LanguageCodeIndex() {
  std::iota(order_.begin(), order_.end(), 0);
  std::stable_sort(order_.begin(), order_.end(), [](int a, int b) {
    const std::string_view name_a = LanguageOfCode(a);
    const std::string_view name_b = LanguageOfCode(b);
    if (name_a.empty() != name_b.empty()) return name_b.empty();
    return name_a < name_b;
  });
  for (int line = 0; line < kLanguageCodes; ++line) {
    const int code = CodeOfLine(line);
    line_of_code_[static_cast<std::size_t>(code)] = line;
    if (!LanguageOfCode(code).empty()) ++named_;
  }
}

int LanguageCodeIndex::CodeOfLine(int line) const {
  return order_.at(static_cast<std::size_t>(line));
}

int LanguageCodeIndex::LineOfCode(int code) const {
  return line_of_code_.at(static_cast<std::size_t>(code));
}

}  // namespace corvalis
