// The PI-ECC-LIC tab, driven through its controls against the Coder in memory.

#include "station/pi_ecc_lic_tab.h"

#include <gtest/gtest.h>

#include <tuple>

#include "screen/keys.h"
#include "station/ct_tp_di_pi_form.h"
#include "support/station_screen.h"

namespace corvalis::test {
namespace {

const Bytes kItaly5000{0x02, 0x01, 0x00, '5', '0', '0', '0', 0x03, 0x05};

class PiTabTest : public StationScreenTest<CtTpDiPiForm> {
 protected:
  PiEccLicTab& Tab() const { return form->pi_ecc_lic; }
  static std::string Selected(const ListBox& list) {
    return list.Index() == ListBox::kNone ? "" : list.Entry(list.Index());
  }
  static void Choose(ListBox& list, const std::string& entry) {
    for (int i = 0; i < list.Count(); ++i) {
      if (list.Entry(i) == entry) list.Choose(i);
    }
  }
  /// Types over what the box holds, and leaves it. False if it keeps the focus.
  bool EnterPi(const std::string& keys) const {
    form->window.MoveFocus(&Tab().PiText);
    Tab().PiText.SelectAll();
    Tab().PiText.TypeKey(kKeyBackspace);
    Tab().PiText.Type(keys);
    return form->window.MoveFocus(&Tab().ReadPiCommand);
  }
};

TEST_F(PiTabTest, OpensOnTheDefaultRecord) {
  OpenScreen(kLocal);
  EXPECT_EQ(Selected(Tab().CountryCombo), "Italy");
  EXPECT_EQ(Selected(Tab().CoverageCombo), "Local");
  EXPECT_EQ(Selected(Tab().LicCombo), "Italian");
  EXPECT_EQ(Tab().PiText.Text(), "5000");
  EXPECT_EQ(Tab().EccText.Text(), "E0");
  EXPECT_EQ(Tab().IDNumberText.Text(), "000");
  for (const char* country : {"0", "FF"}) {  // of a file made elsewhere
    OpenScreen(std::string("[PI]\nCountry=") + country + "\n");
    EXPECT_EQ(Selected(Tab().CountryCombo), "");
  }
}

TEST_F(PiTabTest, ButtonsFollowTheLinkAndTheCoderModel) {
  const std::pair<const char*, std::vector<bool>> cases[] = {
      // PI, ECC, LIC: Read, Send, Burst
      {"[Serial Setup]\nSatellite=Off\n[RDS Setup]\nECC Enable=Off", {1, 1, 0, 0, 0, 0, 1, 1, 0}},
      {"[RDS Setup]\nLIC Enable=Off", {0, 1, 1, 0, 1, 1, 0, 0, 0}}};
  for (const auto& [file, visible] : cases) {
    OpenScreen(file);
    std::vector<bool> shown;
    const PiEccLicTab& t = Tab();
    for (const Button* button : {&t.ReadPiCommand, &t.SendPiCommand, &t.SendPiBurstCommand,
                                 &t.ReadEccCommand, &t.SendEccCommand, &t.SendEccBurstCommand,
                                 &t.ReadLicCommand, &t.SendLicCommand, &t.SendLicBurstCommand}) {
      shown.push_back(button->Visible());
    }
    EXPECT_EQ(shown, visible);
    EXPECT_EQ(t.EccText.Enabled(), configData->EccEnable());
    EXPECT_EQ(t.LicCombo.Enabled(), configData->LicEnable());
  }
}

TEST_F(PiTabTest, ChoicesAndStepsSetTheRecordAndAreSent) {
  OpenScreen(kLocal);
  for (ListBox* list : {&Tab().CountryCombo, &Tab().CoverageCombo, &Tab().LicCombo}) {
    list->TypeKey('s');
  }
  EXPECT_EQ(dialogs.beeps, 3);
  Choose(Tab().CountryCombo, "Spain");
  EXPECT_EQ(Tab().EccText.Text(), "E2");
  // In the order of the keys; of those that share a key, the winner alone.
  const std::vector<std::string> group{
      "Puerto Rico 13", "Canada 4",       "Guadeloupe", "Turks and Caicos Islands",
      "Venezuela",      "Mexico 3",       "Benin",      "Ethiopia",
      "Zambia",         "Canary Islands", "Romania",    "Spain",
      "Sweden",         "Turkmenistan",   "Bahrain",    "Korea [South]",
      "Nepal",          "Micronesia"};
  EXPECT_EQ(Tab().CountryList.Entries(), group);
  Choose(Tab().CoverageCombo, "Regional 12 + ARI");
  Choose(Tab().LicCombo, "Zulu");
  Step(Tab().VScroll3, -1);
  EXPECT_EQ(Tab().IDNumberText.Text(), "000");
  Step(Tab().VScroll3, 300);
  EXPECT_EQ(Tab().IDNumberText.Text(), "255");
  EXPECT_EQ(Tab().PiText.Text(), "EFFF");
  for (Button* button : {&Tab().SendPiCommand, &Tab().SendEccCommand, &Tab().SendLicCommand}) {
    button->Press();
    EXPECT_TRUE(form->window.Enabled());
  }
  EXPECT_EQ(Held(0x01) + Held(0x19) + Held(0x1A), "EFFFE245");
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(PiTabTest, TypedPiGivesItsParts) {
  OpenScreen(kLocal);
  Step(Tab().VScroll3, +1);
  EXPECT_TRUE(EnterPi("abcd"));
  EXPECT_EQ(Tab().PiText.Text(), "ABCD");
  EXPECT_EQ(std::tuple(configData->Country(), configData->Coverage(), configData->ProgramNum()),
            std::tuple(10, 11, 205));
  EXPECT_EQ(Selected(Tab().CountryCombo), "Austria");  // A/E0
  EXPECT_EQ(Selected(Tab().CoverageCombo), "Regional 8 + ARI");
  EXPECT_EQ(Tab().IDNumberText.Text(), "001");  // stays until a step or a read moves it
  Step(Tab().VScroll3, +1);
  EXPECT_EQ(Tab().IDNumberText.Text(), "206");
  EXPECT_TRUE(EnterPi("5000"));
  Step(Tab().VScroll3, -1);
  EXPECT_EQ(Tab().IDNumberText.Text(), "000");  // at the limit
  // Of an extended code that no such country has, the list shows those of the first digit all the
  // same.
  configData->SetEcc(0xA6);
  const auto countries = Tab().CountryList.Entries();
  EXPECT_TRUE(EnterPi("abcd"));
  EXPECT_EQ(Tab().CountryCombo.Index(), ListBox::kNone);
  EXPECT_NE(Tab().CountryList.Entries(), countries);
}

TEST_F(PiTabTest, BadPiIsRefusedAndStaysSelected) {
  OpenScreen(kLocal);
  for (const char* keys : {"12", "0123"}) {
    dialogs.beeps = 0;
    EXPECT_FALSE(EnterPi(keys)) << keys;
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_EQ(Tab().PiText.SelLength(), static_cast<int>(Tab().PiText.Text().size()));
    Tab().SendPiCommand.Press();
  }
  EXPECT_EQ(configData->Country(), 5);
  EXPECT_TRUE(port.written.empty());
}

TEST_F(PiTabTest, KeysOfPi) {
  OpenScreen(kLocal);
  const std::tuple<int, int, int, const char*, int> cases[] = {{3, 1, 'g', "ABCD", 1},
                                                               {4, 0, '1', "ABCD", 1},
                                                               {1, 2, '1', "A1D", 0},
                                                               {4, 0, kKeyBackspace, "ABC", 0}};
  for (const auto& [caret, selected, key, after, beeps] : cases) {
    Tab().PiText.SetText("ABCD");
    Tab().PiText.Select(caret, selected);
    dialogs.beeps = 0;
    Tab().PiText.TypeKey(key);
    EXPECT_EQ(Tab().PiText.Text(), after) << key;
    EXPECT_EQ(dialogs.beeps, beeps) << key;
  }
}

TEST_F(PiTabTest, OneWayLink) {
  OpenScreen("[Serial Setup]\nBurst=3\n");
  ExpectAddressRule({&Tab().SendPiCommand, &Tab().SendPiBurstCommand, &Tab().SendEccCommand,
                     &Tab().SendLicBurstCommand});
  Tab().SendPiCommand.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>{kItaly5000});
  LinkError = 5;  // of an earlier run
  Tab().SendPiBurstCommand.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>(3, kItaly5000));
  port.Wrote = [this] { EscPressed = port.written.size() == 2; };
  Tab().SendPiBurstCommand.Press();
  EXPECT_EQ(Written().size(), 2U);  // ended after the frame that was being written
}

TEST_F(PiTabTest, ReadShowsWhatTheCoderHolds) {
  OpenScreen(kLocal);
  Hold(0x01, "A27F");
  Tab().ReadPiCommand.Press();
  EXPECT_EQ(Written(), (std::vector<Bytes>{{0x02, 0x01, 0x00, 0x03, 0x00}}));
  EXPECT_EQ(Selected(Tab().CountryCombo), "Austria");
  EXPECT_EQ(Selected(Tab().CoverageCombo), "National");
  EXPECT_EQ(Tab().IDNumberText.Text(), "127");
  EXPECT_EQ(Tab().PiText.Text(), "A27F");
  EXPECT_EQ(Tab().CountryList.Entries().front(), "Puerto Rico 10");

  Hold(0x19, "D1");
  Tab().ReadEccCommand.Press();
  EXPECT_EQ(configData->Ecc(), 0xD1);
  EXPECT_EQ(Selected(Tab().CountryCombo), "Ascension Island");
  EXPECT_EQ(Tab().EccText.Text(), "F1");  // 0xD1 or 0xE0, until the list sets it again

  Hold(0x19, "B5");  // no country has it: the line's row holds, from whatever line
  for (const char* pi : {"6000", "A27F"}) {
    EXPECT_TRUE(EnterPi(pi));
    for (int times = 0; times < 2; ++times) {
      Tab().ReadEccCommand.Press();
      EXPECT_EQ(configData->Ecc(), 0xA0) << pi;
    }
  }

  for (const auto& [digits, code] : {std::pair("30", 0x30), {"80", 0x80}, {"FF", 0xFF}}) {
    Hold(0x1A, digits);  // a code without a name
    Tab().ReadLicCommand.Press();
    EXPECT_EQ(Selected(Tab().LicCombo), "");
    EXPECT_EQ(configData->Lic(), code);
  }
}

}  // namespace
}  // namespace corvalis::test
