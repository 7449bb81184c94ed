// The PI-ECC-LIC tab, driven through its controls against the Coder in memory.

#include "station/pi_ecc_lic_tab.h"

#include <gtest/gtest.h>

#include "config/config_data.h"
#include "config/language_data.h"
#include "link/serial_management.h"
#include "screen/keys.h"
#include "station/ct_tp_di_pi_form.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

const Bytes kItaly5000{0x02, 0x01, 0x00, '5', '0', '0', '0', 0x03, 0x05};

class PiTabTest : public LinkTest {
 protected:
  void OpenScreen(const std::string& file, bool open_coder = true) {
    Start(file, {}, open_coder);
    Open();
    form = std::make_unique<CtTpDiPiForm>(main_menu);
    main_menu.Show();
    form->Load();
    port.written.clear();
  }
  PiEccLicTab& Tab() const { return form->pi_ecc_lic; }

  void Choose(ListBox& list, const std::string& entry) const {
    for (int i = 0; i < list.Count(); ++i) {
      if (list.Entry(i) == entry) list.Choose(i);
    }
  }
  static std::string Selected(const ListBox& list) {
    return list.Index() == ListBox::kNone ? "" : list.Entry(list.Index());
  }
  void TypePi(const std::string& keys) const {
    form->window.MoveFocus(&Tab().PiText);
    Tab().PiText.SelectAll();
    Tab().PiText.Type(keys);
  }
  bool LeavePi() const { return form->window.MoveFocus(&Tab().ReadPiCommand); }

  Window main_menu{this, "MainForm"};
  std::unique_ptr<CtTpDiPiForm> form;
};

TEST_F(PiTabTest, OpensOnTheDefaultRecord) {
  OpenScreen(kLocal);
  EXPECT_EQ(Selected(Tab().CountryCombo), "Italy");
  EXPECT_EQ(Selected(Tab().CoverageCombo), "Local");
  EXPECT_EQ(Selected(Tab().LicCombo), "Italian");
  EXPECT_EQ(Tab().PiText.Text(), "5000");
  EXPECT_EQ(Tab().EccText.Text(), "E0");
  EXPECT_EQ(Tab().IDNumberText.Text(), "000");
  EXPECT_EQ(Tab().CountryCombo.Count(), 267);
  EXPECT_EQ(Tab().LicCombo.Count(), 102);
  EXPECT_FALSE(main_menu.Enabled());
  form->window.Close();
  EXPECT_TRUE(main_menu.Enabled());
  EXPECT_FALSE(form->window.Visible());
}

TEST_F(PiTabTest, ButtonsFollowTheLinkAndTheCoderModel) {
  struct Case {
    const char* file;
    const char* shown;
  };
  const Case cases[] = {
      {"[Serial Setup]\nSatellite=Off", "ReadPi SendPi ReadEcc SendEcc ReadLic SendLic "},
      {"", "SendPi SendPiBurst SendEcc SendEccBurst SendLic SendLicBurst "},
      {"[Serial Setup]\nSatellite=Off\n[RDS Setup]\nECC Enable=Off",
       "ReadPi SendPi ReadLic SendLic "},
      {"[RDS Setup]\nECC Enable=Off\nLIC Enable=Off", "SendPi SendPiBurst "}};
  for (const Case& c : cases) {
    WriteFile(ProgramFile(), c.file);
    if (form == nullptr) {
      OpenScreen(c.file);
    } else {
      configData->GetIni();
      form->Load();
    }
    std::string shown;
    PiEccLicTab& t = Tab();
    for (const Button* button : {&t.ReadPiCommand, &t.SendPiCommand, &t.SendPiBurstCommand,
                                 &t.ReadEccCommand, &t.SendEccCommand, &t.SendEccBurstCommand,
                                 &t.ReadLicCommand, &t.SendLicCommand, &t.SendLicBurstCommand}) {
      const std::string& name = button->Name();
      if (button->Visible()) shown += name.substr(0, name.size() - 7) + " ";
    }
    EXPECT_EQ(shown, c.shown);
    EXPECT_EQ(t.EccText.Enabled(), configData->EccEnable());
    EXPECT_EQ(t.LicCombo.Enabled(), configData->LicEnable());
  }
}

TEST_F(PiTabTest, CountrySetsPiAndEccAndListsItsGroup) {
  OpenScreen(kLocal);
  Choose(Tab().CountryCombo, "Spain");
  EXPECT_EQ(configData->Country(), 0xE);
  EXPECT_EQ(configData->Ecc(), 0xE2);
  EXPECT_EQ(Tab().PiText.Text(), "E000");
  EXPECT_EQ(Tab().EccText.Text(), "E2");
  // In the order of the keys; of those that share a key, the winner alone.
  const std::vector<std::string> group{
      "Puerto Rico 13", "Canada 4",       "Guadeloupe", "Turks and Caicos Islands",
      "Venezuela",      "Mexico 3",       "Benin",      "Ethiopia",
      "Zambia",         "Canary Islands", "Romania",    "Spain",
      "Sweden",         "Turkmenistan",   "Bahrain",    "Korea [South]",
      "Nepal",          "Micronesia"};
  EXPECT_EQ(Tab().CountryList.Entries(), group);
}

TEST_F(PiTabTest, CoverageNumberAndLanguage) {
  OpenScreen(kLocal);
  Choose(Tab().CoverageCombo, "Regional 12 + ARI");
  Choose(Tab().LicCombo, "Zulu");
  EXPECT_EQ(configData->Lic(), 0x45);
  Tab().VScroll3.PressDown();
  EXPECT_EQ(Tab().IDNumberText.Text(), "000");
  for (int i = 0; i < 300; ++i) Tab().VScroll3.PressUp();
  EXPECT_EQ(Tab().IDNumberText.Text(), "255");
  Tab().VScroll3.PressDown();
  EXPECT_EQ(Tab().IDNumberText.Text(), "254");
  EXPECT_EQ(Tab().PiText.Text(), "5FFE");
  Tab().IDNumberText.Type("7");
  EXPECT_EQ(Tab().IDNumberText.Text(), "254");
}

TEST_F(PiTabTest, ANumberBeyondTheRangeCanBeSteppedBack) {
  OpenScreen("[PI]\nProgram Number=1FF\n");
  Tab().VScroll3.PressUp();
  EXPECT_EQ(configData->ProgramNum(), 0x1FF);
  Tab().VScroll3.PressDown();
  EXPECT_EQ(configData->ProgramNum(), 0x1FE);
}

TEST_F(PiTabTest, TypedPiGivesItsParts) {
  OpenScreen(kLocal);
  Tab().VScroll3.PressUp();
  TypePi("abcd");
  EXPECT_EQ(Tab().PiText.Text(), "ABCD");
  EXPECT_TRUE(LeavePi());
  EXPECT_EQ(std::tuple(configData->Country(), configData->Coverage(), configData->ProgramNum()),
            std::tuple(10, 11, 205));
  EXPECT_EQ(Selected(Tab().CountryCombo), "Austria");  // A/E0
  EXPECT_EQ(configData->Ecc(), 0xE0);
  EXPECT_EQ(Selected(Tab().CoverageCombo), "Regional 8 + ARI");
  EXPECT_EQ(Tab().IDNumberText.Text(), "001");  // stays until a step or a read moves it
  Tab().VScroll3.PressUp();
  EXPECT_EQ(Tab().IDNumberText.Text(), "206");
}

TEST_F(PiTabTest, PiThatFitsTheEccSelectsItsCountry) {
  OpenScreen(kLocal);
  TypePi("A123");
  EXPECT_TRUE(LeavePi());
  EXPECT_EQ(Selected(Tab().CountryCombo), "Austria");
  EXPECT_EQ(configData->Country(), 0xA);
}

TEST_F(PiTabTest, BadPiIsRefusedAndStaysSelected) {
  OpenScreen(kLocal);
  for (const char* keys : {"12", "", "0123"}) {
    TypePi(keys);
    if (std::string(keys).empty()) Tab().PiText.TypeKey(kKeyBackspace);
    const int beeps = dialogs.beeps;
    EXPECT_FALSE(LeavePi()) << keys;
    EXPECT_EQ(dialogs.beeps, beeps + 1);
    EXPECT_TRUE(Tab().PiText.HasFocus());
    EXPECT_EQ(Tab().PiText.SelStart(), 0);
    EXPECT_EQ(Tab().PiText.SelLength(), static_cast<int>(Tab().PiText.Text().size()));
    Tab().SendPiCommand.Press();
  }
  EXPECT_EQ(configData->Country(), 5);
  EXPECT_TRUE(port.written.empty());
}

TEST_F(PiTabTest, KeysOfPi) {
  OpenScreen(kLocal);
  struct Case {
    const char* before;
    int caret, selected, key;
    const char* after;
    int beeps;
  };
  const Case cases[] = {{"", 0, 0, 'a', "A", 0},       {"", 0, 0, 'F', "F", 0},
                        {"", 0, 0, 'g', "", 1},        {"", 0, 0, ' ', "", 1},
                        {"ABC", 1, 0, '9', "A9BC", 0}, {"ABCD", 4, 0, '1', "ABCD", 1},
                        {"ABCD", 1, 2, '1', "A1D", 0}, {"ABCD", 4, 0, kKeyBackspace, "ABC", 0},
                        {"AB", 2, 0, 0xE9, "AB", 1},   {"AB", 2, 0, kKeyPaste, "AB", 1}};
  for (const Case& c : cases) {
    Tab().PiText.SetText(c.before);
    Tab().PiText.Select(c.caret, c.selected);
    const int beeps = dialogs.beeps;
    if (c.key == kKeyPaste) {
      Tab().PiText.Paste("1");
    } else {
      Tab().PiText.TypeKey(c.key);
    }
    EXPECT_EQ(Tab().PiText.Text(), c.after) << c.before << " " << c.key;
    EXPECT_EQ(dialogs.beeps - beeps, c.beeps) << c.before << " " << c.key;
  }
}

TEST_F(PiTabTest, ListsRefuseKeysAndComeBackToTheRecord) {
  OpenScreen(kLocal);
  for (ListBox* list : {&Tab().CountryCombo, &Tab().CoverageCombo, &Tab().LicCombo}) {
    const int beeps = dialogs.beeps;
    list->TypeKey('s');
    EXPECT_EQ(dialogs.beeps, beeps + 1);
    form->window.MoveFocus(list);
    // The record changes behind the list.
    configData->SetCountry(4);
    configData->SetCoverage(2);
    configData->SetLic(8);
    form->window.MoveFocus(&Tab().ReadPiCommand);
  }
  EXPECT_EQ(Selected(Tab().CountryCombo), "Israel");
  EXPECT_EQ(Selected(Tab().CoverageCombo), "National");
  EXPECT_EQ(Selected(Tab().LicCombo), "German");
}

TEST_F(PiTabTest, SendPiOnALocalLink) {
  OpenScreen(kLocal);
  bool disabled = false;
  port.Wrote = [&] { disabled = !form->window.Enabled(); };
  Tab().SendPiCommand.Press();
  EXPECT_EQ(port.written, std::vector<Bytes>{kItaly5000});
  EXPECT_TRUE(disabled);
  EXPECT_TRUE(form->window.Enabled());
  EXPECT_EQ(the_coder->Item(0x01), (Bytes{'5', '0', '0', '0'}));
  EXPECT_TRUE(dialogs.boxes.empty());

  Tab().SendEccCommand.Press();
  Tab().SendLicCommand.Press();
  EXPECT_EQ(the_coder->Item(0x19), (Bytes{'E', '0'}));
  EXPECT_EQ(the_coder->Item(0x1A), (Bytes{'1', '5'}));
}

TEST_F(PiTabTest, CoderThatWasNotAddressedRefusesOnALocalLink) {
  OpenScreen(kLocal, /*open_coder=*/false);
  Tab().SendPiCommand.Press();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "PI: [RDS] before send address  ");
  EXPECT_EQ(port.written.size(), 1U);
}

TEST_F(PiTabTest, AddressRuleOnAOneWayLink) {
  OpenScreen(kSatellite);
  for (Button* button : {&Tab().SendPiCommand, &Tab().SendPiBurstCommand, &Tab().SendEccCommand,
                         &Tab().SendLicBurstCommand}) {
    dialogs.boxes.clear();
    button->Press();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, "Before send Address");
    EXPECT_TRUE(form->window.Enabled());
  }
  EXPECT_TRUE(port.written.empty());
  AddressSent = true;
  Tab().SendPiCommand.Press();
  EXPECT_EQ(port.written, std::vector<Bytes>{kItaly5000});
}

TEST_F(PiTabTest, BurstMakesExactlyItsPasses) {
  OpenScreen("[Serial Setup]\nBurst=3\n");
  AddressSent = true;
  LinkError = 5;  // of an earlier run
  Tab().SendPiBurstCommand.Press();
  EXPECT_EQ(port.written, std::vector<Bytes>(3, kItaly5000));

  port.written.clear();
  port.Wrote = [this] { EscPressed = port.written.size() == 2; };
  Tab().SendPiBurstCommand.Press();
  EXPECT_EQ(port.written.size(), 2U);  // ended after the frame that was being written
  EXPECT_EQ(LinkError, kErrorAborted);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(PiTabTest, ReadShowsWhatTheCoderHolds) {
  OpenScreen(kLocal);
  the_coder->SetItem(0x01, 0, Bytes{'A', '2', '7', 'F'});
  Tab().ReadPiCommand.Press();
  EXPECT_EQ(port.written, (std::vector<Bytes>{{0x02, 0x01, 0x00, 0x03, 0x00}}));
  EXPECT_EQ(Selected(Tab().CountryCombo), "Austria");
  EXPECT_EQ(Selected(Tab().CoverageCombo), "National");
  EXPECT_EQ(Tab().IDNumberText.Text(), "127");
  EXPECT_EQ(Tab().PiText.Text(), "A27F");
  EXPECT_EQ(Tab().CountryList.Entries().front(), "Puerto Rico 10");

  the_coder->SetItem(0x19, 0, Bytes{'D', '1'});
  Tab().ReadEccCommand.Press();
  EXPECT_EQ(configData->Ecc(), 0xD1);
  EXPECT_EQ(Selected(Tab().CountryCombo), "Ascension Island");
  EXPECT_EQ(Tab().EccText.Text(), "F1");  // 0xD1 or 0xE0, until the list sets it again

  the_coder->SetItem(0x1A, 0, Bytes{'0', '8'});
  Tab().ReadLicCommand.Press();
  EXPECT_EQ(Selected(Tab().LicCombo), "German");
  the_coder->SetItem(0x1A, 0, Bytes{'3', '0'});  // a code without a name
  Tab().ReadLicCommand.Press();
  EXPECT_EQ(Selected(Tab().LicCombo), "");
  EXPECT_EQ(configData->Lic(), 0x30);
}

TEST_F(PiTabTest, FailedReadShowsTheRecord) {
  OpenScreen(kLocal);
  TypePi("5123");
  LeavePi();
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.After(3, [] { EscPressed = true; });
  Tab().ReadPiCommand.Press();
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(Tab().PiText.Text(), "5123");
  EXPECT_EQ(Tab().IDNumberText.Text(), "035");
}

TEST_F(PiTabTest, CountryCodeOutsideTheTableSelectsNothing) {
  for (const char* country : {"0", "FF", "G"}) {
    OpenScreen(std::string("[PI]\nCountry=") + country + "\n");
    EXPECT_EQ(Selected(Tab().CountryCombo), "");
    EXPECT_EQ(Tab().PiText.Text().size(), 4U);
    form.reset();
    delete std::exchange(configData, nullptr);
    delete std::exchange(languageData, nullptr);
  }
}

TEST_F(PiTabTest, FirstOpeningAloneSetsTheDate) {
  using namespace std::chrono;
  OpenScreen(kLocal);
  EXPECT_EQ(configData->DateValue(), DateTime(local_days{2026y / November / 15}));
  const DateTime later = local_days{2027y / January / 1} + 5h;
  configData->SetDateValue(later);
  form->window.Close();
  form->Load();
  EXPECT_EQ(configData->DateValue(), later);
}

TEST_F(PiTabTest, ClosingTakesATypedPi) {
  OpenScreen(kLocal);
  TypePi("7001");
  form->window.Close();
  EXPECT_EQ(configData->Country(), 7);
  EXPECT_FALSE(form->window.Visible());
}

}  // namespace
}  // namespace corvalis::test
