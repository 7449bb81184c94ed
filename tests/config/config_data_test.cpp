// The station record and its file.

#include "config/config_data.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <sstream>

#include "platform/folders.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

class ConfigDataTest : public MachineTest {
 protected:
  ~ConfigDataTest() override { Drop(); }

  // A new record from a default file of this text.
  void Load(const std::string& file) {
    Drop();
    WriteFile(ProgramFile(), file);
    configData = new ConfigData;
  }

  static void Drop() { delete std::exchange(configData, nullptr); }
};

TEST_F(ConfigDataTest, DefaultsWithoutAFile) {
  configData = new ConfigData;
  const ConfigData& c = *configData;
  EXPECT_EQ(std::tuple(c.Country(), c.Coverage(), c.ProgramNum(), c.Ecc(), c.Lic()),
            std::tuple(5, 0, 0, 0xE0, 0x15));
  EXPECT_EQ(std::tuple(c.CtOffset(), c.DatePsn(), c.HourPsn()), std::tuple(2, 8, 9));
  EXPECT_EQ(
      std::tuple(c.Satellite(), c.Burst(), c.CommPort(), c.Baudrate(), c.Parity(), c.StopBit()),
      std::tuple(true, 3, 1, 9600, "N", 2));
  EXPECT_EQ(std::tuple(c.Modem(), c.ModemTone(), c.ModemTel(), c.ModemHookOn(), c.ModemDlg()),
            std::tuple(false, true, "800,12345678", false, ""));
  EXPECT_EQ(std::tuple(c.Mono(), c.ArtificialHead(), c.Compressed(), c.StaticPty()),
            std::tuple(false, false, false, true));
  EXPECT_TRUE(c.AfMethodA() && c.PsnPagesEnable() && c.PsnPlanEnable() && c.EonEnable() &&
              c.EccEnable() && c.LicEnable() && c.PtynEnable() && c.TmcEnable());
  EXPECT_FALSE(c.GroupsEnable() || c.GroupsBEnable() || c.RadioCharacters());
  EXPECT_EQ(std::tuple(c.Tp(), c.Ta(), c.Music(), c.Pty(), c.Pi()),
            std::tuple(false, false, true, 0, 0));
  EXPECT_EQ(std::tuple(c.PresetPassword(), c.PresetNewPassword()), std::tuple("?????", "?????"));
  EXPECT_EQ(c.FullFileName(), ProgramFile());
  EXPECT_EQ(c.Drive(), PlaceOf(machine.program_folder));
  EXPECT_FALSE(std::filesystem::exists(ProgramFile()));
}

// Every key is found in the file, and comes back from the record at its place.
TEST_F(ConfigDataTest, WholeFileGoesThroughTheRecord) {
  const std::string file =
      "[CT]\r\nDate Psn Number=11\r\nHour Psn Number=12\r\nClock Time Offset=-3\r\n"
      "[PI]\r\nCountry=A\r\nCoverage=F\r\nProgram Number=FE\r\nExtended Country Code=F3\r\n"
      "Language Identification Code=7F\r\n"
      "[DI]\r\nMono=On\r\nArtificial Head=On\r\nCompressed=On\r\nStatic PTY=Off\r\n"
      "[Serial "
      "Setup]\r\nSatellite=Off\r\nBurst=10\r\nSerialPort=4\r\nBaudrate=19200\r\nParity=E\r\n"
      "StopBit=1\r\nModem=On\r\nModemTone=Off\r\nModemTel=0,123 456\r\n"
      "[RDS Setup]\r\nAF Method A=Off\r\nPSN Pages Enable=On\r\nPSN Plan Enable=Off\r\n"
      "EON Enable=Off\r\nECC Enable=Off\r\nLIC Enable=Off\r\nPTYN Enable=Off\r\nTMC Enable=Off\r\n"
      "Groups Enable=On\r\nGroups B Enable=On\r\nRadio Characters=On\r\n"
      "TP=On\r\nTA=On\r\nMusic=Off\r\nPTY=31\r\n"
      "PresetPsn=On\r\nPresetAf=Off\r\nPresetTp=On\r\nPresetRt=Off\r\nPresetIh=On\r\nPresetPi="
      "Off\r\n"
      "PresetCt=On\r\nPresetPin=Off\r\nPresetDi=On\r\nPresetTdc=Off\r\nPresetTmc=On\r\n"
      "PresetEon=Off\r\nPresetLi=On\r\nPresetLic=Off\r\nPresetEcc=On\r\nPresetPtyn=Off\r\n"
      "PresetAddress=AB1\r\nPresetNewAddress=CD2\r\n"
      "[Language]\r\nDefault=1\r\nName0=English\r\nFileName0=English.ini\r\nName1=Deutsch\r\n"
      "FileName1=Deutsch.ini\r\n";
  Load(file);
  const ConfigData& c = *configData;
  EXPECT_EQ(std::tuple(c.DatePsn(), c.HourPsn(), c.CtOffset()), std::tuple(11, 12, -3));
  EXPECT_EQ(std::tuple(c.Country(), c.Coverage(), c.ProgramNum(), c.Ecc(), c.Lic()),
            std::tuple(10, 15, 254, 0xF3, 0x7F));
  EXPECT_EQ(std::tuple(c.Mono(), c.ArtificialHead(), c.Compressed(), c.StaticPty()),
            std::tuple(true, true, true, false));
  EXPECT_EQ(std::tuple(c.PresetPassword(), c.PresetNewPassword(), c.LanguageFileName()),
            std::tuple("AB1", "CD2", "Deutsch.ini"));
  std::filesystem::remove(ProgramFile());
  configData->SetIni();
  EXPECT_EQ(ReadFile(ProgramFile()), file);
}

TEST_F(ConfigDataTest, ValuesByTheirKind) {
  const auto mono = [] { return configData->Mono(); };
  const auto country = [] { return configData->Country(); };
  const auto ecc = [] { return configData->Ecc(); };
  const auto burst = [] { return configData->Burst(); };
  const auto pi = [] { return configData->Pi(); };
  // The record held, before each line: Mono true, Country 3, Ecc 0xD1, Burst 7, Pi 70000.
  const std::tuple<const char*, std::function<int()>, int> cases[] = {
      {"[DI]\nMono=ON", mono, 1},
      {"[DI]\nMono=", mono, 0},  // present, but empty: the default
      {"[PI]\nCountry=G", country, -1},
      {"[PI]\nCountry=FFFF", country, 3},  // too large for 16 bits: what it held
      {"[PI]\nExtended Country Code=100", ecc, 0xD1},
      {"[PI]\nExtended Country Code=", ecc, 0xE0},
      {"[PI]\nExtended Country Code=0a", ecc, 10},
      {"[Serial Setup]\nBurst=ten", burst, 7},
      {"[Serial Setup]\nBurst=40000", burst, 7},
      {"[Serial Setup]\nBurst=-2", burst, -2},
      {"", burst, 3},
      {"[RDS Setup]\nPI=80000", pi, 80000},
      {"[RDS Setup]\nPI=9999999999", pi, 70000},
  };
  for (const auto& [line, field, value] : cases) {
    Load(
        "[DI]\nMono=On\n[PI]\nCountry=3\nExtended Country Code=D1\n[Serial Setup]\nBurst=7\n"
        "[RDS Setup]\nPI=70000\n");
    WriteFile(ProgramFile(), line);
    configData->GetIni();
    EXPECT_EQ(field(), value) << line;
  }
}

TEST_F(ConfigDataTest, RulesBetweenFields) {
  Load(
      "[RDS Setup]\nPSN Plan Enable=On\nPSN Pages Enable=Off\n"
      "[Serial Setup]\nSatellite=On\nModem=On\nParity=even\n");
  EXPECT_FALSE(configData->PsnPlanEnable());
  EXPECT_FALSE(configData->Modem());
  EXPECT_EQ(configData->Parity(), "e");
  configData->SetParity("odd");
  configData->SetParity("");
  EXPECT_EQ(configData->Parity(), "o");

  const std::string radio = "Radio Characters=";  // in no file that does not know it
  configData->SetIni();
  EXPECT_EQ(ReadFile(ProgramFile()).find(radio), std::string::npos);
  Load("[RDS Setup]\r\n" + radio + "no\r\n");
  configData->SetIni();
  EXPECT_NE(ReadFile(ProgramFile()).find(radio + "Off\r\n"), std::string::npos);
}

TEST_F(ConfigDataTest, Languages) {
  constexpr const char* kCustom = "Default=0\r\nName0=Custom\r\nFileName0=Language.ini\r\n";
  // How many there are, the preset, and the section after SetIni.
  const std::tuple<const char*, int, int, const char*> cases[] = {
      {"", 1, 0, kCustom},
      {"Default=1\nName1=B", 1, 0, kCustom},
      {"Default=25\nName0=A\nFileName0=a.ini", 1, 0, "Default=0\r\nName0=A\r\nFileName0=a.ini\r\n"},
      {"Default=2\nName2=C\nFileName2=c.ini", 1, 2,
       "Default=2\r\nName0=Custom\r\nFileName0=Language.ini\r\n"}};
  for (const auto& [file, count, preset, written] : cases) {
    Load(std::string("[Language]\n") + file);
    EXPECT_EQ(configData->NumIniLang(), count);
    EXPECT_EQ(configData->LanguageDflt(), preset);
    std::filesystem::remove(ProgramFile());
    configData->SetIni();
    const std::string text = ReadFile(ProgramFile());
    EXPECT_TRUE(text.ends_with(std::string("[Language]\r\n") + written)) << text;
  }
}

TEST_F(ConfigDataTest, BrandByExactComparison) {
  const std::pair<const char*, bool (ConfigData::*)() const> brands[] = {
      {"VARN", &ConfigData::Varn},   {"KOR", &ConfigData::KOR},   {"ZEL", &ConfigData::ZEL},
      {"BRENO", &ConfigData::Breno}, {"TULM", &ConfigData::Tulm}, {"PAXEN", &ConfigData::Paxen},
      {"DOX", &ConfigData::DOX}};
  for (const char* value : {"VARN", "KOR", "ZEL", "BRENO", "TULM", "PAXEN", "DOX", "kor", ""}) {
    WriteFile(machine.settings_folder + "/Firm.ini", std::string("[Firm]\r\nFirm=") + value);
    Load("");
    for (const auto& [name, is] : brands) {
      EXPECT_EQ((configData->*is)(), std::string(name) == value) << value;
    }
  }
}

TEST_F(ConfigDataTest, HostileFileLoadsWithoutHarm) {
  std::mt19937 random(7);
  std::string noise(200'000, '\0');
  for (char& c : noise) c = static_cast<char>(random());
  std::string long_lines = noise + "\r\n";
  long_lines.append(1'000'000, '[').append("\r\n[PI]\r\nCountry=").append(10'000'000, '9');
  std::vector<std::string> files{long_lines};
  // Every key of the record with every kind of wrong value.
  Load("");
  configData->SetIni();
  std::istringstream record(ReadFile(ProgramFile()));
  std::vector<std::string> names;
  for (std::string line; std::getline(record, line);)
    names.push_back(line.substr(0, line.find('=')));
  for (const char* value :
       {"", "G", "-", "99999999999999999999", "-32769", "\x01\x02\xFF", "On;Off", "1.5"}) {
    std::string& file = files.emplace_back();
    for (const std::string& name : names) {
      file += name.starts_with('[') ? name + "\n" : name + "=" + value + "\r\n";
    }
  }
  for (const std::string& file : files) {
    Load(file);
    EXPECT_GE(configData->NumIniLang(), 1);
    EXPECT_FALSE(configData->LanguageFileName().empty());
    EXPECT_LE(configData->Parity().size(), 1U);
    EXPECT_LE(configData->ModemTel().size(), 1023U);
  }
}

}  // namespace
}  // namespace corvalis::test
