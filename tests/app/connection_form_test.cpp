// The Coder ID, and a whole configuration on its way.

#include "app/connection_form.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <sstream>

#include "app/configuration.h"
#include "app/single_instance.h"
#include "busy/transfer_bracket.h"
#include "config/language_data.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "networks/li_data.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "networks/tmc_data.h"
#include "programme/af_a_data.h"
#include "programme/af_b_data.h"
#include "programme/pin_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/ptyn_data.h"
#include "programme/rt_data.h"
#include "screen/keys.h"
#include "support/station_screen.h"

namespace corvalis::test {
namespace {

enum Code : std::uint8_t {
  kPi = 0x01,
  kTp,
  kPsn,
  kDi,
  kAf,
  kPin,
  kRt,
  kAddress,
  kCt = 0x10,
  kTdc,
  kIh,
  kEon = 0x16,
  kPtyn,
  kEcc = 0x19,
  kLic,
  kLi,
  kPage,
  kPlan = 0x1F,
  kTmcSystem = 0x21,
  kTmc
};

class ConnectionTest : public StationScreenTest<ConnectionForm> {
 protected:
  using Lists = SingleInstances<afAData, afBData, psnData, psnPageData, rtData, pinData, tdc0Data,
                                tdcData, ihData, eonData, liData, ptynData, tmcData>;
  ~ConnectionTest() override {
    form.reset();
    Lists::Release();
  }
  void LoadLists() override {
    the_coder->SetSizes(
        {.psn = 3, .page = 2, .plan = 2, .rt = 3, .pin = 3, .af = 3, .eon = 2, .tmc = 2, .ih = 2});
    Lists::Create();
  }
  // A file of these sizes that selects what is named: "Psn Rt".
  static std::string File(const std::string& link, const std::string& presets,
                          const std::string& setup = "") {
    std::string file = link + "Burst=2\n[RDS Setup]\n" + setup;
    std::istringstream names(presets);
    for (std::string name; names >> name;) file += "Preset" + name + "=On\n";
    return file +
           "[PSN Pages]\nMaxPsnNum=3\nMaxPsnPagesNum=2\n[PSN Plan]\nMaxPsnPlanNum=2\n"
           "[RT]\nMaxRtNum=3\n[PIN]\nMaxPinNum=3\n[AF Method B]\nMaxAfBListNum=3\n"
           "[EON]\nMaxEonNum=3\n[TMC]\nMaxListNum=3\n[Ih Pages]\nPage Count=2\n";
  }
  static constexpr const char* kAll = "Psn Rt Pin Af Tdc Ih Pi Ct Tp Di Ecc Lic Li Eon Ptyn Tmc";

  // What was written since the last call: codes, and how many frames of each in a row.
  using Runs = std::vector<std::pair<int, int>>;
  Runs Codes() {
    Runs runs;
    for (const Bytes& frame : Written()) {
      if (runs.empty() || runs.back().first != frame[1]) runs.emplace_back(frame[1], 0);
      ++runs.back().second;
    }
    return runs;
  }
  // The Coder answers, but for the frames that `bad` says: those are refused with error 3.
  void Refuse(const std::function<bool(const Bytes& frame)>& bad) {
    port.answer = [this, bad](const Bytes& frame) {
      if (bad(frame)) return Bytes{0x15, 0x02, 0x00, 0x03, 0x03, 0x02};
      Bytes all;
      for (const auto& answer : line->Take(frame)) {
        all.insert(all.end(), answer.bytes.begin(), answer.bytes.end());
      }
      return all;
    };
  }
  static Bytes Body(const Bytes& frame) { return {frame.begin() + 3, frame.end() - 2}; }
};

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
  OpenScreen(File(kSatellite, ""));
  for (Button* button : {&form->Command4, &form->Command5}) {
    AddressSent = false;
    button->Press();
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

TEST_F(ConnectionTest, AllItemsTravelInTheirOrder) {
  const std::string names = "PSN Pages Enable=Off\nAF Method A=Off\n";
  const Runs end = {{kPi, 1}, {kCt, 1},  {kTp, 1},    {kDi, 1},        {kEcc, 1}, {kLic, 1},
                    {kLi, 1}, {kEon, 2}, {kPtyn, 32}, {kTmcSystem, 1}, {kTmc, 2}};
  const auto all = [&](const Runs& first, int pages) {
    Runs runs = first;
    runs.insert(runs.end(), {{kRt, 3}, {kPin, 3}, {kAf, 3}, {kTdc, 131}});
    if (pages > 0) runs.emplace_back(kIh, 17 * pages);
    runs.insert(runs.end(), end.begin(), end.end());
    return runs;
  };
  const auto shows_the_record = [this] {
    EXPECT_EQ(form->AFAOption.Chosen(), configData->AfMethodA());
    EXPECT_EQ(form->AFBOption.Chosen(), !configData->AfMethodA());
    EXPECT_EQ(form->PSNPagesCheck.Checked(), configData->PsnPagesEnable());
  };
  OpenScreen(File(kLocal, kAll, names));
  shows_the_record();
  Refuse([](const Bytes&) { return false; });
  int shown = 0;
  time.After(0, [&] { shown = TransferScreenStands() ? 1 : 0; });
  form->Command11.Press();
  EXPECT_EQ(shown, 1);
  const auto first_tdc = std::find_if(port.written.begin(), port.written.end(),
                                      [](const Bytes& frame) { return frame[1] == kTdc; });
  ASSERT_NE(first_tdc, port.written.end());
  EXPECT_EQ((first_tdc + 1)->at(2), 32);    // the subchannels go before the channels
  EXPECT_EQ(Codes(), all({{kPsn, 3}}, 0));  // in-house pages are not sent: meant
  port.answer = nullptr;
  form->Command1.Press();
  EXPECT_EQ(Codes(), all({{kPsn, 3}}, 2));
  EXPECT_EQ(Boxes(), no_boxes);

  OpenScreen(File(kLocal, kAll, "PSN Plan Enable=On\n"));
  shows_the_record();
  form->AFBOption.Press();
  form->Command1.Press();
  EXPECT_EQ(Codes(), all({{kPage, 6}, {kPlan, 2}}, 2));
  OpenScreen(File(kLocal, "Psn", "PSN Plan Enable=Off\n"));
  form->Command1.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 6}}));
  OpenScreen(File(kLocal, "", names));
  shows_the_record();
  form->Command11.Press();
  form->Command1.Press();
  EXPECT_EQ(Codes(), Runs{});
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(ConnectionTest, BurstsRepeatAllOfIt) {
  OpenScreen(File(kSatellite, "Psn Pi Ct Ih", "PSN Plan Enable=Off\n"));
  EXPECT_FALSE(form->Command1.Visible());
  EXPECT_TRUE(form->Command12.Visible());
  using std::chrono::local_days;
  const DateTime then = local_days{std::chrono::year{2027} / 3 / 1} + std::chrono::hours(4) +
                        std::chrono::minutes(30);
  configData->SetDateValue(then);
  configData->SetDayOfWeek(1);
  ExpectAddressRule({&form->Command11, &form->Command12});
  form->Command12.Press();
  const auto clock_of = [](const Bytes& frame) {
    const Bytes body = Body(frame);
    return std::string(body.begin(), body.begin() + 11);
  };
  for (const Bytes& frame : port.written) {
    if (frame[1] != kCt) continue;
    EXPECT_EQ(clock_of(frame), "27030110430");
  }
  const Runs pass = {{kPage, 6}, {kPlan, 2}, {kPi, 1}, {kCt, 1}};  // the plan goes along: meant
  Runs passes;
  for (int i = 0; i < 3; ++i) passes.insert(passes.end(), pass.begin(), pass.end());
  EXPECT_EQ(Codes(), passes);
  EXPECT_EQ(configData->DateValue(), then);
  form->Command11.Press();
  EXPECT_EQ(clock_of(port.written.back()).substr(6, 1),
            std::to_string(WeekdayFromMonday(machine.clock->Now())));
  EXPECT_NE(clock_of(port.written.back()), "27030110430");
  EXPECT_EQ(Codes(), (Runs{{kPage, 6}, {kPi, 1}, {kCt, 1}}));
  EXPECT_EQ(configData->DateValue(), machine.clock->Now());
  EXPECT_EQ(configData->DayOfWeek(), WeekdayFromMonday(machine.clock->Now()));

  // An abort ends the passes.
  for (const int code : {kPage, kPi}) {
    port.Wrote = [this, code] {
      if (port.written.back()[1] == code) EscPressed = true;
    };
    form->Command12.Press();
    const Runs runs = Codes();
    EXPECT_EQ(runs.back(), std::pair(code, 1));
    EXPECT_EQ(
        std::count_if(runs.begin(), runs.end(), [](const auto& run) { return run.first == kPage; }),
        1);
    EXPECT_FALSE(EscPressed);
  }
  EXPECT_EQ(Boxes(), no_boxes);
}

// What a page and the plan do after a failure, in each way.
TEST_F(ConnectionTest, ThePagesGoOnInAWayOfTheirOwn) {
  const auto first_row = [](const Bytes& frame) { return frame[1] == kPage && frame[3] == '0'; };
  OpenScreen(File(kLocal, "Psn Pi", "PSN Plan Enable=On\n"));
  Refuse(first_row);
  form->Command11.Press();
  // The first page ends at its first row; the next, the plan and all else go on.
  EXPECT_EQ(Codes(), (Runs{{kPage, 1 + 3}, {kPlan, 2}, {kPi, 1}}));
  EXPECT_EQ(Boxes().size(), 1U);
  Refuse([](const Bytes& frame) { return frame[1] == kPage || frame[1] == kPlan; });
  form->Command11.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 2}, {kPlan, 1}}));
  EXPECT_EQ(Boxes().size(), 3U);
  form->Command1.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 1}, {kPlan, 1}}));
  EXPECT_EQ(Boxes().size(), 2U);
  Refuse(first_row);
  form->Command1.Press();
  EXPECT_EQ(Codes(), (Runs{{kPage, 1}, {kPlan, 2}, {kPi, 1}}));
  EXPECT_EQ(Boxes().size(), 1U);

  // The operator's abort ends all, also there.
  for (Button* button : {&form->Command1, &form->Command11}) {
    port.answer = [](const Bytes&) { return Bytes{}; };
    time.After(1, [] { EscPressed = true; });
    button->Press();
    EXPECT_EQ(Codes(), (Runs{{kPage, 1}}));
    EXPECT_EQ(Boxes(), no_boxes);
  }
}

// Whatever happens to the line at some item of some step: it is said once, the rest is left, and
// the next run works.
TEST_F(ConnectionTest, FaultsInMidTransfer) {
  struct Fault {
    const char* name;
    std::function<Bytes(const Bytes& answer)> answer;
    std::size_t boxes = 1;
  };
  const Fault faults[] = {
      {"refused", [](const Bytes&) { return Bytes{0x15, 0x02, 0x00, 0x03, 0x03, 0x02}; }},
      {"silent", [](const Bytes&) { return Bytes{}; }},
      {"garbage",
       [](const Bytes&) {
         return Bytes{0x55, 0xAA, 0x06};
       }},
      {"cut", [](const Bytes& answer) { return Bytes(answer.begin(), answer.end() - 1); }},
      {"falsified",
       [](const Bytes& answer) {
         Bytes falsified;
         for (const std::uint8_t byte : answer) falsified.push_back(byte ^ 0x10);
         return falsified;
       }},
      {"unplugged",
       [this](const Bytes&) {
         LinkOpen = false;
         return Bytes{};
       }},
      {"aborted",
       [this](const Bytes&) {
         time.After(1, [] { EscPressed = true; });
         return Bytes{};
       },
       0}};
  const std::tuple<const char*, int, int> steps[] = {
      {"Psn", kPsn, 3},   {"Rt", kRt, 3},   {"Pin", kPin, 3},    {"Af", kAf, 3},
      {"Tdc", kTdc, 131}, {"Ih", kIh, 34},  {"Pi", kPi, 1},      {"Ct", kCt, 1},
      {"Tp", kTp, 1},     {"Di", kDi, 1},   {"Ecc", kEcc, 1},    {"Lic", kLic, 1},
      {"Li", kLi, 1},     {"Eon", kEon, 2}, {"Ptyn", kPtyn, 32}, {"Tmc", kTmcSystem, 1},
      {"Tmc", kTmc, 2}};
  unsigned random = 20261125;
  for (const auto& [preset, code, frames] : steps) {
    for (const Fault& fault : faults) {
      for (const bool send : {false, true}) {
        if (send && code == kIh) continue;  // never sent
        random = random * 1103515245 + 12345;
        const int at = static_cast<int>(random >> 16) % frames;
        SCOPED_TRACE(std::string(preset) + " " + fault.name + (send ? " sent, " : " read, ") +
                     std::to_string(at));
        OpenScreen(File(kLocal, std::string(preset) + " Ptyn", "PSN Pages Enable=Off\n"));
        configData->SetAfMethodA(false);
        Button& button = send ? form->Command11 : form->Command1;
        int seen = 0;
        port.answer = [&, target = code](const Bytes& frame) {
          Bytes answer;
          for (const auto& one : line->Take(frame)) {
            answer.insert(answer.end(), one.bytes.begin(), one.bytes.end());
          }
          return frame[1] == target && seen++ >= at ? fault.answer(answer) : answer;
        };
        button.Press();
        EXPECT_EQ(Boxes().size(), fault.boxes);
        const Runs runs = Codes();
        ASSERT_FALSE(runs.empty());
        EXPECT_EQ(runs.back().first, code);  // nothing after it
        EXPECT_TRUE(form->window.Enabled());
        EXPECT_FALSE(EscPressed);
        LinkOpen = true;
        seen = std::numeric_limits<int>::min();  // the line is good again
        button.Press();
        EXPECT_EQ(Boxes(), no_boxes);
        EXPECT_EQ(Codes().back().first, code < kTmcSystem ? kPtyn : kTmc);
      }
    }
  }
}

TEST_F(ConnectionTest, WhatWasReadBeforeAFailureIsKept) {
  OpenScreen(File(kLocal, "Rt"));
  Hold(kRt, "07" + std::string(64, 'R'), 0);
  Refuse([](const Bytes& frame) { return frame[1] == kRt && frame[2] == 1; });
  form->Command1.Press();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(rtData->Data(0), std::string(64, 'R'));
}

TEST_F(ConnectionTest, OnAClosedLinkSingleValuesAreSilent) {
  OpenScreen(File(kLocal, "Pi Tp"));
  LinkOpen = false;
  form->Command11.Press();
  form->Command1.Press();
  EXPECT_EQ(Boxes(), no_boxes);
  OpenScreen(File(kLocal, "Pi Li Eon Tp"));
  LinkOpen = false;
  form->Command11.Press();
  EXPECT_EQ(Boxes().size(), 1U);  // the first other item
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
  form->Command11.Press();
  EXPECT_EQ(form->SendLoadLabel.Caption(), "To send: 1 item, about a second");
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
