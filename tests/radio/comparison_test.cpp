// What a radio makes of the air, held against the station file that was sent.

#include "radio/comparison.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>

#include "air/hex_text.h"
#include "air/receiver.h"
#include "config/language_data.h"
#include "link/serial_management.h"
#include "radio/facts.h"
#include "radio/language.h"
#include "radio/program.h"
#include "radio/report.h"
#include "support/sent_station.h"
#include "support/spoilt_air.h"

namespace corvalis::radio {
namespace {

using Names = std::vector<std::string>;
using test::kExamples;

class ComparisonTest : public test::SentStation {
 protected:
  ComparisonTest() : file_(SampleFile()) {
    Change("MaxPinNum=255\r\n",
           "MaxPinNum=255\r\nPin020=15;12:02;10;Off\r\nPin021=15;08:10;10;Off\r\n");
    Change("Group13A=00;Off", "Group13A=01;On");  // it has nothing to say
    // A Coder that translates nothing, and texts that would need it.
    Change("EON Enable=On\r\n", "EON Enable=On\r\nRadio Characters=On\r\n");
    Change("LAKESIDE", "LAKESID\xC9");
    Change("OD MORNI",
           "\xD6"
           "D MORN\x92");
    Change("with Nora and Tim, w", "with N\xF3ra and Tim, w");
    Change("RIDGE FM", "RIDG\xC8 FM");
    SendAll(file_);
  }

  // The air of so many seconds, as a receiver takes it.
  void Hear(int seconds, const test::Loss& loss = {}, unsigned seed = 0) {
    if (air_.empty()) air_ = test::AirOf(the_coder, seconds);
    receiver_ = air::Receiver();
    test::Hear(air_, loss, seed, receiver_);
  }
  [[nodiscard]] std::string Lines() const {
    std::string lines;
    for (const air::Group& group : air_) lines += air::HexLine(group) + "\n";
    return lines;
  }

  void Change(const std::string& from, const std::string& to) {
    ASSERT_EQ(file_.find(from), file_.rfind(from)) << from;
    ASSERT_NE(file_.find(from), std::string::npos) << from;
    file_.replace(file_.find(from), from.size(), to);
  }

  [[nodiscard]] std::string Place(const std::string& name) const { return folder + "/" + name; }
  std::vector<Row> Rows(const std::string& file, air::AirSeconds from = 0, int days = 0) {
    WriteFile(Place("station.rds"), file);
    Prepared prepared;
    EXPECT_EQ(ReadPrepared(Place("station.rds"), prepared), "");
    return Compare(prepared, receiver_.Heard(), machine.clock->Now() + std::chrono::days(days),
                   from);
  }
  // The rows that do not agree, but for those of pages that are not on the air.
  static Names Named(const std::vector<Row>& rows) {
    Names names;
    for (const Row& row : rows) {
      if (row.verdict == Verdict::kAgrees || row.verdict == Verdict::kSilent) continue;
      names.push_back(row.name + " " + InWords(row));
    }
    return names;
  }

  std::string file_;
  std::vector<air::Group> air_;
  air::Receiver receiver_;
};

TEST_F(ComparisonTest, NamesWhatWasChangedInTheFileAndNothingElse) {
  Hear(600);
  const std::vector<Row> same = Rows(file_);
  EXPECT_EQ(Named(same), Names()) << ReportText(same);
  EXPECT_EQ(OutcomeOf(same), Outcome::kAgrees);
  std::set<Item> kinds;
  for (const Row& row : same) kinds.insert(row.item);
  EXPECT_EQ(kinds.size(), static_cast<std::size_t>(Item::kGroup)) << "all but one of a network";

  std::string page = ReadFile(std::string(kExamples) + "/harbour.txt");
  page[100] = '#';
  WriteFile(Place("page.txt"), page);
  const std::string page_00 = "/;" + std::string(kExamples) + ";harbour.txt";
  const struct {
    std::string from;
    std::string to;
    std::string named;
  } changes[] = {
      {"Program Number=2A", "Program Number=2B", "PI differs"},
      {"Extended Country Code=E0", "Extended Country Code=E1", "ECC differs"},
      {"Language Identification Code=15", "Language Identification Code=08", "Language differs"},
      {"\nTP=On", "\nTP=Off", "TP differs"},
      {"\nTA=Off", "\nTA=On", "TA differs"},
      {"Music=On", "Music=Off", "M/S differs"},
      {"Mono=Off", "Mono=On", "Stereo differs"},
      {"Artificial Head=Off", "Artificial Head=On", "Artificial head differs"},
      {"Compressed=Off", "Compressed=On", "Compressed differs"},
      {"Static PTY=On", "Static PTY=Off", "Dynamic PTY differs"},
      {"\nPTY=10", "\nPTY=11", "PTY differs"},
      {"LAKESID\xC9", "LAKESHOR", "PTYN differs"},
      {"PtyN10=", "PtyN11=", "PTYN not prepared"},
      {"  98.4  ", "  98.5  ", "PS 00.01 differs"},
      {"Psn00.04=04;On", "Psn00.04=04;Off", "PS not prepared"},
      {" & NEWS ;", " & NEWS ;\r\nPsn00.05=04;On;NIGHT FM;", "PS 00.05 not heard yet"},
      {"with N\xF3ra and Tim, w", "with Nora and Tim, w", "RT 01 differs"},
      {"Rt05=15", "Rt05=00", "RT not prepared"},
      {"Clock Time Offset=2", "Clock Time Offset=3", "CT offset differs"},
      {"15;12:02;10", "15;12:03;10", "PIN differs"},
      {"106.800;093.500;0", "106.900;093.500;0", "AF 00 differs"},
      {"FreqList=098.400;", "FreqList=000.000;", "AF 00 differs"},
      {"1458;000.000", "1458;104.000", "AF 00 differs"},
      {"\nLa=On", "\nLa=Off", "LA differs"},
      {"Lsn=2A1", "Lsn=2A2", "LSN differs"},
      {"Egi=Off", "Egi=On", "LSN differs"},
      {"Pi0=542B", "Pi0=542D", "EON 00 PI differs"},
      {"RIDG\xC8 FM", "RIDGE FM", "EON 00 PS differs"},
      {"Tp0=On", "Tp0=Off", "EON 00 TP differs"},
      {"Ta0=Off", "Ta0=On", "EON 00 TA differs"},
      {"Pty0=0A", "Pty0=0B", "EON 00 PTY differs"},
      {"Pin0=52352", "Pin0=52353", "EON 00 PIN differs"},
      {"AfMethodA0=095.7;", "AfMethodA0=095.8;", "EON 00 AF differs"},
      {"089.2;093.5;000.0", "089.2;093.6;000.0", "EON 00 AF B differs"},
      {"103.1;106.8;000.0", "000.0;106.8;000.0", "EON 01 AF B differs"},
      {"Enable1=On", "Enable1=Off", "EON 542C not prepared"},
      {"10110010011101010001", "10110010011101010000", "TDC 0 01 differs"},
      {"11001010000100110101110011110000", "11001010000100110101110011110001", "TDC 02 differs"},
      {page_00, "/;" + folder + ";page.txt", "IH 00 differs"},
      {page_00, ";;harbour.txt", ""},
      {"Ltn=09", "Ltn=10", "TMC LTN differs"},
      {"Sid=12", "Sid=13", "TMC SID differs"},
      {"National=On\r\nRegional", "National=Off\r\nRegional", "TMC scopes differs"},
      {"04D2;101", "04D3;101", "TMC 00 differs"},
      {"Group02A=03;On", "Group02A=04;On", "Group 2A differs"},
      {"Group02A=03;On", "Group02A=30;On", "Group 2A differs"},
      {"Group00A=04;On", "Group00A=05;On", "Group 0A differs"},
      {"Group10A=01;On", "Group10A=01;Off", "Group 10A differs"},
  };
  const std::string kept = file_;
  for (const auto& change : changes) {
    Change(change.from, change.to);
    const std::vector<Row> rows = Rows(file_);
    EXPECT_EQ(Named(rows), change.named.empty() ? Names() : Names{change.named})
        << change.from << "\n"
        << ReportText(rows);
    EXPECT_EQ(OutcomeOf(rows) == Outcome::kAgrees, change.named.empty());
    file_ = kept;
  }
}

TEST_F(ComparisonTest, TakesNothingThatIsLostForADifference) {
  for (const test::Loss& loss : test::kLosses) {
    for (unsigned seed = 0; seed < 8; ++seed) {
      Hear(600, loss, seed);
      const std::vector<Row> rows = Rows(file_, 0, 1);  // long after
      EXPECT_NE(OutcomeOf(rows), Outcome::kDiffers) << loss.name << "\n" << ReportText(rows);
    }
  }
}

TEST_F(ComparisonTest, MarksWhatDiffersAndSaysWhatStaysSilent) {
  Change("106.800;093.500;0", "106.900;093.500;0");
  Change("  98.4  ", "  98.55 ");
  Change("Group02A=03;On", "Group02A=03;Off");
  Rows(file_);
  const auto row_of = [](const std::vector<Row>& rows, const std::string& name) {
    for (const Row& row : rows) {
      if (row.name == name) return row;
    }
    return Row{};
  };
  EXPECT_EQ(InWords(row_of(Rows(file_), "RT 00")), "2A, 2B off");
  EXPECT_EQ(OutcomeOf(Rows(file_)), Outcome::kNotHeard);
  const std::string long_kind_off = file_;
  Change("Group02B=00;Off", "Group02B=01;On");
  EXPECT_EQ(row_of(Rows(file_), "RT 00").prepared, "You are listening to LAKE FM, mu");
  file_ = long_kind_off;
  Hear(121);  // the item of 12:02 has not come yet
  for (const Row& row : Rows(file_, 122)) {
    EXPECT_TRUE(row.heard.empty() || row.item == Item::kGroup) << row.name;
  }
  const std::vector<Row> rows = Rows(file_);
  const Row name = row_of(rows, "PS 00.01");
  EXPECT_EQ(name.heard, "  98.4  ");
  EXPECT_EQ(name.heard_marks, (std::vector<Span>{{5, 2}}));
  EXPECT_EQ(name.prepared_marks, name.heard_marks);
  const Row list = row_of(rows, "AF 00");
  EXPECT_EQ(list.remark, "without 106.9; beside it 106.8");
  EXPECT_EQ(InWords(row_of(rows, "PIN")), "agrees");
  const std::string marked =
      list.heard.substr(list.heard_marks.at(0).begin, list.heard_marks.at(0).length);
  EXPECT_EQ(marked, "106.8");
  EXPECT_EQ(ReportText({name}),
            "Item      Verdict  Prepared    Heard\n"
            "PS 00.01  differs  \"  98.55 \"  \"  98.4  \"\n"
            "                         ^^          ^^\n");
  EXPECT_NE(ReportCsv(rows).find(
                "\"PS 00.01\",\"differs\",\"  98.55 \",\"  98.4  \",\"\",\"6-7\",\"6-7\"\n"),
            std::string::npos);
}

TEST_F(ComparisonTest, EndsWithWhatCameOfIt) {
  Hear(600);
  const std::string lines = Lines();
  WriteFile(Place("air.txt"), lines);
  WriteFile(Place("short.txt"), lines.substr(0, lines.size() / 20));
  WriteFile(Place("station.rds"), file_);
  Change("LAKESID\xC9", "LAKESHOR");
  WriteFile(Place("other.rds"), file_);
  WriteFile(Place("junk.rds"), "nothing of a station\n");
  std::filesystem::create_directory(Place("empty"));
  const struct {
    std::string compare;
    std::string source;
    int code;
    std::string told;  // on the output, or of what is wrong
  } cases[] = {
      {"station.rds", "air.txt", 0, "agree"},
      {"other.rds", "air.txt", 1, "1 differ"},
      {"station.rds", "short.txt", 2, "not heard yet"},
      {"", "air.txt", 0, "AF 00            98.4, 95.7, 101.325"},
      {"", "air.txt", 0, "CT               15.11.2026 12:10 (+01.0)"},
      {"junk.rds", "air.txt", 3, "junk.rds: that is no station file"},
      {"missing.rds", "air.txt", 3, "missing.rds: there is no such file"},
      {"empty", "air.txt", 3, "empty: that is no file"},
      {"station.rds", "missing.txt", 3, "missing.txt: No such file or directory"},
      {"station.rds", "empty", 3, "empty: Is a directory"},
      {"station.rds", "junk.rds", 2, "1 lines, and none of them is a group"},
  };
  for (const auto& c : cases) {
    Options options;
    options.compare = c.compare.empty() ? "" : Place(c.compare);
    options.source = Place(c.source);
    std::ostringstream out;
    EXPECT_EQ(RunReport(options, out, out), c.code) << c.compare << " " << c.source;
    EXPECT_NE(out.str().find(c.told), std::string::npos) << c.told << "\n" << out.str();
  }
  Options options;
  options.judge = std::string(kExamples) + "/station.rds";
  std::ostringstream out;
  EXPECT_EQ(RunJudge(options, out, out), 1);
  EXPECT_NE(out.str().find("(101.325 MHz)\n19 places in the cycle"), std::string::npos);
}

TEST_F(ComparisonTest, ReadingAFileLeavesItAndItsFolderAsTheyWere) {
  const std::string other = Place("other");
  std::filesystem::create_directory(other);
  const std::string page_01 = std::string(kExamples) + ";service.txt";
  Change(page_01, other + ";missing.txt");
  std::string none;
  std::string between;
  for (int entry = 0; entry < 16; ++entry) {
    none += "000.000;";
    between += "102.125;";
  }
  Change("1458;" + none, "1458;" + between);
  Change("FileName0=English.ini", "FileName0=Missing.ini");
  WriteFile(other + "/station.rds", file_);
  const auto snapshot = [&] {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (entry.is_regular_file()) files[entry.path()] = ReadFile(entry.path());
    }
    return files;
  };
  const auto before = snapshot();
  const ConfigData* const record = configData;
  port.operations.clear();
  Prepared prepared;
  EXPECT_EQ(ReadPrepared(other + "/station.rds", prepared), "");
  EXPECT_EQ(prepared.pages.at(1).bytes, "");
  EXPECT_EQ(FactsOf(prepared).lists.at(0).left_out, 10) << "25 bytes hold 15 of the 25";
  EXPECT_EQ(snapshot(), before);
  EXPECT_EQ(port.operations, Names());
  EXPECT_EQ(configData, record);
  EXPECT_TRUE(LinkOpen) << "as it was";
}

TEST_F(ComparisonTest, SpeaksTheLanguageOfTheStationFile) {
  const std::string folder_of_it = Place("german");
  std::filesystem::create_directory(folder_of_it);
  std::filesystem::copy(std::string(kExamples) + "/German.ini", folder_of_it + "/German.ini");
  Change("Default=0", "Default=1");
  WriteFile(folder_of_it + "/station.rds", file_);
  const std::string before = ReadFile(folder_of_it + "/German.ini");
  LanguageData* const loaded = languageData;
  TakeLanguage(folder_of_it + "/station.rds");
  const std::vector<Row> rows = Rows(file_);
  const std::string told = ReportText({rows.at(7)});
  languageData = loaded;
  EXPECT_EQ(told.substr(0, 6), "Posten") << told;
  EXPECT_NE(told.find("noch nicht geh\u00F6rt  aus\n"), std::string::npos) << told;
  EXPECT_EQ(rows.at(7).name, "Kunstkopf");
  EXPECT_EQ(ReadFile(folder_of_it + "/German.ini"), before);
}

TEST(RadioOptions, RefuseBadUseInASentence) {
  const struct {
    std::vector<const char*> words;
    std::string wrong;
  } cases[] = {
      {{"--report", "--compare", "a.rds", "--wait", "2.5", "-"}, ""},
      {{"--judge", "a.rds"}, ""},
      {{}, ""},
      {{"--compare"}, "--compare wants a station file"},
      {{"--report", "--wait", "x"}, "--wait wants a number of seconds, not \"x\""},
      {{"--report", "--wait", "-1"}, "--wait wants a number of seconds, not \"-1\""},
      {{"--wait", "5"}, "--wait wants --report"},
      {{"a", "b"}, "there is one source, not \"a\" and \"b\""},
      {{"--quiet"}, "unknown option --quiet"},
      {{"--judge", "a.rds", "--report"}, "--judge stands alone, as it listens to nothing"},
  };
  for (const auto& c : cases) {
    Options options;
    EXPECT_EQ(ParseOptions(c.words, options), c.wrong);
  }
}

}  // namespace
}  // namespace corvalis::radio
