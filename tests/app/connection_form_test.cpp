// The screen of the Coder ID and of a whole configuration's transfer.

#include <gtest/gtest.h>

#include "app/connection_screen.h"
#include "config/language_data.h"

namespace corvalis::test {
namespace {

struct TickCase {
  CheckBox ConnectionForm::*box;
  bool (ConfigData::*flag)() const;
  bool (ConfigData::*enabled)() const;
};
constexpr TickCase kTicks[] = {
    {&ConnectionForm::PsnCheck, &ConfigData::PresetPsn, nullptr},
    {&ConnectionForm::Check2, &ConfigData::PresetAf, nullptr},
    {&ConnectionForm::Check11, &ConfigData::PresetTp, nullptr},
    {&ConnectionForm::Check3, &ConfigData::PresetRt, nullptr},
    {&ConnectionForm::Check7, &ConfigData::PresetIh, nullptr},
    {&ConnectionForm::Check1, &ConfigData::PresetPi, nullptr},
    {&ConnectionForm::Check5, &ConfigData::PresetCt, nullptr},
    {&ConnectionForm::Check4, &ConfigData::PresetPin, nullptr},
    {&ConnectionForm::Check8, &ConfigData::PresetDi, nullptr},
    {&ConnectionForm::Check6, &ConfigData::PresetTdc, nullptr},
    {&ConnectionForm::EonCheck, &ConfigData::PresetEon, &ConfigData::EonEnable},
    {&ConnectionForm::LiCheck, &ConfigData::PresetLi, &ConfigData::EonEnable},
    {&ConnectionForm::PtynCheck, &ConfigData::PresetPtyn, &ConfigData::PtynEnable},
    {&ConnectionForm::EccCheck, &ConfigData::PresetEcc, &ConfigData::EccEnable},
    {&ConnectionForm::LicCheck, &ConfigData::PresetLic, &ConfigData::LicEnable},
    {&ConnectionForm::TmcCheck, &ConfigData::PresetTmc, &ConfigData::TmcEnable}};

TEST_F(ConnectionTest, TicksAreTheFlagsOfTheRecord) {
  const std::string off =
      "EON Enable=Off\nECC Enable=Off\nPTYN Enable=Off\nLIC Enable=Off\nTMC Enable=Off\n";
  for (const std::string& setup : {std::string(), off}) {
    OpenScreen(File(kLocal, kAll, setup));
    if (setup == off) {
      // A disabled box stops nothing; the counts are the file's then.
      configData->SetAfMethodA(false);
      port.answer = [](const Bytes&) { return Bytes{0x06}; };
      form->Command11.Press();
      port.answer = nullptr;
      const Runs runs = Codes();
      for (const auto& run : Runs{{kEcc, 1}, {kLic, 1}, {kLi, 1}, {kPtyn, 32}, {kTmc, 3}}) {
        EXPECT_NE(std::find(runs.begin(), runs.end(), run), runs.end()) << run.first;
      }
      Boxes();
    }
    for (const TickCase& tick : kTicks) {
      CheckBox& box = (*form).*tick.box;
      SCOPED_TRACE(box.Name());
      const bool tmc = &box == &form->TmcCheck;
      EXPECT_EQ(box.Checked(), !tmc);  // that of TMC opens clear, and its flag stays: meant
      EXPECT_TRUE((configData->*tick.flag)());
      EXPECT_EQ(box.Enabled(), tick.enabled == nullptr || (configData->*tick.enabled)());
      if (!box.Enabled()) continue;
      box.Press();
      box.Press();
      EXPECT_EQ((configData->*tick.flag)(), !tmc);
      if (!tmc) box.Press();
      EXPECT_FALSE((configData->*tick.flag)());
    }
    form->window.Close();
  }
}

TEST_F(ConnectionTest, OpeningStoresNothing) {
  OpenScreen(File(kLocal, "Tmc"));
  form->TmcCheck.Press();  // shown again as it is stored
  EXPECT_TRUE(form->TmcCheck.Checked());
  for (int times = 0; times < 3; ++times) {
    form->window.Close();
    form->Load();
    EXPECT_FALSE(form->TmcCheck.Checked());
    EXPECT_TRUE(configData->PresetTmc());
  }
  EXPECT_TRUE(form->Command1.Visible());
  EXPECT_FALSE(form->Command12.Visible());
  form->PSNPagesCheck.Press();  // has no effect: meant
  EXPECT_TRUE(configData->PsnPagesEnable());
  form->AFBOption.Press();
  EXPECT_EQ(std::tuple(form->AFAOption.Chosen(), configData->AfMethodA()),
            std::tuple(false, false));
  form->AFAOption.Press();
  EXPECT_EQ(std::tuple(form->AFBOption.Chosen(), configData->AfMethodA()), std::tuple(false, true));
}

TEST_F(ConnectionTest, CoderIds) {
  OpenScreen(File(kLocal, ""));
  EXPECT_EQ(form->Text1.Text() + form->Text2.Text(), "??????????");
  form->window.MoveFocus(&form->Text1);
  form->Text1.SelectAll();
  form->Text1.Type("ABCDEF\b");
  EXPECT_EQ(dialogs.beeps, 1);
  EXPECT_EQ(configData->PresetPassword(), "ABCD");
  form->Text1.Paste("123");
  EXPECT_EQ(configData->PresetPassword(), "ABCD1");
  form->Text1.Edit("A1C", 3);
  form->Text2.SetText("N2");
  for (const auto& [button, index, id] :
       {std::tuple(&form->Command4, 0, "A1C  "), {&form->Command5, 1, "N2   "}}) {
    AddressSent = false;
    button->Press();
    const std::vector<Bytes> frames = Written();
    ASSERT_EQ(frames.size(), 1U);
    EXPECT_EQ(frames[0][1], kAddress);
    EXPECT_EQ(frames[0][2], index);
    const Bytes body = Body(frames[0]);
    EXPECT_EQ(std::string(body.begin(), body.end()), id);
  }
  EXPECT_EQ(form->Text1.Text(), "A1C");
  Boxes();
  AddressSent = false;
  OpenScreen(File(kSatellite, ""));
  EXPECT_EQ(form->AddressStateLabel.Caption(), "no address sent: SEND ID first");
  for (Button* button : {&form->Command4, &form->Command5}) {
    AddressSent = false;
    button->Press();
    EXPECT_EQ(form->AddressStateLabel.Caption(), "address sent");
    EXPECT_EQ(Written().size(), 1U);  // whatever a burst would be
    EXPECT_TRUE(AddressSent);
  }
  EXPECT_EQ(Boxes(), no_boxes);
  OpenScreen(File(kLocal, ""));
  Refuse([](const Bytes&) { return false; });
  form->Command5.Press();
  EXPECT_TRUE(AddressSent);
  port.answer = [](const Bytes&) { return Bytes{}; };
  time.After(1, [] { EscPressed = true; });
  form->Command4.Press();
  EXPECT_FALSE(AddressSent);
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(ConnectionTest, WhatTravelsStandsInWords) {
  OpenScreen(File(kLocal, "Rt Af Tmc Ih", "AF Method A=Off\n"));
  configData->SetAfMethodA(false);
  EXPECT_EQ(TravelsWith(&ConfigData::PresetPsn), "2 pages of 3 names, 2 rows of the plan");
  EXPECT_EQ(TravelsWith(&ConfigData::PresetTmc), "the TMC system, 2 traffic messages");
  const ConfigurationLoad send = LoadOfConfiguration(ConfigurationRun::kSend);
  EXPECT_EQ(send.items, 3 + 3 + 3);
  // 9600,N,8,2: 3 radio texts, 3 lists, the system and 2 messages, each with its acknowledgement.
  EXPECT_NEAR(send.seconds, (3 * 72 + 3 * 58 + 14 + 2 * 18) * 11 / 9600.0, 1e-9);
  const ConfigurationLoad read = LoadOfConfiguration(ConfigurationRun::kRead);
  EXPECT_EQ(read.items, 11);
  EXPECT_NEAR(read.seconds - (3 * 77 + 3 * 63 + 19 + 2 * 23) * 11 / 9600.0,
              2 * (16 * 0.2 + (16 * 145 + 25) * 11 / 9600.0), 1e-9);
  const std::string before = form->SendLoadLabel.Caption();
  form->Check3.Press();
  EXPECT_NE(form->SendLoadLabel.Caption(), before);
  EXPECT_EQ(form->Check3.ToolTip(), languageData->ConnectionRTTip() + ":\n3 radio texts");
  // Method A leaves no other list: 2 of this Coder, 99 where nobody can ask; once.
  const double without = LoadOfConfiguration(ConfigurationRun::kSend).seconds;
  form->AFAOption.Press();
  EXPECT_NEAR(LoadOfConfiguration(ConfigurationRun::kSend).seconds - without, 2 * 0.2, 1e-9);
  OpenScreen(File(kSatellite, "Af"));
  EXPECT_NEAR(LoadOfConfiguration(ConfigurationRun::kSend).seconds,
              57 * 11 / 9600.0 + 99 * (0.2 + 57 * 11 / 9600.0), 1e-9);
  EXPECT_EQ(form->SendLoadLabel.Caption(), "To send: 1 item, about 30 seconds");
  AddressSent = true;
  configData->SetBurst(-1);
  form->Command11.Press();
  EXPECT_EQ(form->SendLoadLabel.Caption(), "To send: 1 item, about a second");
  EXPECT_EQ(form->BurstLoadLabel.Caption(), "In a burst: nothing");
  for (const auto& [seconds, words] : {std::pair(0.2, "about a second"),
                                       {4.2, "about 5 seconds"},
                                       {41., "about 50 seconds"},
                                       {110., "about 2 minutes"},
                                       {600., "about 10 minutes"}}) {
    EXPECT_EQ(AboutInWords(seconds), words);
  }
}

}  // namespace
}  // namespace corvalis::test
