// The setup screen, driven through its controls against the Coder in memory.

#include "link/rs232c_form.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <set>
#include <tuple>

#include "busy/wait_form.h"
#include "config/config_data.h"
#include "link/engine_fixture.h"
#include "link/serial_management.h"

namespace corvalis::test {
namespace {

std::string Selected(const ListBox& list) {
  return list.Index() == ListBox::kNone ? "" : list.Entry(list.Index());
}

class SetupScreen : public LinkTest {
 protected:
  ~SetupScreen() override { ReleaseWaitForm(); }

  void OpenScreen(const std::string& file, coder::Faults faults = {}) {
    Start(file, faults);
    form =
        std::make_unique<RS232CForm>(RS232CForm::MainMenu{.window = main_menu,
                                                          .port = port,
                                                          .init_main = [this] { ++inits; },
                                                          .reload_limits = [this] { ++reloads; }});
    main_menu.Show();
    form->Load();
  }
  /// Loads the file and the screen again, as if the program had just come there.
  void Reopen(const std::string& file) {
    WriteFile(ProgramFile(), file);
    configData->GetIni();
    configData->SetModemHookOn(false);
    configData->SetModemDlg("");
    form->Load();
    port.written.clear();
    dialogs.boxes.clear();
    reloads = 0;
  }
  /// The pointer chooses an entry; the list keeps the focus.
  void Choose(ListBox& list, const std::string& entry) const {
    ASSERT_TRUE(form->window.MoveFocus(&list));
    for (int i = 0; i < list.Count(); ++i) {
      if (list.Entry(i) == entry) list.Choose(i);
    }
    ASSERT_EQ(Selected(list), entry);
  }
  std::string Opened() const { return std::to_string(port.CommPort()) + " " + port.Settings(); }
  std::string PortLists() const {
    return Selected(form->SerialCombo) + "/" + Selected(form->BaudrateCombo) + "/" +
           Selected(form->ParityCombo) + "/" + Selected(form->StopBitCombo);
  }

  Window main_menu{this, "MainForm"};
  std::unique_ptr<RS232CForm> form;
  int reloads = 0;
  int inits = 0;
};

TEST_F(SetupScreen, OpensOnTheRecord) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "Satellite/3  Times/COM 1/9600/none/2"},
      {"[Serial Setup]\nSatellite=Off\nBurst=10\nSerialPort=4\nBaudrate=2400\nParity=E",
       "Local/10 Times/COM 4/2400/even/1"},
      // The stop bits follow the parity, whatever the file says.
      {"[Serial Setup]\nSatellite=Off\nModem=On\nBurst=2\nParity=O\nStopBit=2\nBaudrate=19200",
       "Modem/2  Times/COM 1/19200/odd/1"},
      {"[Serial Setup]\nBurst=99\nSerialPort=7\nBaudrate=1200\nParity=M", "Satellite/////"}};
  OpenScreen("");
  for (const auto& [file, lists] : cases) {
    Reopen(file);
    EXPECT_EQ(Selected(form->RdsOptionCombo) + "/" + Selected(form->Combo1) + "/" + PortLists(),
              lists);
    form->window.Close();
  }
  // What the lists could not show is kept.
  EXPECT_EQ(configData->Burst(), 99);
  EXPECT_EQ(Opened(), "7 1200,M,8,2");
  Reopen("[Language]\nName0=A\nFileName0=A.ini\nName1=B\nFileName1=B.ini\n");
  for (const int language : {1, 1, 0}) form->LanguageCombo.Choose(language);
  EXPECT_EQ(inits, 2);  // the menu follows each change
}

TEST_F(SetupScreen, EnablingFollowsTheModeOnceTheListIsLeft) {
  const std::tuple<const char*, bool, const char*> cases[] = {
      {"Satellite", false, "Combo1 "},
      {"Local", false, "Command31 "},
      {"Modem", false, "Check1 Check2 Text2 Command2 Command1 Text1 Timer1 "},
      {"Modem", true, "Command1 Text1 Timer1 "}};
  OpenScreen("");
  RS232CForm& f = *form;
  const auto enabled = [&f] {
    std::string names;
    for (const Control* control : std::initializer_list<const Control*>{
             &f.Combo1, &f.Command31, &f.Check1, &f.Check2, &f.Text2, &f.Command2, &f.Command1,
             &f.Text1, &f.Timer1, &f.StopBitCombo}) {
      if (control->Enabled()) names += control->Name() + " ";
    }
    return names;
  };
  for (const auto& [mode, hook_on, expected] : cases) {
    configData->SetModemHookOn(hook_on);
    const std::string before = enabled();
    Choose(f.RdsOptionCombo, mode);
    EXPECT_EQ(enabled(), before);
    f.window.MoveFocus(nullptr);
    EXPECT_EQ(enabled(), expected);
  }
  EXPECT_TRUE(port.written.empty());
}

TEST_F(SetupScreen, ClosingTakesTheListThatStillHasTheFocus) {
  // What closing opens: port, settings, Satellite.
  const std::tuple<ListBox RS232CForm::*, const char*, const char*> cases[] = {
      {&RS232CForm::BaudrateCombo, "2400", "1 2400,N,8,2 off"},
      {&RS232CForm::ParityCombo, "even", "1 9600,E,8,2 off"},
      {&RS232CForm::SerialCombo, "COM 3", "3 9600,N,8,2 off"},
      {&RS232CForm::RdsOptionCombo, "Satellite", "1 9600,N,8,2 on"}};
  OpenScreen(kLocal);
  for (const auto& [list, entry, opened] : cases) {
    Reopen(kLocal);
    Choose((*form).*list, entry);
    form->window.Close();
    EXPECT_EQ(Opened() + (configData->Satellite() ? " on" : " off"), opened);
  }
  Reopen(kSatellite);
  Choose(form->Combo1, "7  Times");
  form->window.Unload();
  EXPECT_EQ(configData->Burst(), 7);
}

TEST_F(SetupScreen, ClosingByMode) {
  struct Case {
    const char* mode;
    bool call, silent, missing;
    const char* expected;  // e: ENQ, r: reload, o: link open, b: a box
  };
  const Case cases[] = {
      {"Local", false, false, false, "ero"},    {"Local", false, true, false, "eb"},
      {"Local", false, false, true, "b"},       {"Local", true, true, false, "eb"},
      {"Satellite", false, true, false, "ero"}, {"Modem", false, false, false, "o"},
      {"Modem", true, false, false, "ero"},     {"Modem", true, false, true, "rbb"}};
  OpenScreen("");
  for (const Case& c : cases) {
    Reopen("");
    port.missing.clear();
    port.SetPortOpen(false);
    if (c.missing) port.missing[1] = "No such device";
    port.heard_on = [&c](int, const std::string&) { return !c.silent; };
    configData->SetModemHookOn(c.call);
    Choose(form->RdsOptionCombo, c.mode);
    form->window.Close();
    EXPECT_EQ(std::string(port.written == std::vector<Bytes>{{kEnq}} ? "e" : "") +
                  std::string(static_cast<std::size_t>(reloads), 'r') + (LinkOpen ? "o" : "") +
                  std::string(dialogs.boxes.size(), 'b'),
              c.expected);
    EXPECT_TRUE(main_menu.Enabled());
  }
}

TEST_F(SetupScreen, AutosettingFindsTheCoder) {
  struct Case {
    int number;
    const char* settings;
    const char* lists;
    std::size_t attempts;
    std::map<int, std::string> missing;
  };
  const Case cases[] = {{1, "2400,O,8,1", "COM 1/2400/odd/1", 3, {}},
                        {2, "19200,E,8,1", "COM 2/19200/even/1", 23, {}},
                        {4, "19200,O,8,1", "COM 4/19200/odd/1", 48, {}},
                        {3, "2400,N,8,2", "COM 3/2400/none/2", 1, {{1, "in use"}, {2, "gone"}}}};
  OpenScreen(kLocal);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.settings);
    Reopen(kLocal);
    port.heard_on = [&c](int number, const std::string& settings) {
      return number == c.number && settings == c.settings;
    };
    port.missing = c.missing;
    form->Command31.Press();
    EXPECT_EQ(port.written, std::vector<Bytes>(c.attempts, Bytes{kEnq}));
    EXPECT_EQ(PortLists(), c.lists);
    form->window.Close();
    EXPECT_EQ(Opened(), std::to_string(c.number) + " " + c.settings);
    EXPECT_TRUE(dialogs.boxes.empty());
  }
}

TEST_F(SetupScreen, AutosettingWithNothingConnectedTriesAllAndRestoresTheLists) {
  OpenScreen("[Serial Setup]\nSatellite=Off\nSerialPort=3\nBaudrate=4800\nParity=E\nStopBit=2\n",
             {.silent = true});
  std::vector<std::string> tried;
  std::set<std::string> shown;
  port.Wrote = [&] {
    tried.push_back(Opened());
    shown.insert(PortLists());
    form->window.Close();
    form->Command31.Press();
  };
  form->Command31.Press();
  ASSERT_EQ(tried.size(), 48U);
  EXPECT_EQ(std::set(tried.begin(), tried.end()).size(), 48U);
  EXPECT_EQ(shown.size(), 48U);  // the lists move along
  EXPECT_NEAR(time.Elapsed(), 48 * 15, 1);
  EXPECT_EQ(PortLists(), "COM 3/4800/even/1");
  EXPECT_EQ(PortSettings(), "4800,E,8,2");
  EXPECT_EQ(Opened(), "4 19200,O,8,1");
  EXPECT_FALSE(LinkOpen);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(form->window.Visible());
}

TEST_F(SetupScreen, ACallFromHookToHangUp) {
  OpenScreen("[Serial Setup]\nSatellite=Off\nModem=On\nModemTel=5551\n");
  RS232CForm& f = *form;
  port.answer = [&f](const Bytes& sent) {
    f.window.Close();  // refused while the modem hangs up
    EXPECT_EQ(TheWaitForm().window.Visible(), sent != Text("ATDP55512\r\n"));
    return sent == Text("+++") ? Text("OK") : Bytes{};
  };
  f.window.MoveFocus(&f.Text2);
  f.Text2.Select(4, 0);
  f.Text2.Type("2");
  f.Check2.Press();
  Choose(f.SerialCombo, "COM 2");
  port.missing[2] = "No such device";
  f.Command2.Press();
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_FALSE(configData->ModemHookOn());
  port.missing.clear();
  f.Command2.Press();
  EXPECT_EQ(port.CommPort(), 2);
  EXPECT_FALSE(f.SerialCombo.Enabled());

  std::string dialogue;
  for (const char* text : {"ATDP55512\r\n", "CONNECT 9600\r\n", ""}) {
    port.Receive(Text(text));
    f.Timer1.Fire();
    EXPECT_EQ(f.Text1.Text(), dialogue += text);
  }
  f.Command1.Press();
  EXPECT_EQ(port.written,
            (std::vector<Bytes>{Text("ATDP55512\r\n"), Text("+++"), Text("ATH0\r\n")}));
  EXPECT_FALSE(configData->ModemHookOn());
  EXPECT_TRUE(f.Command2.Enabled());
  EXPECT_TRUE(f.window.Visible());
  EXPECT_FALSE(TheWaitForm().window.Visible());
}

}  // namespace
}  // namespace corvalis::test
