// The main menu from start to end, with the Coder in memory.

#include "app/main_form.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/wait_form.h"
#include "link/serial_management.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

class MainFormTest : public MachineTest {
 protected:
  MainFormTest() : line(the_coder, coder::Faults{}) { port.line = &line; }
  ~MainFormTest() override { form.reset(); }

  void Run(const std::string& file) {
    WriteFile(ProgramFile(), file);
    form = std::make_unique<MainForm>();
    form->Load();
  }

  coder::Coder the_coder{"?????", true};
  coder::Line line;
  std::unique_ptr<MainForm> form;
};

const std::vector<Bytes> kOneEnq{{kEnq}};

TEST_F(MainFormTest, StartOnALocalLink) {
  WriteFile(machine.settings_folder + "/Firm.ini", "[Firm]\r\nFirm=KOR\r\n");
  Run("[Serial Setup]\nSatellite=Off\nBaudrate=4800\nParity=E\nStopBit=1\nSerialPort=2\n");
  EXPECT_EQ(form->window.Caption(),
            "  Main Menu                                 -CORVALIS-        V2.02.60724.1");
  EXPECT_EQ(port.Settings(), "4800,E,8,1");
  EXPECT_EQ(port.CommPort(), 2);
  EXPECT_EQ(port.written, kOneEnq);
  EXPECT_TRUE(LinkOpen);
  EXPECT_FALSE(TheWaitForm().window.Visible());
  EXPECT_EQ(form->Text105.Text(), "corvalis.rds");
  EXPECT_EQ(form->Dir1.Path(), machine.program_folder);
  EXPECT_EQ(form->File1.FileName(), "corvalis.rds");
  EXPECT_EQ(form->SaveButton.Caption(), "SAVE");
  EXPECT_TRUE(form->marks.Logo_KOR.Visible() && form->Text_KOR.Visible());
}

TEST_F(MainFormTest, StartByKindOfLink) {
  struct Case {
    const char* name;
    const char* file;
    bool missing;
    std::size_t written;
    bool open;
    std::size_t boxes;
  };
  const Case cases[] = {
      {"satellite", "", false, 1, true, 0},
      {"local, silent Coder", "[Serial Setup]\nSatellite=Off\n", false, 1, false, 1},
      {"modem", "[Serial Setup]\nSatellite=Off\nModem=On\n", false, 0, true, 0},
      {"no such port", "", true, 0, false, 1}};
  port.answer = [](const Bytes&) { return Bytes{}; };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    form.reset();
    port.written.clear();
    dialogs.boxes.clear();
    port.SetPortOpen(false);
    if (c.missing) port.missing[1] = "No such file or directory";
    Run(c.file);
    EXPECT_EQ(port.written.size(), c.written);
    EXPECT_EQ(LinkOpen, c.open);
    EXPECT_EQ(dialogs.boxes.size(), c.boxes);
    EXPECT_TRUE(form->window.Enabled());
  }
}

TEST_F(MainFormTest, ScreensThatAreNotThereCantBeOpened) {
  Run("[RDS Setup]\nEON Enable=On\n");
  for (const Button* button :
       {&form->ConnectionButton, &form->PsnRtPinAfButton, &form->EonLiButton, &form->TdcIhButton}) {
    EXPECT_FALSE(button->Enabled()) << button->Name();
  }
}

TEST_F(MainFormTest, AWorkingScreenLivesOnAndKeepsTheMenuDisabledWhileItIsOpen) {
  Run("");
  const CtTpDiPiForm* first = nullptr;
  for (int opening = 0; opening < 2; ++opening) {
    form->CtTpDiPiButton.Press();
    CtTpDiPiForm* opened = form->OpenedCtTpDiPi();
    EXPECT_TRUE(opened->window.Visible());
    EXPECT_FALSE(form->window.Enabled());
    opened->window.Close();
    EXPECT_TRUE(form->window.Enabled());
    EXPECT_TRUE(first == nullptr || first == opened);
    first = opened;
  }
}

TEST_F(MainFormTest, GroupsFollowTheFile) {
  const std::string other = machine.program_folder + "/other.rds";
  WriteFile(other, "[Groups]\nGroup05B=6;On\n");
  Run("[RDS Setup]\nGroups Enable=On\n[Groups]\nGroup03A=4;On\n");
  EXPECT_TRUE(form->EditGroupsButton.Enabled());
  EXPECT_TRUE(groupsData->Active(3));

  form->Text105.SetText("other.rds");
  form->OpenButton.Press();
  EXPECT_FALSE(form->EditGroupsButton.Enabled());
  EXPECT_FALSE(groupsData->Active(3));
  groupsData->SetActive(0, true);
  form->SaveButton.Press();
  EXPECT_EQ(profiles.Read(other, "Groups", "Group00A"), "00;On");
  EXPECT_EQ(profiles.Read(other, "Groups", "Group05B"), "06;On");

  form->NewButton.Press();
  EXPECT_EQ(groupsData->Repetitions(3), 4);
  EXPECT_FALSE(groupsData->Active(0));
  EXPECT_FALSE(form->EditGroupsButton.Enabled());  // whatever the default file says
  form->Text105.SetText("corvalis.rds");
  form->OpenButton.Press();
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
    EXPECT_EQ(configData->File(), saved);
    const std::string path = machine.program_folder + "/" + saved;
    EXPECT_EQ(profiles.Read(path, "PI", "Country"), "5");
  }
  EXPECT_EQ(form->File1.Count(), 4);  // corvalis.rds among them; the hidden one is not shown
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(MainFormTest, OpenLoadsTheFileAndOpensThePortAnew) {
  Run("[Serial Setup]\nSatellite=Off\n");
  WriteFile(machine.program_folder + "/other.rds",
            "[PI]\nCountry=A\n[Serial Setup]\nSatellite=Off\nSerialPort=3\nModem=On\n");
  form->File1.Refresh();
  form->File1.Choose(1);
  EXPECT_EQ(form->Text105.Text(), "other.rds");
  port.written.clear();
  form->OpenButton.Press();
  EXPECT_EQ(configData->Country(), 0xA);
  EXPECT_EQ(port.CommPort(), 3);
  EXPECT_EQ(port.written, kOneEnq);  // here a modem makes no exception
  EXPECT_TRUE(LinkOpen);
}

TEST_F(MainFormTest, NewGoesBackToTheDefaultFileAndLeavesTheLink) {
  Run("[PI]\nCountry=7\n[Serial Setup]\nSatellite=Off\n");
  const std::string elsewhere = folder + "/elsewhere";
  std::filesystem::create_directory(elsewhere);
  WriteFile(elsewhere + "/a.rds", "[PI]\nCountry=1\n[Serial Setup]\nSatellite=Off\n");
  form->Dir1.SetPath(elsewhere);
  form->File1.Choose(0);
  form->OpenButton.Press();
  EXPECT_EQ(configData->Country(), 1);
  port.written.clear();
  form->NewButton.Press();
  EXPECT_EQ(configData->Country(), 7);
  EXPECT_EQ(configData->FullFileName(), ProgramFile());
  EXPECT_EQ(form->Dir1.Path(), machine.program_folder);  // where Save would write now
  EXPECT_TRUE(port.written.empty());
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
  EXPECT_EQ(form->File1.FileName(), "corvalis.rds");
  form->Text105.SetText("tonight.rds");
  form->SaveButton.Press();
  EXPECT_EQ(form->File1.FileName(), "tonight.rds");
  form->Drive1.Choose(0);
  EXPECT_EQ(configData->Path(), "/");
  EXPECT_EQ(configData->Drive(), "/");
}

TEST_F(MainFormTest, FolderThatCantBeWrittenLosesAndShowsNothing) {
  Run("");
  configData->SetPath(folder + "/not there");
  form->SaveButton.Press();
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(MainFormTest, PanelAndRecordAgreeWhereTheProgramHasNoFolder) {
  machine.program_folder += "/no folder";
  form = std::make_unique<MainForm>();
  form->Load();
  EXPECT_EQ(configData->Path(), form->Dir1.Path());
  form->Dir1.SetPath(folder);
  form->NewButton.Press();
  EXPECT_EQ(configData->Path(), folder);
  form->SaveButton.Press();
  EXPECT_EQ(profiles.Read(folder + "/corvalis.rds", "PI", "Country"), "5");
}

TEST_F(MainFormTest, OpenBringsTheLanguageOfItsFileFromItsFolder) {
  Run("");
  const std::string elsewhere = folder + "/elsewhere";
  std::filesystem::create_directory(elsewhere);
  WriteFile(elsewhere + "/fr.ini",
            "[MAIN]\nSaveKeyMsg=ENREGISTRER\n[MESSAGE]\nWaitKeyMsg=Un instant !\n");
  WriteFile(elsewhere + "/fr.rds", "[Language]\nName0=F\nFileName0=fr.ini\n");
  form->Dir1.SetPath(elsewhere);
  form->Text105.SetText("fr.rds");
  form->OpenButton.Press();
  EXPECT_EQ(form->SaveButton.Caption(), "ENREGISTRER");
  EXPECT_EQ(TheWaitForm().WaitMessage.Caption(), "Un instant !");
}

TEST_F(MainFormTest, FilesAreSafeWhileABoxWaitsForTheOperator) {
  port.missing[1] = "No such file or directory";
  int boxes = 0;
  dialogs.Shown = [&] {
    ++boxes;
    for (const auto& entry : std::filesystem::directory_iterator(machine.program_folder)) {
      EXPECT_FALSE(entry.path().filename().string().starts_with(".")) << entry.path();
    }
  };
  Run("");
  std::filesystem::remove(machine.program_folder + "/Language.ini");
  form->OpenButton.Press();
  EXPECT_EQ(boxes, 2);
}

TEST_F(MainFormTest, EndSendsEnqWhereTheCoderCanBeReached) {
  struct Case {
    const char* file;
    bool hook;
    std::size_t enqs;
  };
  const Case cases[] = {{"[Serial Setup]\nSatellite=Off\n", false, 2},
                        {"", false, 2},
                        {"[Serial Setup]\nSatellite=Off\nModem=On\n", false, 0},
                        {"[Serial Setup]\nSatellite=Off\nModem=On\n", true, 1}};
  for (const Case& c : cases) {
    form.reset();
    port.SetPortOpen(false);
    port.written.clear();
    Run(c.file);
    configData->SetModemHookOn(c.hook);
    bool ended = false;
    form->Ended = [&] { ended = true; };
    form->window.Close();
    EXPECT_TRUE(ended);
    EXPECT_EQ(port.written, std::vector<Bytes>(c.enqs, Bytes{kEnq}));
  }
}

TEST_F(MainFormTest, EndTellsThatItWaitsForASilentCoder) {
  Run("[Serial Setup]\nSatellite=Off\n");
  port.answer = [](const Bytes&) { return Bytes{}; };
  bool looked = false;
  time.After(1, [&] {
    looked = TheWaitForm().window.Visible();
    form->window.Close();
  });
  int ended = 0;
  form->Ended = [&] { ++ended; };
  form->window.Close();
  EXPECT_TRUE(looked);
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_FALSE(TheWaitForm().window.Visible());
}

TEST_F(MainFormTest, MenuCantBeClosedWhileItIsBusy) {
  Run("[Serial Setup]\nSatellite=Off\n");
  bool ended = false;
  form->Ended = [&] { ended = true; };
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.After(1, [this] {
    form->window.Close();
    form->SaveButton.Press();
  });
  form->OpenButton.Press();  // waits for the answer to its ENQ
  EXPECT_FALSE(ended);
  EXPECT_TRUE(form->window.Visible());
  EXPECT_EQ(ReadFile(ProgramFile()), "[Serial Setup]\nSatellite=Off\n");
}

}  // namespace
}  // namespace corvalis::test
