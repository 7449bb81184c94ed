#include "config/language_data.h"

#include <gtest/gtest.h>

#include <sstream>
#include <utility>

#include "config/config_data.h"
#include "config/words.h"
#include "support/places.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

struct Text {
  std::string section, key, value;
  bool operator==(const Text&) const = default;
};

/// Every text by its getter, in the order of loading.
std::vector<Text> Got(const LanguageData& texts) {
  return {
#define CORVALIS_TEXT(section, key, getter, preset) {section, key, texts.getter()},
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
  };
}

std::vector<Text> Defaults() {
  return {
#define CORVALIS_TEXT(section, key, getter, preset) {section, key, preset},
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
  };
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
    if (line.empty()) continue;
    texts.push_back({section, line.substr(0, equals), line.substr(equals + 1)});
  }
  return texts;
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

TEST_F(LanguageTest, NameOfTheFileByTheRecord) {
  const std::string other = folder + "/outside.ini";
  const std::string windows =
      "Fran\xE7"
      "ais\x80.ini";
  const std::string utf8 =
      "Fran\xC3\xA7"
      "ais\xE2\x82\xAC.ini";
  WriteFile(other, "[MAIN]\nSaveKeyMsg=OUTSIDE\n");
  WriteFile(machine.program_folder + "/" + utf8, "[MAIN]\nSaveKeyMsg=ENREGISTRER\n");
  const std::pair<std::string, const char*> cases[] = {
      {"../outside.ini", "SAVE"}, {other, "SAVE"}, {windows, "ENREGISTRER"}};
  for (const auto& [name, save] : cases) {
    WriteFile(ProgramFile(), "[Language]\nName0=X\nFileName0=" + name + "\n");
    record.GetIni();
    EXPECT_EQ(LanguageData().MainSaveKey(), save);
  }
  EXPECT_EQ(ReadFile(other), "[MAIN]\nSaveKeyMsg=OUTSIDE\n");
  // A file of those very bytes comes first.
  WriteFile(machine.program_folder + "/" + windows, "[MAIN]\nSaveKeyMsg=ECRIRE\n");
  EXPECT_EQ(LanguageData().MainSaveKey(), "ECRIRE");
}

TEST_F(LanguageTest, WordsAreFoundByTheirEnglishTextAndNeverWritten) {
  EXPECT_EQ(Word("Current row"), "Current row");
  const std::string words =
      "[Words]\r\nlocale=de\r\ncurrent ROW=Aktuelle Zeile\r\n%1 of %2=%2, 9 %, davon %1\r\n"
      "Time=\r\n";
  WriteFile(LanguageFile(), words);
  LanguageData texts;
  languageData = &texts;
  EXPECT_EQ(Word("Current row"), "Aktuelle Zeile");
  EXPECT_EQ(Word("Time"), "Time");
  EXPECT_EQ(Word("%1 of %2", {"%2", "b"}), "b, 9 %, davon %2");
  EXPECT_EQ(LanguageCode(), "de");
  EXPECT_TRUE(ReadFile(LanguageFile()).starts_with(words + "[MAIN]"));
  WriteFile(LanguageFile(), "");
  EXPECT_EQ(Word("Current row"), "Aktuelle Zeile");  // until the next loading
  texts.InitLanguage();
  EXPECT_EQ(Word("Current row") + LanguageCode(), "Current rowen_GB");
  languageData = nullptr;
}

TEST_F(LanguageTest, FilesOfOtherLanguagesAreComplete) {
  std::vector<Text> english = Defaults();
  for (Text& text : english) text.value.clear();
  for (const char* name : {"/German.ini", "/French.ini", "/Italian.ini"}) {
    SCOPED_TRACE(name);
    std::vector<Text> other = Parse(ReadFile(kExamples + std::string(name)));
    std::erase_if(other, [](const Text& text) { return text.section == "Words"; });
    for (Text& text : other) {
      EXPECT_FALSE(std::exchange(text.value, "").empty()) << text.key;
    }
    EXPECT_EQ(other, english);
  }
}

}  // namespace
}  // namespace corvalis::test
