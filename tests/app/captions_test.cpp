// Every caption and tip of every screen comes from its own text of the language file.

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "app/main_form.h"
#include "busy/serial_communication_form.h"
#include "busy/wait_form.h"
#include "config/conversions.h"
#include "link/serial_management.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

class CaptionsTest : public MachineTest {
 protected:
  // A language file in which each text says which one it is.
  CaptionsTest() {
    std::string file;
#define CORVALIS_TEXT(section, key, getter, preset) Add(file, section, key);
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
    WriteFile(machine.program_folder + "/Language.ini", file);
    form = std::make_unique<MainForm>();
    form->Load();
  }
  ~CaptionsTest() override { form.reset(); }

  void Add(std::string& file, const std::string& section, const std::string& key) {
    std::set<std::string>& keys = keys_[section];
    if (keys.empty()) file += "[" + section + "]\r\n";
    file += key + "=" + Unique(section, key) + "\r\n";
    keys.insert(key);
  }
  static std::string Unique(const std::string& section, const std::string& key) {
    return section + " " + key;
  }

  /// `rows`: the name of a control, the key of its caption and the key of its tip; "-" for none.
  /// All texts of the section must have a row. Captions that are in no language are not told.
  /// A tip may go on in a second line with what it is about at present.
  void Check(const Window& window, const std::string& section, const std::string& rows) {
    std::set<std::string> missing = keys_.at(section);
    std::istringstream in(rows);
    for (std::string name, caption, tip; in >> name >> caption >> tip;) {
      const Control* control = window.Find(name);
      ASSERT_NE(control, nullptr) << name;
      if (caption != "-") {
        EXPECT_EQ(control->Caption(), Unique(section, caption)) << name;
      }
      EXPECT_EQ(control->ToolTip().substr(0, control->ToolTip().find(":\n")),
                tip == "-" ? "" : Unique(section, tip))
          << name;
      missing.erase(caption);
      missing.erase(tip);
    }
    EXPECT_EQ(missing, std::set<std::string>{}) << section;
  }

  std::unique_ptr<MainForm> form;

 private:
  std::map<std::string, std::set<std::string>> keys_;
};

TEST_F(CaptionsTest, MainMenuAndBusyScreens) {
  Check(form->window, "MAIN", R"(
    RS232CButton SetupKeyMsg SetupKeyTip       ConnectionButton ConnectionKeyMsg ConnectionKeyTip
    TaPtyMsButton TAKeyMsg TAKeyTip            EditGroupsButton GroupKeyMsg GroupKeyTip
    CtTpDiPiButton ClockKeyMsg ClockKeyTip     PsnRtPinAfButton PSNKeyMsg PSNKeyTip
    EonLiButton EONKeyMsg EONKeyTip            TdcIhButton TDCKeyMsg TDCKeyTip
    NewButton NewKeyMsg NewKeyTip              OpenButton OpenKeyMsg OpenKeyTip
    SaveButton SaveKeyMsg SaveKeyTip           Text105 - FileNameBoxTip
    Drive1 - DriverBoxTip                      Dir1 - DirListBoxTip
    File1 - FileListBoxTip)");
  const SerialCommunicationForm transfer([] {});
  EXPECT_EQ(transfer.Command1.Caption(), "MESSAGE EscKeyMsg");
  EXPECT_EQ(transfer.Command1.ToolTip(), "MESSAGE EscKeyTip");
  EXPECT_EQ(TheWaitForm().WaitMessage.Caption(), "MESSAGE WaitKeyMsg");
}

TEST_F(CaptionsTest, Setup) {
  RS232CForm screen({form->window, port, [] {}, [] {}});
  screen.Load();
  Check(screen.window, "SETUP", R"(
    RdsOptionLabel RDSOptionTxtMsg RDSOptionKeyTip  RdsOptionCombo - RDSOptionKeyTip
    BurstLabel BurstTxtMsg BurstKeyTipMsg           Combo1 - BurstKeyTipMsg
    SerialLabel SerialPortTxtMsg SerialPortKeyTip   SerialCombo - SerialPortKeyTip
    BaudrateLabel BaudrateTxtMsg BaudrateKeyTip     BaudrateCombo - BaudrateKeyTip
    ParityLabel ParityTxtMsg ParityKeyTip           ParityCombo - ParityKeyTip
    StopBitLabel StopBitTxtMsg StopBitKeyTip        StopBitCombo - StopBitKeyTip
    LanguageLabel LanguageKeyMsg LanguageKeyTip     LanguageCombo - LanguageKeyTip
    Command31 AutosettingKeyMsg AutosettingKeyTip)");
}

TEST_F(CaptionsTest, WholeConfiguration) {
  ConnectionForm screen(form->window);
  screen.Load();
  Check(screen.window, "CONNECTION", R"(
    AddressLabel AddressKeyMsg AddressKeyTip      Text1 - AddressKeyTip
    NewAddressLabel NewAddressKeyMsg NewAddressKeyTip Text2 - NewAddressKeyTip
    Command4 SendAddressMsg SendAddressTip        Command5 SendNewAddressMsg SendNewAddressTip
    Check1 PIKeyMsg PIKeyTip                      EccCheck ECCKeyMsg ECCKeyTip
    PsnCheck PSNKeyMsg PSNKeyTip                  Check8 DIKeyMsg DIKeyTip
    Check2 AFListKeyMsg AFListKeyTip              Check11 TPKeyMsg TPKeyTip
    PtynCheck PTYNKeyMsg PTYNKeyTip               LicCheck LICKeyMsg LICKeyTip
    Check3 RTKeyMsg RTKeyTip                      Check5 CTKeyMsg CTKeyTip
    Check4 PINKeyMsg PINKeyTip                    Check6 TDCKeyMsg TDCKeyTip
    Check7 IHKeyMsg IHKeyTip                      EonCheck EONKeyMsg EONKeyTip
    LiCheck LIKeyMsg LIKeyTip                     TmcCheck TMCKeyMsg TMCKeyTip
    PSNPagesCheck PSNPagesKeyMsg PSNPagesKeyTip   AFAOption AFAKeyMsg AFAKeyTip
    AFBOption AFBKeyMsg AFBKeyTip                 Command1 ReadConfigKeyMsg ReadConfigKeyTip
    Command11 SendConfigKeyMsg SendConfigKeyTip
    Command12 SendBurstConfigKeyMsg SendBurstConfigKeyTip)");
}

TEST_F(CaptionsTest, OnAirScreen) {
  TaPtyMsForm screen(form->window);
  screen.Load();
  Check(screen.window, "TA-PTY-MS", R"(
    TaLabel - TrafficAnnouncementKeyTip   Command2 TrafficAnnouncementKeyMsg TrafficAnnouncementKeyTip
    PtyLabel - ProgramTypeComboTip        Command1 ProgramTypeKeyMsg ProgramTypeKeyTip
    MsLabel - MusicSpeechKeyTip           Command6 MusicSpeechKeyMsg MusicSpeechKeyTip
    Combo1 - ProgramTypeComboTip          Command8 ReadKeyMsg ReadKeyTip
    Check1 MusicKeyMsg -                  Check2 SpeechKeyMsg -
    Check3 ONKeyMsg -                     Check4 OFFKeyMsg -)");
}

TEST_F(CaptionsTest, GroupSequence) {
  EditGroupsForm screen(form->window);
  screen.Load();
  std::string rows = R"(
    Command1 SendAllKeyMsg SendAllKeyTip            Command11 SendOneKeyMsg SendOneKeyTip
    Command12 SendAllBurstKeyMsg SendAllBurstKeyTip Command13 ReadAllKeyMsg ReadAllKeyTip
    Command2 ReadOneKeyMsg ReadOneKeyTip)";
  for (int group = 0; group < kGroups; ++group) {
    const std::string number = std::to_string(group);
    for (const char* control : {"Check1", "Text1", "VScroll2"}) {
      rows.append(" ").append(control).append("(" + number + ") - TimeKey" + number + "Tip");
    }
  }
  Check(screen.window, "EDIT GROUP", rows);
}

TEST_F(CaptionsTest, NamesAndTexts) {
  PsnRtPinAfForm screen(form->window);
  screen.Load();
  Check(screen.window, "PSN", R"(
    Text10 PageKeyMsg PageKeyTip                 PageNumberText - PageKeyTip
    PageNumberScroll - PageKeyTip                Command24 ScrollTextMsg ScrollTextTip
    Text11 - ScrollTextTip
    Command19 ReadOneKeyMsg ReadOneKeyTip        Command20 ReadAllKeyMsg ReadAllKeyTip
    Command17 SendOneListKeyMsg SendOneListKeyTip
    Command16 SendAllListKeyMsg SendAllListKeyTip
    Command18 SendAllBurstKeyMsg SendAllBurstKeyTip
    ReadPsnActiveButton ReadActiveKeyMsg ReadActiveKeyTip
    SendPsnActiveButton SendActiveKeyMsg SendActiveKeyTip
    SendPsnActiveBurstButton SendActiveBurstKeyMsg SendActiveBurstKeyTip)");
  Check(screen.window, "PSN PLAN", R"(
    ReadPlanCommand ReadOneKeyMsg ReadOneKeyTip  ReadAllPlanCommand ReadAllKeyMsg ReadAllKeyTip
    SendPlanCommand SendOneListKeyMsg SendOneListKeyTip
    SendAllPlanCommand SendAllListKeyMsg SendAllListKeyTip
    SendBurstPlanCommand SendAllBurstKeyMsg SendAllBurstKeyTip)");
  Check(screen.window, "RT", R"(
    Command9 ReadKeyMsg ReadKeyTip               Command22 ReadAllKeyMsg ReadAllKeyTip
    Command14 SendOneKeyMsg SendOneKeyTip        Command21 SendAllKeyMsg SendAllKeyTip
    Command10 SendAllBurstKeyMsg SendAllBurstKeyTip)");
  std::string boxes = R"(
    AlternativeFreqLabel AlternativeFreqMsg -    Command13 ReadKeyMsg ReadKeyTip
    Command11 SendKeyMsg SendKeyTip              Command12 SendBurstKeyMsg SendBurstKeyTip)";
  for (int i = 0; i < 25; ++i) {
    boxes += " Text39(" + std::to_string(i) + ") - AlternativeFreqTip" + Digits(i, 2);
  }
  Check(screen.window, "AF Method A", boxes);
  boxes = R"(
    ListNrLabel ListNrKeyMsg ListNrKeyTip        Text1 - ListNrKeyTip
    VScroll1 - ListNrKeyTip                      Combo2 - DescriptionKeyTip
    DescriptionLabel DescriptionKeyMsg DescriptionKeyTip
    MainFreqLabel MainFreqKeyMsg FreqTip00       AltFreqLabel AltFreqKeyMsg -
    Command4 ReadKeyMsg ReadKeyTip               Command5 ReadAllKeyMsg ReadAllKeyTip
    Command2 SendOneListKeyMsg SendOneListKeyTip Command1 SendAllListKeyMsg SendAllListKeyTip
    Command3 SendAllBurstKeyMsg SendAllBurstKeyTip)";
  for (int i = 0; i < 13; ++i) {
    boxes += " Text2(" + std::to_string(i) + ") - FreqTip" + Digits(i, 2);
  }
  Check(screen.window, "AF METHOD B", boxes);
  Check(screen.window, "PIN", R"(
    Command6 ReadKeyMsg ReadKeyTip               Command23 ReadAllKeyMsg ReadAllKeyTip
    Command8 SendOneKeyMsg SendOneKeyTip         Command15 SendAllKeyMsg SendAllKeyTip
    Command7 SendAllBurstKeyMsg SendAllBurstKeyTip)");
  Check(screen.window, "PTYN", R"(
    PtyLabel PTYKeyMsg PTYKeyTip                 PtyCombo - PTYKeyTip
    PtynLabel PTYNameKeyMsg PTYNameKeyTip        PtynText - PTYNameKeyTip
    ReadPtynCommand ReadOneKeyMsg ReadOneKeyTip  ReadPtynAllCommand ReadAllKeyMsg ReadAllKeyTip
    SendPtynCommand SendOneKeyMsg SendOneKeyTip
    SendPtynAllCommand SendAllKeyMsg SendAllKeyTip
    SendPtynBurstCommand SendAllBurstKeyMsg SendAllBurstKeyTip)");
}

TEST_F(CaptionsTest, IdentityScreen) {
  CtTpDiPiForm screen(form->window);
  screen.Load();
  // The tabs have controls of one name, but never of the same text.
  Check(screen.window, "CLOCK TIME", R"(
    HourMinLabel HourMinKeyMsg HourMinKeyTip      Text1 - HourMinKeyTip
    VScroll2 - HourMinKeyTip                      VScroll1 - HourMinKeyTip
    CtOffsetLabel CTOffSetKeyMsg CTOffSetKeyTip   Text9 - CTOffSetKeyTip
    VScroll6 - CTOffSetKeyTip
    DatePsnLabel DatePSNKeyMsg DatePSNKeyTip      Text7 - DatePSNKeyTip
    HourPsnLabel HourPSNKeyMsg HourPSNKeyTip      Text8 - HourPSNKeyTip
    Command1 ReadKeyMsg ReadKeyTip                Command2 SendKeyMsg SendKeyTip)");
  Check(screen.window, "TP-DI", R"(
    Check1 TrafficProgramKeyMsg TrafficProgramKeyTip
    Check10 NoTrafficProgramKeyMsg NoTrafficProgramKeyTip
    Check2 MonoKeyMsg MonoKeyTip                        Check3 StereoKeyMsg StereoKeyTip
    Check4 ArtificialHeadKeyMsg ArtificialHeadKeyTip
    Check5 NoArtificialHeadKeyMsg NoArtificialHeadKeyTip
    Check6 CompressedKeyMsg CompressedKeyTip            Check7 NoCompressedKeyMsg NoCompressedKeyTip
    Check8 StaticPTYKeyMsg StaticPTYKeyTip              Check9 DynamicPTYKeyMsg DynamicPTYKeyTip
    Command3 ReadKeyMsg ReadKeyTip                      Command4 SendKeyMsg SendKeyTip
    Command5 SendBurstKeyMsg SendBurstKeyTip)");
  Check(screen.window, "PI-ECC-LIC", R"(
    CountryLabel CountryKeyMsg CountryKeyTip            CountryCombo - CountryKeyTip
    CoverageLabel CoverageKeyMsg CoverageKeyTip         CoverageCombo - CoverageKeyTip
    IDNumberLabel IDNumberKeyMsg IDNumberKeyTip         IDNumberText - IDNumberKeyTip
    VScroll3 - IDNumberKeyTip
    PiLabel - PIKeyTip      PiText - PIKeyTip           EccLabel - ECCKeyTip   EccText - ECCKeyTip
    LicLabel - LicKeyTip    LicCombo - LicKeyTip
    CountryListLabel CountryListKeyTip CountryListKeyTip CountryList - CountryListKeyTip
    ReadPiCommand ReadPIKeyMsg ReadPIKeyTip             SendPiCommand SendPIKeyMsg SendPIKeyTip
    SendPiBurstCommand SendPIBurstKeyMsg SendPIBurstKeyTip
    ReadEccCommand ReadECCKeyMsg ReadECCKeyTip          SendEccCommand SendECCKeyMsg SendECCKeyTip
    SendEccBurstCommand SendECCBurstKeyMsg SendECCBurstKeyTip
    ReadLicCommand ReadLICKeyMsg ReadLICKeyTip          SendLicCommand SendLICKeyMsg SendLICKeyTip
    SendLicBurstCommand SendLICBurstKeyMsg SendLICBurstKeyTip)");
}

TEST_F(CaptionsTest, OtherNetworks) {
  EonLiForm screen(form->window);
  screen.Load();
  std::string rows = R"(
    EonListLabel - ListNrKeyTip                  EonListText - ListNrKeyTip
    EonListScroll - ListNrKeyTip                 EonEnableCheck EnableKeyMsg -
    EonPsnLabel - PsnKeyTip                      EonPsnText - PsnKeyTip
    EonPiLabel - PiKeyTip                        EonPiText - PiKeyTip
    EonPinLabel - PinKeyTip                      EonPinText - PinKeyTip
    EonPtyLabel - PtyKeyTip                      EonPtyCombo - PtyKeyTip
    EonAfALabel AfAKeyMsg -                      EonAfBLabel AfBKeyMsg -
    EonAfAText(0) - EonAfAKeyTip                 EonAfAText(1) - EonAfAKeyTip
    EonAfBAmLabel AfBAMKeyMsg EonAfBAMKeyTip     EonAfBText(9) - EonAfBAMKeyTip
    ReadEonCommand ReadOneListKeyMsg ReadOneListKeyTip
    ReadEonAllCommand ReadAllListKeyMsg ReadAllListKeyTip
    SendEonCommand SendOneListKeyMsg SendOneListKeyTip
    SendEonAllCommand SendAllListKeyMsg SendAllListKeyTip
    SendEonBurstCommand SendAllBurstKeyMsg SendAllBurstKeyTip)";
  for (int i = 0; i < 9; ++i) {
    rows += " EonAfBText(" + std::to_string(i) +
            (i % 2 == 0 ? ") - EonAfBMainKeyTip" : ") - EonAfBKeyTip");
  }
  Check(screen.window, "EON", rows);
  Check(screen.window, "LI", R"(
    LiLaCheck LaKeyMsg -                         LiEgiCheck EgiKeyMsg -
    LiILCheck IlKeyMsg -                         LiLsnLabel LsnKeyMsg -
    ReadLiCommand ReadKeyMsg ReadKeyTip          SendLiCommand SendKeyMsg SendKeyTip
    SendLiBurstCommand SendBurstKeyMsg SendBurstKeyTip)");
  Check(screen.window, "TA EON", R"(
    ReadTaEonCommand ReadOneKeyMsg ReadOneKeyTip ReadTaEonAllCommand ReadAllKeyMsg ReadAllKeyTip
    SendTaEonCommand SendOneKeyMsg SendOneKeyTip
    SendTaEonAllCommand SendAllListKeyMsg SendAllListKeyTip
    SendTaEonAllBurstCommand SendAllBurstKeyMsg SendAllBurstKeyTip)");
}

TEST_F(CaptionsTest, DataChannels) {
  TdcIhForm screen(form->window);
  screen.Load();
  Check(screen.window, "TDC", R"(
    Command2 ReadOneKeyMsg ReadOneKeyTip         Command3 ReadAllKeyMsg ReadAllKeyTip
    Command5 SendOneKeyMsg SendOneKeyTip         Command6 SendAllKeyMsg SendAllKeyTip
    Command4 SendAllBurstKeyMsg SendAllBurstKeyTip)");
  std::string rows = R"(
    Combo1 - ComboKeyTip                         RichTextBox1 - WorksheetKeyTip
    Drive1 - DriveKeyTip                         Dir1 - DirKeyTip
    File1 - PageNameKeyTip                       Text105 - PageNameKeyTip
    Command15 ReadPageKeyMsg ReadPageKeyTip      Command16 WritePageKeyMsg WritePageKeyTip
    Command8 NewKeyMsg NewKeyTip                 Command13 ReadSelKeyMsg ReadSelKeyTip
    Command7 ReadAllKeyMsg ReadAllKeyTip         Command11 SendSelKeyMsg SendSelKeyTip
    Command1 SendAllKeyMsg SendAllKeyTip         Command12 SendAllBurstKeyMsg SendAllBurstKeyTip)";
  for (int i = 0; i < IhTab::kBoxes; ++i) {
    const std::string key = " PageKey" + Digits(i, 2);
    rows.append(" Check1(" + std::to_string(i) + ")").append(key + "Msg").append(key + "Tip");
  }
  Check(screen.window, "IH", rows);
  Check(screen.window, "TMC System", R"(
    LtnText - LtnListNrKeyTip                    LtnVScroll - LtnListNrKeyTip
    SidText - SidListNrKeyTip                    SidVScroll - SidListNrKeyTip
    InternationalCheck InternationalKeyMsg -     NationalCheck NationalKeyMsg -
    RegionalCheck RegionalKeyMsg -               UrbanCheck UrbanKeyMsg -
    ReadTmcSystemCommand ReadKeyMsg ReadKeyTip   SendTmcSystemCommand SendKeyMsg SendKeyTip
    SendTmcSystemBurstCommand SendBurstKeyMsg SendBurstKeyTip)");
  Check(screen.window, "TMC", R"(
    ReadTmcCommand ReadOneKeyMsg ReadOneKeyTip   ReadAllTmcCommand ReadAllKeyMsg ReadAllKeyTip
    SendTmcCommand SendOneKeyMsg SendOneKeyTip   SendAllTmcCommand SendAllKeyMsg SendAllKeyTip
    SendAllBurstTmcCommand SendAllBurstKeyMsg SendAllBurstKeyTip)");
}

}  // namespace
}  // namespace corvalis::test
