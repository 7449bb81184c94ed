// The TP-DI tab, driven through its controls against the Coder in memory.

#include "station/tp_di_tab.h"

#include <gtest/gtest.h>

#include "config/config_data.h"
#include "link/serial_management.h"
#include "station/ct_tp_di_pi_form.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

const Bytes kNoTp = Hex("02 02 00 30 03 33");
const Bytes kTp = Hex("02 02 00 31 03 32");
const Bytes kDiStereo = Hex("02 04 00 31 03 34");

class TpDiTabTest : public LinkTest {
 protected:
  void OpenScreen(const std::string& file, bool open_coder = true) {
    Start(file, {}, open_coder);
    Open();
    form = std::make_unique<CtTpDiPiForm>(main_menu);
    main_menu.Show();
    form->Load();
    port.written.clear();
  }
  TpDiTab& Tab() const { return form->tp_di; }

  struct Flag {
    CheckBox& true_box;
    CheckBox& false_box;
    bool (ConfigData::*value)() const;
  };
  std::vector<Flag> Flags() const {
    TpDiTab& t = Tab();
    return {{t.Check1, t.Check10, &ConfigData::Tp},
            {t.Check2, t.Check3, &ConfigData::Mono},
            {t.Check4, t.Check5, &ConfigData::ArtificialHead},
            {t.Check6, t.Check7, &ConfigData::Compressed},
            {t.Check8, t.Check9, &ConfigData::StaticPty}};
  }
  /// The five fields, TP first, and a "!" behind one that its boxes do not show.
  std::string Shown() const {
    std::string shown;
    for (const Flag& flag : Flags()) {
      const bool value = (configData->*flag.value)();
      shown += value ? '1' : '0';
      if (flag.true_box.Checked() != value || flag.false_box.Checked() == value) shown += '!';
    }
    return shown;
  }

  Window main_menu{this, "MainForm"};
  std::unique_ptr<CtTpDiPiForm> form;
};

TEST_F(TpDiTabTest, EitherBoxOfAPairSetsTheFieldAndThePartner) {
  OpenScreen(kLocal);
  EXPECT_EQ(Shown(), "00001");
  for (const Flag& flag : Flags()) {
    for (CheckBox* box : {&flag.true_box, &flag.true_box, &flag.false_box, &flag.false_box}) {
      const bool before = (configData->*flag.value)();
      box->Press();
      EXPECT_EQ((configData->*flag.value)(), !before) << box->Name();
      EXPECT_EQ(Shown().size(), 5U) << Shown();
    }
  }
  EXPECT_EQ(Shown(), "00001");
  EXPECT_TRUE(port.written.empty());
}

TEST_F(TpDiTabTest, OpeningShowsTheRecord) {
  OpenScreen(kLocal);
  configData->SetTp(true);
  configData->SetCompressed(true);
  configData->SetStaticPty(false);
  form->Load();
  EXPECT_EQ(Shown(), "10010");
}

TEST_F(TpDiTabTest, SendWritesTpAndThenDi) {
  OpenScreen(kLocal);
  LinkError = 5;  // of an earlier run
  Tab().Command4.Press();
  EXPECT_EQ(port.written, (std::vector<Bytes>{kNoTp, kDiStereo}));

  port.written.clear();
  Tab().Check1.Press();
  Tab().Check2.Press();
  Tab().Check4.Press();
  Tab().Check9.Press();
  Tab().Command4.Press();
  EXPECT_EQ(port.written.front(), kTp);
  EXPECT_EQ(the_coder->Item(0x02), Bytes{'1'});
  EXPECT_EQ(the_coder->Item(0x04), Bytes{'A'});  // artificial head and dynamic PTY
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(TpDiTabTest, DiIsNotSentAfterAFailedTp) {
  OpenScreen(kLocal, /*open_coder=*/false);
  Tab().Command4.Press();
  EXPECT_EQ(port.written, std::vector<Bytes>{kNoTp});
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "TP: [RDS] before send address  ");

  LinkOpen = false;
  Tab().Command4.Press();
  ASSERT_EQ(dialogs.boxes.size(), 2U);
  EXPECT_EQ(dialogs.boxes[1].text, "TP: [ TX ] serial unconnected  ");
  Tab().Command3.Press();
  EXPECT_EQ(dialogs.boxes.size(), 2U);
  EXPECT_EQ(port.written.size(), 1U);
}

TEST_F(TpDiTabTest, BurstRepeatsTpOnceMoreAndSendsASingleDi) {
  for (const int burst : {3, 1, 0}) {
    if (form == nullptr) OpenScreen(kSatellite);
    AddressSent = true;
    configData->SetBurst(static_cast<std::int16_t>(burst));
    LinkError = 5;
    port.written.clear();
    Tab().Command5.Press();
    std::vector<Bytes> expected(static_cast<std::size_t>(burst) + 1, kNoTp);
    expected.push_back(kDiStereo);
    EXPECT_EQ(port.written, expected) << burst;
  }
}

TEST_F(TpDiTabTest, AbortEndsTheBurstWithoutDi) {
  OpenScreen(kSatellite);
  AddressSent = true;
  for (const std::size_t last : {2U, 4U}) {  // in the midst, and in the last TP
    port.written.clear();
    port.Wrote = [this, last] { EscPressed = port.written.size() == last; };
    Tab().Command5.Press();
    EXPECT_EQ(port.written, std::vector<Bytes>(last, kNoTp));
    EXPECT_EQ(LinkError, kErrorAborted);
  }
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_TRUE(form->window.Enabled());
}

TEST_F(TpDiTabTest, ReadShowsWhatTheCoderHolds) {
  OpenScreen(kLocal);
  struct Case {
    std::uint8_t tp, di;
    const char* shown;
  };
  const Case cases[] = {{'1', 'E', "11110"},
                        {'0', '1', "00001"},
                        {'1', '0', "11001"},
                        {'2', 'F', "00110"}};  // only "1" is a TP
  for (const Case& c : cases) {
    the_coder->SetItem(0x02, 0, Bytes{c.tp});
    the_coder->SetItem(0x04, 0, Bytes{c.di});
    port.written.clear();
    Tab().Command3.Press();
    EXPECT_EQ(port.written, (std::vector<Bytes>{Hex("02 02 00 03 03"), Hex("02 04 00 03 05")}));
    EXPECT_EQ(Shown(), c.shown);
  }
}

TEST_F(TpDiTabTest, DiIsReadWhateverBecameOfTp) {
  OpenScreen(kLocal);
  port.answer = [this](const Bytes& frame) {
    return frame[1] == 0x02 ? Hex("15 02 00 07 03 06") : the_coder->Take(frame);
  };
  the_coder->SetItem(0x04, 0, Bytes{'E'});
  configData->SetTp(true);
  Tab().Command3.Press();
  EXPECT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(Shown(), "11110");
}

TEST_F(TpDiTabTest, ButtonsFollowTheLinkAndTheAddressRule) {
  OpenScreen(kSatellite);
  EXPECT_FALSE(Tab().Command3.Visible());
  for (Button* button : {&Tab().Command4, &Tab().Command5}) {
    dialogs.boxes.clear();
    button->Press();
    ASSERT_EQ(dialogs.boxes.size(), 1U);
    EXPECT_EQ(dialogs.boxes[0].text, "Before send Address");
  }
  EXPECT_TRUE(port.written.empty());

  configData->SetSatellite(false);
  form->Load();
  EXPECT_TRUE(Tab().Command3.Visible());
  EXPECT_TRUE(Tab().Command4.Visible());
  EXPECT_FALSE(Tab().Command5.Visible());
}

}  // namespace
}  // namespace corvalis::test
