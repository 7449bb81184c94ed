// What the lists of other networks and data channels make of the file and of the line.

#include <gtest/gtest.h>

#include <functional>

#include "config/ini_management.h"
#include "networks/eon_li_form.h"
#include "networks/networks_screen.h"

namespace corvalis::test {
namespace {

std::string Times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

const std::string kZeros20(20, '0');
const std::string kZeros32(32, '0');

class NetworkListsTest : public NetworksTest<EonLiForm> {
 protected:
  void StartOn(const std::string& file) {
    if (configData == nullptr) {
      Start(file, {}, false);
    } else {
      WriteFile(ProgramFile(), file);
      configData->GetIni();
    }
    LoadLists();
  }
  void Store() {
    const ProfileStore::Series series(profiles);
    Lists::SetIni();
  }
  // The body of the one frame that `send` writes.
  std::string BodyOf(const std::function<void()>& send) {
    port.written.clear();
    send();
    if (port.written.size() != 1) return "no one frame";
    const Bytes& frame = port.written.front();
    return {frame.begin() + 3, frame.end() - 2};
  }
};

// Much of this is meant although one side does not undo the other.
TEST_F(NetworkListsTest, ValuesAreReadAndWritten) {
  struct Case {
    const char *section, *key;
    std::string read, written;
  };
  const std::string ends = Times(12, "0.0;");
  const Case cases[] = {
      {"EON", "MaxEonNum", "3", "3"},  // stays as it is: another key is written
      {"EON", "MaxListNum", "5", "10"},
      {"TMC", "MaxListNum", "300", "256"},  // as many as a frame has numbers
      {"EON", "Enable0", "On", "On"},
      {"EON", "Enable0", "on", "Off"},  // exactly
      {"EON", "Psn9", "", "EON PSN"},
      {"EON", "Psn9", "A NAME TOO LONG", "A NAME T"},
      {"EON", "Pi0", "", "5158"},
      {"EON", "Pi0", "00a1", "A1"},
      {"EON", "Pi0", "x", "0"},
      {"EON", "Pin0", "1234", "4D2"},  // decimal in, hexadecimal out
      {"EON", "Pin0", "1A2B", "1"},
      {"EON", "Pin0", "ABCD", "0"},
      {"EON", "Pty0", "19", "25"},  // hexadecimal in, decimal out
      {"EON", "Pty0", "31", "49"},
      {"EON", "Pty0", "", "00"},
      {"EON", "Pty0", "100", "00"},
      {"EON", "Tp0", "ON", "Off"},
      {"EON", "Ta3", "On", "On"},
      {"EON", "AfMethodA0", "87.55;x", "087.6;000.0;"},
      {"EON", "AfMethodB0", "87.5;1;2;3;4;5;6;7;8;1602;9",
       "087.5;001.0;002.0;003.0;004.0;005.0;006.0;007.0;008.0;1602;"},
      {"LI", "Lsn", "", "501"},
      {"LI", "Lsn", "0a1", "A1"},
      {"LI", "Lsn", "1000", "501"},  // has no room
      {"LI", "Egi", "On", "On"},
      {"LI", "La", "ON", "Off"},
      {"LI", "Il", "On", "On"},
      {"TDC0", "Ch00", "", "000;Off;" + kZeros20 + ";"},
      {"TDC0", "Ch99", "a1;oN;101", "0A1;On;101" + std::string(17, ' ') + ";"},
      {"TDC0", "Ch99", ";On;1", "000;On;1" + std::string(19, ' ') + ";"},
      {"TDC0", "Ch99", "x;On;1", "FFF;On;1" + std::string(19, ' ') + ";"},  // letters are -1
      {"TDC0", "Ch99", " A1 ;On;1", "0A1;On;1" + std::string(19, ' ') + ";"},
      {"TDC", "Ch01", "", "Off;" + kZeros32 + ";"},
      {"TDC", "Ch05", "Off", "Off;" + std::string(32, ' ') + ";"},
      {"TDC", "Ch31", "on;" + std::string(40, '1'), "On;" + std::string(32, '1') + ";"},
      {"Ih Pages", "Page Count", "20;", "14"},
      {"Ih Pages", "Page Count", "7;9", "07"},
      {"TMC", "MaxListNum", "3", "3"},
      {"TMC", "Ltn", "65", "01"},
      {"TMC", "Sid", "x", "00"},
      {"TMC", "Urban", "On", "On"},
      {"TMC", "National", "on", "Off"},
      {"TMC", "Msg00", "", "0000;000;0;Off;0;Off;0;"},
      // The location is read as hexadecimal; repetitions come back as none.
      {"TMC", "Msg09", "1234;2047;7;On;7;On;15;", "4660;2047;7;On;7;On;0;"},
      {"TMC", "Msg09", "x; 9 ; 7;On;0;On;0;", "-0001;009;7;On;0;On;0;"},
      {"TMC", "Msg09", "fFfFf;x;A;on;300;ON;On;", "1048575;000;10;Off;0;Off;0;"},
      {"TMC", "Msg09", "", "0000;000;0;Off;0;Off;0;"}};
  for (const Case& one : cases) {
    SCOPED_TRACE(std::string(one.key) + "=" + one.read);
    StartOn(std::string(kSatellite) + "[" + one.section + "]\n" + one.key + "=" + one.read + "\n");
    Store();
    EXPECT_EQ(ReadIniKey(one.section, one.key),
              one.written.substr(0, one.written.find_last_not_of(' ') + 1));
  }
}

TEST_F(NetworkListsTest, AnotherFileLeavesNothingOfTheOneBefore) {
  StartOn(std::string(kSatellite) + "[Ih Pages]\nPage02=7;A;B;C\n");
  // Neither where the other file says nothing nor where it says what can't be converted.
  for (const std::string file : {"[LI]\nLsn=x\n[TMC]\nLtn=x\n[TDC0]\nCh05=100000;On;1\n"
                                 "[Ih Pages]\nPage02=x;;;none.txt;\n",
                                 ""}) {
    eonData->SetTa(true, 0);
    eonData->SetPi(1, 0);
    eonData->SetAfA(88, 0, 0);
    liData->SetLsn(1);
    liData->SetLa(true);
    tdc0Data->SetAddress(5, 1);
    tdc0Data->SetActive(5, true);
    tdcData->SetActive(5, true);
    ihData->SetPage(2, "OLD");
    tmcData->SetLtn(9);
    tmcData->SetUrban(true);
    tmcData->SetEvents(0, 5);
    const auto stored = [&](const std::function<void()>& load) {
      WriteFile(ProgramFile(), kSatellite + file);
      configData->GetIni();
      load();
      Store();
      return ReadFile(ProgramFile()) + ihData->Page(2);
    };
    const std::string again = stored([] { Lists::GetIni(); });
    EXPECT_EQ(again, stored([this] { LoadLists(); }));
  }
}

TEST_F(NetworkListsTest, TheCoderIsAskedForItsCountsWhereItCanAnswer) {
  struct Case {
    const char* setup;
    bool hook, eon, ih, tmc;
  };
  const Case cases[] = {
      {"[RDS Setup]\nEON Enable=On\nTMC Enable=On\n", false, true, true, true},
      {"[RDS Setup]\nEON Enable=Off\nTMC Enable=Off\n", false, false, true, false},
      {"Modem=On\n[RDS Setup]\nEON Enable=Off\nTMC Enable=Off\n", true, true, true, true},
      {"Modem=On\n[RDS Setup]\nEON Enable=On\nTMC Enable=On\n", false, false, false, false}};
  for (const Case& one : cases) {
    SCOPED_TRACE(one.setup);
    if (configData == nullptr) {
      Start(std::string(kLocal) + one.setup);
      Open();
    } else {
      WriteFile(ProgramFile(), std::string(kLocal) + one.setup);
      configData->GetIni();
    }
    configData->SetModemHookOn(one.hook);
    LoadLists();
    EXPECT_EQ(eonData->MaxListNum(), one.eon ? 3 : 10);
    EXPECT_EQ(ihData->PagesCount(), one.ih ? 3 : 14);
    EXPECT_EQ(tmcData->MaxListNum(), one.tmc ? 3 : 10);
  }
}

TEST_F(NetworkListsTest, ACoderThatFallsSilentHasTheListsOfOtherNetworksItHad) {
  Start(std::string(kLocal) + "[RDS Setup]\nEON Enable=On\nTMC Enable=On\n");
  Open();
  LoadLists();
  port.line = nullptr;
  Lists::GetIni();
  EXPECT_EQ(eonData->MaxListNum(), 3);
  EXPECT_EQ(tmcData->MaxListNum(), 10);
  LinkOpen = false;
  Lists::GetIni();
  EXPECT_EQ(eonData->MaxListNum(), 10);
}

TEST_F(NetworkListsTest, FramesCarryTheItems) {
  StartOn(std::string(kSatellite) +
          "[EON]\nPsn1=OTHER\nPi1=ABCD\nPin1=4660\nPty1=1F\nTp1=On\nEnable1=On\n"
          "AfMethodA1=87.5;107.9\nAfMethodB1=87.6;0;0;0;0;0;0;0;107.9;1602\nAfMethodA2=300;0\n"
          "[LI]\nLsn=A1\nLa=On\n[TMC]\nLtn=1\nSid=63\nUrban=On\nMsg02=fffff;2047;A;On;7;Off;0;\n"
          "[TDC0]\nCh00=FFF;On;" +
          std::string(20, '1') +
          ";\nCh01=00A;Off; ;\nCh99=1;On;101;\n"
          "[TDC]\nCh01=On;" +
          std::string(32, '1') + ";\nCh31=Off;\n");
  Open();
  tmcData->SetRepetition(0, 15);
  tmcData->SetRepetition(1, 22);
  tmcData->SetLocation(1, -1);
  const std::pair<std::function<void()>, std::string> cases[] = {
      {[] { eonData->SetOneRds(0); }, "EON PSN 00000000" + Times(11, "CD") +
                                          "00"
                                          "51580"},
      {[] { eonData->SetOneRds(1); },
       "OTHER   101F1234"
       "00CC"
       "01" +
           Times(7, "CD") +
           "CC"
           "87"
           "ABCD1"},
      {[] { eonData->SetOneRds(2); }, "EON PSN 00000000" + Times(11, "CD") +
                                          "00"
                                          "51580"},
      {[] { eonData->SetTaRds(1); }, "0"},
      {[] { liData->SetOneRds(); }, "1000A1"},
      {[] { tdc0Data->SendOneRds(0); }, "1FFFFFFFF"},
      {[] { tdc0Data->SendOneRds(1); }, "000A00000"},  // a blank is no bit: it goes as 0
      {[] { tdc0Data->SendOneRds(99); }, "1001A0000"},
      {[] { tdcData->SendOneRds(0); }, "1FFFFFFFF"},
      {[] { tdcData->SendOneRds(30); }, "000000000"},
      {[] { tmcData->SetOneSystemRds(); }, "013F0001"},
      {[] { tmcData->SetOneRds(0); }, "00000000000F"},
      {[] { tmcData->SetOneRds(1); }, "000FFFF0000F"},  // what was read as a letter is that letter
      {[] { tmcData->SetOneRds(2); }, "7FFFFFF170A0"}};
  for (const auto& [send, body] : cases) EXPECT_EQ(BodyOf(send), body);
  tdc0Data->SetAddress(1, -1);  // as a bad answer leaves it
  EXPECT_EQ(BodyOf([] { tdc0Data->SendOneRds(1); }), "0FFF00000");
  eonData->SetPi(-1, 0);
  eonData->SetPin(-1, 0);
  EXPECT_EQ(BodyOf([] { eonData->SetOneRds(0); }),
            "EON PSN 0000FFFF" + Times(11, "CD") + "00FFFF0");
  // The numbers of the channels: 0 stands for two rows, 31 for none.
  port.written.clear();
  for (const std::int16_t row : std::initializer_list<std::int16_t>{0, 1, 99})
    tdc0Data->SendOneRds(row);
  for (const std::int16_t row : std::initializer_list<std::int16_t>{0, 30})
    tdcData->SendOneRds(row);
  std::vector<int> numbers;
  for (const Bytes& frame : port.written) numbers.push_back(frame[2]);
  EXPECT_EQ(numbers, (std::vector<int>{0, 32, 130, 0, 30}));
}

TEST_F(NetworkListsTest, FrequenciesOfOtherNetworksAreCoded) {
  StartOn(kSatellite);
  Open();
  const std::tuple<float, int, const char*> cases[] = {
      {0.F, 9, "00"},    {153.F, 9, "01"},  {279.F, 9, "0F"}, {531.F, 9, "10"}, {1602.F, 9, "87"},
      {300.F, 9, "00"},  {152.4F, 9, "00"}, {0.F, 0, "CD"},   {87.5F, 0, "00"}, {87.6F, 0, "01"},
      {107.9F, 8, "CC"}, {50.F, 8, "CD"},   {113.1F, 0, "CD"}};
  for (const auto& [freq, index, code] : cases) {
    eonData->SetAfB(freq, 0, static_cast<std::int16_t>(index));
    const std::string body = BodyOf([] { eonData->SetOneRds(0); });
    EXPECT_EQ(body.substr(20 + 2 * static_cast<std::size_t>(index), 2), code) << freq;
  }
}

TEST_F(NetworkListsTest, AnswersFillTheItems) {
  Start(kLocal);
  Open();
  LoadLists();
  Hold(0x16,
       "NEWNAME X1"
       "1F"
       "00FF"
       "00CD"
       "CC"
       "01"
       "CDCDCDCDCDCDCD"
       "88"
       "1ABC"
       "1",
       2);
  eonData->SetAfA(99.F, 2, 0);
  eonData->GetOneRds(2);
  EXPECT_EQ(eonData->Psn(2), "NEWNAME ");
  EXPECT_EQ(std::tuple(eonData->Tp(2), eonData->Ta(2), eonData->Enable(2)),
            std::tuple(false, true, true));
  EXPECT_EQ(std::tuple(eonData->Pty(2), eonData->Pin(2), eonData->Pi(2)),
            std::tuple(0x1F, 0xFF, 0x1ABC));
  EXPECT_EQ(std::tuple(eonData->AfA(2, 0), eonData->AfA(2, 1), eonData->AfB(2, 0),
                       eonData->AfB(2, 1), eonData->AfB(2, 2), eonData->AfB(2, 9)),
            std::tuple(87.5F, 0.F, 107.9F, 87.6F, 0.F, 0.F));
  for (const auto& [code, khz] : {std::pair{"00", 0.F},
                                  {"01", 153.F},
                                  {"0F", 279.F},
                                  {"10", 531.F},
                                  {"87", 1602.F},
                                  {"88", 0.F}}) {
    Hold(0x16, "NEWNAME 01000000" + Times(11, "CD") + code + "51580", 2);
    eonData->SetAfB(1.F, 2, 9);
    eonData->GetOneRds(2);
    EXPECT_EQ(eonData->AfB(2, 9), khz) << code;
  }
  Hold(0x18, "0", 2);
  eonData->GetTaRds(2);
  EXPECT_FALSE(eonData->Ta(2));
  Hold(0x1B, "1010A1");
  liData->GetOneRds();
  EXPECT_EQ(std::tuple(liData->La(), liData->Egi(), liData->Il(), liData->Lsn()),
            std::tuple(true, false, true, 0xA1));
  Hold(0x11, "10A112345", 32);
  tdc0Data->GetOneRds(1);
  EXPECT_EQ(std::tuple(tdc0Data->Address(1), tdc0Data->Command(1), tdc0Data->Active(1)),
            std::tuple(0xA1, "00010010001101000101", true));
  Hold(0x11, "1F000000F", 30);
  tdcData->GetOneRds(30);
  EXPECT_EQ(tdcData->Command(30), "11110000000000000000000000001111");
  Hold(0x21, "0A3F0101");
  tmcData->GetOneSystemRds();
  EXPECT_EQ(std::tuple(tmcData->Ltn(), tmcData->Sid(), tmcData->International(),
                       tmcData->National(), tmcData->Regional(), tmcData->Urban()),
            std::tuple(10, 63, false, true, false, true));
  Hold(0x22, "7FFFFFF1707F", 1);
  tmcData->GetOneRds(1);
  EXPECT_EQ(std::tuple(tmcData->Events(1), tmcData->Location(1), tmcData->Direction(1),
                       tmcData->Extent(1), tmcData->Diversion(1), tmcData->Duration(1)),
            std::tuple(2047, 65535, true, 7, false, 7));
  // A letter comes back as its distance from "0". That is meant.
  EXPECT_EQ(tmcData->Repetition(1), 22);
}

TEST_F(NetworkListsTest, AFailedReadChangesNothingButAChannel) {
  Start(kLocal, {}, false);
  LoadLists();
  eonData->SetPsn("KEPT", 0);
  eonData->SetTa(true, 0);
  liData->SetLsn(7);
  tdc0Data->SetCommand(0, "1");
  tdcData->SetActive(0, true);
  tmcData->SetLtn(9);
  tmcData->SetEvents(0, 5);
  ihData->SetPage(0, "KEPT");
  eonData->GetOneRds(0);
  eonData->GetTaRds(0);
  liData->GetOneRds();
  tdc0Data->GetOneRds(0);
  tdcData->GetOneRds(0);
  tmcData->GetOneSystemRds();
  tmcData->GetOneRds(0);
  ihData->GetOneRds(0);
  EXPECT_EQ(Boxes().size(), 8U);
  EXPECT_EQ(eonData->Psn(0), "KEPT    ");
  EXPECT_TRUE(eonData->Ta(0));
  EXPECT_EQ(liData->Lsn(), 7);
  EXPECT_EQ(tdc0Data->Command(0)[0], '1');
  EXPECT_EQ(tdcData->Command(0), std::string(32, ' '));  // meant
  EXPECT_FALSE(tdcData->Active(0));
  EXPECT_EQ(tmcData->Ltn(), 9);
  EXPECT_EQ(tmcData->Events(0), 5);
  EXPECT_EQ(ihData->Page(0).substr(0, 5), "KEPT ");
}

}  // namespace
}  // namespace corvalis::test
