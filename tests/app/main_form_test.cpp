// The main menu from start to end, with the Coder in memory.

#include <gtest/gtest.h>

#include "app/main_form_fixture.h"

namespace corvalis::test {
namespace {

TEST_F(MainFormTest, StartOnALocalLink) {
  WriteFile(machine.settings_folder + "/Firm.ini", "[Firm]\r\nFirm=KOR\r\n");
  Run("[Serial Setup]\nSatellite=Off\nBaudrate=4800\nParity=E\nStopBit=1\nSerialPort=2\n");
  EXPECT_EQ(form->window.Caption(),
            "  Main Menu                                 -CORVALIS-        V2.02.60724.1");
  EXPECT_EQ(port.Settings(), "4800,E,8,1");
  EXPECT_EQ(port.CommPort(), 2);
  EXPECT_EQ(Codes(), kEnqAndCounts);
  EXPECT_TRUE(LinkOpen);
  EXPECT_EQ(form->Text105.Text(), "corvalis.rds");
  EXPECT_TRUE(form->marks.Logo_KOR.Visible() && form->Text_KOR.Visible());
  EXPECT_FALSE(form->Timer1.Enabled());
}

TEST_F(MainFormTest, StartByKindOfLink) {
  // What is written, whether the link is open, and the boxes, with nobody there.
  const std::tuple<const char*, std::size_t, bool, std::size_t> cases[] = {
      {"", 1, true, 0}, {kLocal, 1, false, 1}, {kModem, 0, true, 0}};
  port.answer = [](const Bytes&) { return Bytes{}; };
  dialogs.Shown = [] { EXPECT_TRUE(TheWaitForm().window.Visible()); };
  for (const auto& [file, written, open, boxes] : cases) {
    port.written.clear();
    dialogs.boxes.clear();
    Run(file);
    EXPECT_EQ(port.written.size(), written);
    EXPECT_EQ(LinkOpen, open);
    EXPECT_EQ(dialogs.boxes.size(), boxes);
    EXPECT_TRUE(form->window.Enabled());
  }
}

TEST_F(MainFormTest, AWorkingScreenLivesOnAndKeepsTheMenuDisabledWhileItIsOpen) {
  Run("");
  form->CtTpDiPiButton.Press();
  CtTpDiPiForm* first = form->OpenedCtTpDiPi();
  EXPECT_FALSE(form->window.Enabled());
  first->window.Close();
  EXPECT_TRUE(form->window.Enabled());
  form->CtTpDiPiButton.Press();
  EXPECT_EQ(form->OpenedCtTpDiPi(), first);
  EXPECT_TRUE(first->window.Visible());
}

TEST_F(MainFormTest, GroupsFollowTheFile) {
  const std::string other = machine.program_folder + "/other.rds";
  WriteFile(other, "[Groups]\nGroup05B=6;On\n");
  Run("[RDS Setup]\nGroups Enable=On\n[Groups]\nGroup03A=4;On\n");
  EXPECT_TRUE(form->EditGroupsButton.Enabled());
  EXPECT_TRUE(groupsData->Active(3));

  OpenFile("other.rds");
  EXPECT_FALSE(form->EditGroupsButton.Enabled());
  groupsData->SetActive(0, true);
  form->SaveButton.Press();
  EXPECT_EQ(profiles.Read(other, "Groups", "Group00A"), "00;On");

  form->NewButton.Press();
  EXPECT_EQ(groupsData->Repetitions(3), 4);
  EXPECT_FALSE(groupsData->Active(0));
  EXPECT_FALSE(form->EditGroupsButton.Enabled());  // whatever the default file says
  OpenFile("corvalis.rds");
  EXPECT_TRUE(form->EditGroupsButton.Enabled());
}

TEST_F(MainFormTest, SaveWritesUnderTheNameInTheBox) {
  Run("");
  const std::pair<const char*, const char*> cases[] = {{"station", "station.rds"},
                                                       {"STATION.RDS", "STATION.RDS.rds"},
                                                       {"ready.rds", "ready.rds"},
                                                       {"", ".rds"}};
  for (const auto& [typed, saved] : cases) {
    form->window.MoveFocus(&form->Text105);
    form->Text105.SelectAll();
    form->Text105.TypeKey(8);
    form->Text105.Type(typed);
    form->SaveButton.Press();
    EXPECT_EQ(form->Text105.Text(), saved);
    const std::string path = machine.program_folder + "/" + saved;
    EXPECT_EQ(profiles.Read(path, "PI", "Country"), "5");
  }
  EXPECT_EQ(form->File1.Count(), 4);  // corvalis.rds among them; the hidden one is not shown
}

TEST_F(MainFormTest, OpenLoadsTheFileAndOpensThePortAnew) {
  Run(kLocal);
  WriteFile(machine.program_folder + "/other.rds",
            "[PI]\nCountry=A\n[Serial Setup]\nSatellite=Off\nSerialPort=3\nModem=On\n");
  form->File1.Refresh();
  form->File1.Choose(1);
  EXPECT_EQ(form->Text105.Text(), "other.rds");
  port.written.clear();
  form->OpenButton.Press();
  EXPECT_EQ(configData->Country(), 0xA);
  EXPECT_EQ(port.CommPort(), 3);
  EXPECT_EQ(Codes(), std::vector<int>{kEnqFrame});  // here a modem makes no exception
  EXPECT_TRUE(LinkOpen);
}

TEST_F(MainFormTest, NewGoesBackToTheDefaultFileAndLeavesTheLink) {
  Run("[PI]\nCountry=7\n[Serial Setup]\nSatellite=Off\n");
  WriteFile(Elsewhere() + "/a.rds", "[PI]\nCountry=1\n[Serial Setup]\nSatellite=Off\n");
  OpenFile("a.rds");
  EXPECT_EQ(configData->Country(), 1);
  port.written.clear();
  form->NewButton.Press();
  EXPECT_EQ(configData->Country(), 7);
  EXPECT_EQ(configData->FullFileName(), ProgramFile());
  EXPECT_EQ(form->Dir1.Path(), machine.program_folder);  // where Save writes now
  EXPECT_EQ(Codes(), kCountsOfNew);
  EXPECT_EQ(form->File1.FileName(), "corvalis.rds");
  form->SaveButton.Press();
  EXPECT_EQ(profiles.Read(folder + "/elsewhere/a.rds", "PI", "Country"), "1");
}

TEST_F(MainFormTest, ATypedNameGoesAlongIntoAnotherFolder) {
  Run("");
  form->Text105.SetText("night");
  EXPECT_EQ(form->PathLabel.Caption(), machine.program_folder + "/night.rds");
  const std::string elsewhere = folder + "/elsewhere";
  std::filesystem::create_directory(elsewhere);
  WriteFile(elsewhere + "/corvalis.rds", "[PI]\nCountry=1\n");  // the record's name, not its file
  form->Dir1.SetPath(elsewhere);
  EXPECT_EQ(form->File1.FileName(), "corvalis.rds");
  EXPECT_EQ(form->Text105.Text(), "night");
  EXPECT_EQ(form->PathLabel.Caption(), elsewhere + "/night.rds");
  form->window.MoveFocus(&form->Text105);
  form->SaveButton.Press();
  EXPECT_EQ(form->File1.FileName(), "night.rds");
  EXPECT_EQ(form->PathLabel.Caption(), elsewhere + "/night.rds  (saved 12:00:00)");
  EXPECT_EQ(ReadFile(elsewhere + "/corvalis.rds"), "[PI]\nCountry=1\n");
}

TEST_F(MainFormTest, SaveWritesTheNamesOrTheirPagesAndLeavesTheNamesOfTheTypes) {
  for (const bool pages : {false, true}) {
    const std::string model = pages ? "" : "[RDS Setup]\nPSN Pages Enable=Off\n";
    Run(model + "[PTYN]\nPtyN00=START\n");
    const std::string path = machine.program_folder + "/other.rds";
    WriteFile(path, model + "[PTYN]\nPtyN00=OTHER\n");
    OpenFile("other.rds");
    EXPECT_EQ(ptynData->Ptyn(0), "START   ");
    ptynData->SetPtyn("EDITED", 0);
    psnData->SetData(0, "LIST");
    psnPageData->SetData(0, 0, "PAGE");
    afAData->SetFreq(0, 99.5F);
    afBData->SetMainFreq(0, 98.5F);
    form->SaveButton.Press();
    EXPECT_EQ(profiles.Read(path, "PTYN", "PtyN00"), "OTHER");
    EXPECT_EQ(profiles.Read(path, "PSN Pages", "Psn00.00").substr(7, 4), pages ? "PAGE" : "LIST");
    EXPECT_EQ(profiles.Read(path, "AF Method A", "FreqList").substr(0, 7), "099.500");
    EXPECT_EQ(profiles.Read(path, "AF Method B", "List00").substr(0, 5), "098.5");
    form->NewButton.Press();
    EXPECT_EQ(ptynData->Ptyn(0), "EDITED  ");
  }
}

TEST_F(MainFormTest, TheSetupScreenHasTheSizesAskedAgainInAnOrderOfItsOwn) {
  struct LastShown : ScreenHost {
    void Shown(Window& window) override { last = &window; }
    void Gone(Window& /*window*/) override {}
    Window* last = nullptr;
  } screen;
  // What the Coder does not offer is neither asked nor loaded.
  const std::string off = "[RDS Setup]\nEON Enable=Off\nTMC Enable=Off\n";
  const std::pair<std::string, std::vector<int>> cases[] = {
      {kLocal, {kEnqFrame, 0x0C, 0x15, 0x13, 0x0B, 0x1E, 0x20, 0x14, 0x0A, 0x23}},
      {kLocal + off, {kEnqFrame, 0x0C, 0x13, 0x0B, 0x1E, 0x20, 0x14, 0x0A}}};
  for (const auto& [file, asked] : cases) {
    Run(file);
    eonData->SetPsn("EDITED", 0);
    liData->SetLsn(7);
    Window::SetHost(&screen);
    form->RS232CButton.Press();
    ASSERT_EQ(screen.last->Name(), "RS232CForm");
    port.written.clear();
    screen.last->Close();
    Window::SetHost(nullptr);
    EXPECT_EQ(Codes(), asked);
    EXPECT_EQ(eonData->Psn(0), file == kLocal ? "EON PSN " : "EDITED  ");
    EXPECT_EQ(liData->Lsn(), 7);
  }
}

TEST_F(MainFormTest, OverACallTheNetworksAreAskedWhateverTheModel) {
  Run(std::string(kModem) + "[RDS Setup]\nEON Enable=Off\nTMC Enable=Off\n");
  configData->SetModemHookOn(true);
  port.Wrote = [] { EXPECT_TRUE(TheWaitForm().window.Visible()); };
  form->NewButton.Press();
  EXPECT_EQ(Codes(), kCountsOfNew);
}

TEST_F(MainFormTest, FilePanelFollowsTheFolder) {
  Run("");
  std::filesystem::create_directories(folder + "/program/sub");
  form->Dir1.SetPath(machine.program_folder);
  const int sub = form->Dir1.Count() - 1;
  EXPECT_EQ(form->Dir1.Entry(sub), "sub");
  form->Dir1.Open(sub);
  EXPECT_EQ(configData->Path(), machine.program_folder + "/sub");
  EXPECT_EQ(form->File1.Count(), 0);
  form->Dir1.Open(form->Dir1.Here() - 1);
  EXPECT_EQ(configData->Path(), machine.program_folder);
  WriteFile(machine.program_folder + "/from a stick.rds", "");
  form->Dir1.Choose(form->Dir1.Here());
  EXPECT_EQ(form->File1.Count(), 2);
  configData->SetDrive("");
  form->Drive1.Choose(0);
  EXPECT_EQ(configData->Path(), "/");
  EXPECT_EQ(configData->Drive(), form->Drive1.Drive());
}

TEST_F(MainFormTest, OpenBringsTheLanguageOfItsFileFromItsFolder) {
  Run("");
  WriteFile(Elsewhere() + "/fr.ini", "[MAIN]\nSaveKeyMsg=ENREGISTRER\n");
  WriteFile(Elsewhere() + "/fr.rds", "[Language]\nName0=F\nFileName0=fr.ini\n");
  OpenFile("fr.rds");
  EXPECT_EQ(form->SaveButton.Caption(), "ENREGISTRER");
}

TEST_F(MainFormTest, EndSendsEnqWhereTheCoderCanBeReached) {
  const std::tuple<const char*, bool, long> cases[] = {
      {kLocal, false, 2}, {"", false, 2}, {kModem, false, 0}, {kModem, true, 1}};
  for (const auto& [file, call, enqs] : cases) {
    port.written.clear();
    Run(file);
    configData->SetModemHookOn(call);
    int ended = 0;
    form->Ended = [&] { ++ended; };
    port.Wrote = [this] { form->window.Close(); };  // it is at it already
    form->window.Close();
    port.Wrote = nullptr;
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(std::tuple(afAData, languageData), std::tuple(nullptr, nullptr));
    const std::vector<int> codes = Codes();
    EXPECT_EQ(std::count(codes.begin(), codes.end(), kEnqFrame), enqs);
  }
}

TEST_F(MainFormTest, TheMenuCantBeUsedOrClosedWhileItIsBusy) {
  Run(kLocal);
  bool ended = false;
  form->Ended = [&] { ended = true; };
  for (Button* button : {&form->NewButton, &form->OpenButton, &form->SaveButton}) {
    EXPECT_EQ(ReadFile(ProgramFile()), kLocal);
    bool enabled = true;
    time.After(0, [&] {
      enabled = form->window.Enabled();
      form->window.Close();
      form->SaveButton.Press();
    });
    button->Press();
    EXPECT_FALSE(enabled) << button->Name();
    EXPECT_TRUE(form->window.Enabled() && form->window.Visible());
  }
  EXPECT_FALSE(ended);
}

}  // namespace
}  // namespace corvalis::test
