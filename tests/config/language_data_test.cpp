#include "config/language_data.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <utility>

#include "config/config_data.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

struct Text {
  std::string section, key, value;
  bool operator==(const Text&) const = default;
};

void PrintTo(const Text& text, std::ostream* out) {
  *out << "[" << text.section << "] " << text.key << "=" << text.value;
}

struct Entry {
  const char* section;
  const char* key;
  const char* preset;
  const std::string& (LanguageData::*getter)() const;
};

constexpr Entry kEntries[] = {
#define CORVALIS_TEXT(section, key, getter, preset) {section, key, preset, &LanguageData::getter},
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
};

/// Every text by its getter, in the order of loading.
std::vector<Text> Got(const LanguageData& texts) {
  std::vector<Text> got;
  for (const Entry& e : kEntries) got.push_back({e.section, e.key, (texts.*e.getter)()});
  return got;
}

std::vector<Text> Defaults() {
  std::vector<Text> defaults;
  for (const Entry& e : kEntries) defaults.push_back({e.section, e.key, e.preset});
  return defaults;
}

/// The keys of a file with CR LF that holds nothing but sections and keys.
std::vector<Text> Parse(const std::string& file) {
  std::vector<Text> texts;
  std::istringstream in(file);
  std::string section;
  for (std::string line; std::getline(in, line);) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    line.pop_back();
    if (line.starts_with('[')) {
      section = line.substr(1, line.size() - 2);
      continue;
    }
    const auto equals = line.find('=');
    if (equals == std::string::npos) {
      EXPECT_EQ(line, "");
      continue;
    }
    texts.push_back({section, line.substr(0, equals), line.substr(equals + 1)});
  }
  return texts;
}

constexpr std::size_t kFitsAnyButton = 17;
constexpr std::size_t kLongestTip = 84;

bool IsCaption(const std::string& key) { return key.find("Tip") == std::string::npos; }

std::string Example(const std::string& name) {
  const std::filesystem::path data = CORVALIS_TEST_DATA;
  return (data.parent_path().parent_path() / "examples" / name).string();
}

class LanguageTest : public MachineTest {
 protected:
  LanguageTest() { configData = &record; }
  ~LanguageTest() override { configData = nullptr; }

  [[nodiscard]] std::string LanguageFile() const {
    return record.Path() + "/" + record.LanguageFileName();
  }

  ConfigData record;
};

TEST_F(LanguageTest, MissingFileIsWrittenWhole) {
  const LanguageData texts;
  EXPECT_EQ(Got(texts), Defaults());
  const std::string file = ReadFile(machine.program_folder + "/Language.ini");
  EXPECT_EQ(Parse(file), Defaults());
  const std::pair<const char*, int> sections[] = {
      {"MAIN", 26},        {"SETUP", 16},      {"CONNECTION", 52}, {"TA-PTY-MS", 13},
      {"EDIT GROUP", 42},  {"CLOCK TIME", 12}, {"PI-ECC-LIC", 28}, {"TP-DI", 26},
      {"PSN", 20},         {"RT", 10},         {"PIN", 10},        {"AF Method A", 32},
      {"AF METHOD B", 29}, {"PTYN", 14},       {"PSN PLAN", 10},   {"EON", 23},
      {"LI", 10},          {"TA EON", 10},     {"TDC", 10},        {"IH", 51},
      {"TMC System", 12},  {"TMC", 10},        {"MESSAGE", 3}};
  std::vector<std::string> expected;
  for (const auto& [section, count] : sections) {
    expected.insert(expected.end(), static_cast<std::size_t>(count), section);
  }
  std::vector<std::string> written;
  for (const Text& text : Parse(file)) written.push_back(text.section);
  EXPECT_EQ(written, expected);

  const LanguageData again;
  EXPECT_EQ(Got(again), Defaults());
  EXPECT_EQ(ReadFile(LanguageFile()), file);
}

TEST_F(LanguageTest, FileThatLacksTextsGainsThemInTheirSections) {
  WriteFile(LanguageFile(),
            "; by the station's engineer\n"
            "[MESSAGE]\n"
            "WaitKeyMsg=un instant...\n"
            "EscKeyMsg=\n"
            "EscKeyTip=   \n"
            "\n"
            "[main]\n"
            "savekeymsg=  Save It  NOW  \n");
  const LanguageData texts;
  EXPECT_EQ(texts.MessageWaitKey(), "un instant...");
  EXPECT_EQ(texts.MessageEscKey(), "ESC");
  EXPECT_EQ(texts.MainSaveKey(), "Save It  NOW");
  EXPECT_EQ(texts.MainOpenKey(), "OPEN");

  const std::string file = ReadFile(LanguageFile());
  EXPECT_TRUE(
      file.starts_with("; by the station's engineer\n"
                       "[MESSAGE]\n"
                       "WaitKeyMsg=un instant...\n"
                       "EscKeyMsg=ESC\n"
                       "EscKeyTip=Serial transmission interruption!\n"
                       "\n"
                       "[main]\n"
                       "savekeymsg=  Save It  NOW  \n"
                       "SetupKeyMsg=SETUP\n"))
      << file.substr(0, 400);
  const LanguageData again;
  EXPECT_EQ(Got(again), Got(texts));
  EXPECT_EQ(ReadFile(LanguageFile()), file);
}

TEST_F(LanguageTest, FolderThatCannotBeWrittenToGivesTheDefaultsInSilence) {
  record.SetPath(folder + "/not there");
  const LanguageData texts;
  EXPECT_EQ(Got(texts), Defaults());
  EXPECT_FALSE(std::filesystem::exists(record.Path()));
  EXPECT_TRUE(dialogs.boxes.empty());
}

// The first in the code page of the screens, the second in UTF-8, the third in a code page of
// Polish. What the program can't show must still be in the file.
TEST_F(LanguageTest, BytesOfTheFileStayAsTheyAre) {
  for (const std::string word :
       {"D\xE9marrer l'\xE9mission \x80", "Za\xC5\xBC\xC3\xB3\xC5\x82\xC4\x87",
        "Za\xBF\xF3\xB3\xE6 \x81\x8D\xFF"}) {
    const std::string line = "NewKeyTip=" + word + "\r\n";
    WriteFile(LanguageFile(), "[MAIN]\r\n" + line);
    const LanguageData texts;
    EXPECT_EQ(texts.MainNewTip(), word);
    EXPECT_TRUE(
        ReadFile(LanguageFile()).starts_with("[MAIN]\r\n" + line + "SetupKeyMsg=SETUP\r\n"));
  }
}

TEST(LanguageTexts, DefaultsAreCleanAndFitTheirControls) {
  constexpr std::size_t kLongestCaption = 29;  // of a wide button of the main menu
  for (const auto& [section, key, value] : Defaults()) {
    SCOPED_TRACE(key);
    ASSERT_FALSE(value.empty());
    EXPECT_EQ(value.find("  "), std::string::npos);
    EXPECT_TRUE(value.front() != ' ' && value.back() != ' ');
    EXPECT_TRUE(
        std::all_of(value.begin(), value.end(), [](char c) { return c >= ' ' && c <= '~'; }));
    EXPECT_LE(value.size(), IsCaption(key) ? kLongestCaption : kLongestTip);
  }
}

TEST_F(LanguageTest, GermanFileIsCompleteAndFits) {
  const std::string file = ReadFile(Example("German.ini"));
  const std::vector<Text> german = Parse(file);
  const std::vector<Text> english = Defaults();
  ASSERT_EQ(german.size(), english.size());
  for (std::size_t i = 0; i < german.size(); ++i) {
    SCOPED_TRACE(testing::PrintToString(german[i]));
    EXPECT_EQ(german[i].section, english[i].section);
    EXPECT_EQ(german[i].key, english[i].key);
    EXPECT_FALSE(german[i].value.empty());
    EXPECT_EQ(german[i].value.find('\xC3'), std::string::npos);  // UTF-8 by mistake
    EXPECT_LE(german[i].value.size(), IsCaption(german[i].key)
                                          ? std::max(kFitsAnyButton, english[i].value.size())
                                          : kLongestTip);
    EXPECT_TRUE(IsCaption(german[i].key) || german[i].value != english[i].value);
  }
}

TEST_F(LanguageTest, SampleStationOffersEnglishAndGerman) {
  WriteFile(ProgramFile(), ReadFile(Example("station.rds")));
  record.GetIniFile();
  ASSERT_EQ(record.NumIniLang(), 2);
  EXPECT_EQ(record.LanguageName(0), "English");
  EXPECT_EQ(record.LanguageName(1), "Deutsch");
  record.SetLanguageDflt(1);
  EXPECT_TRUE(std::filesystem::exists(Example(record.LanguageFileName())));
}

}  // namespace
}  // namespace corvalis::test
