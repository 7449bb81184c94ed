// The TP-DI tab, driven through its controls against the Coder in memory.

#include "station/tp_di_tab.h"

#include <gtest/gtest.h>

#include "station/ct_tp_di_pi_form.h"
#include "support/station_screen.h"

namespace corvalis::test {
namespace {

const Bytes kNoTp = Hex("02 02 00 30 03 33");
const Bytes kDiStereo = Hex("02 04 00 31 03 34");

class TpDiTabTest : public StationScreenTest<CtTpDiPiForm> {
 protected:
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
  configData->SetTp(true);
  configData->SetCompressed(true);
  form->Load();
  EXPECT_EQ(Shown(), "10011");
}

TEST_F(TpDiTabTest, SendWritesTpAndThenDi) {
  OpenScreen(kLocal);
  LinkError = 5;  // of an earlier run
  Tab().Command4.Press();
  EXPECT_EQ(Written(), (std::vector<Bytes>{kNoTp, kDiStereo}));
  for (CheckBox* box : {&Tab().Check1, &Tab().Check2, &Tab().Check4, &Tab().Check9}) box->Press();
  Tab().Command4.Press();
  EXPECT_EQ(Held(0x02), "1");
  EXPECT_EQ(Held(0x04), "A");  // artificial head and dynamic PTY
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(TpDiTabTest, DiIsNotSentAfterAFailedTp) {
  OpenScreen(kLocal, /*open_coder=*/false);
  Tab().Command4.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>{kNoTp});
  EXPECT_EQ(Boxes(), std::vector<std::string>{"TP: [RDS] before send address  "});
  LinkOpen = false;
  Tab().Command4.Press();
  EXPECT_EQ(Boxes(), std::vector<std::string>{"TP: [ TX ] serial unconnected  "});
  Tab().Command3.Press();
  EXPECT_EQ(Boxes(), no_boxes);
  EXPECT_TRUE(port.written.empty());
}

TEST_F(TpDiTabTest, OneWayLinkRepeatsTpOnceMoreAndSendsASingleDi) {
  OpenScreen(kSatellite);
  EXPECT_FALSE(Tab().Command3.Visible());
  ExpectAddressRule({&Tab().Command4, &Tab().Command5});
  for (const int burst : {3, 1, 0}) {
    configData->SetBurst(static_cast<std::int16_t>(burst));
    LinkError = 5;
    Tab().Command5.Press();
    std::vector<Bytes> expected(static_cast<std::size_t>(burst) + 1, kNoTp);
    expected.push_back(kDiStereo);
    EXPECT_EQ(Written(), expected) << burst;
  }
  configData->SetBurst(3);
  for (const std::size_t last : {2U, 4U}) {  // in the midst, and in the last TP
    port.Wrote = [this, last] { EscPressed = port.written.size() == last; };
    Tab().Command5.Press();
    EXPECT_EQ(Written(), std::vector<Bytes>(last, kNoTp));
    EXPECT_EQ(LinkError, kErrorAborted);
  }
  EXPECT_EQ(Boxes(), no_boxes);
  OpenScreen(kLocal);
  EXPECT_TRUE(Tab().Command3.Visible());
  EXPECT_FALSE(Tab().Command5.Visible());
}

TEST_F(TpDiTabTest, ReadShowsWhatTheCoderHolds) {
  OpenScreen(kLocal);
  Hold(0x02, "1");
  Hold(0x04, "E");
  Tab().Command3.Press();
  EXPECT_EQ(Written(), (std::vector<Bytes>{Hex("02 02 00 03 03"), Hex("02 04 00 03 05")}));
  EXPECT_EQ(Shown(), "11110");
  // DI is read whatever became of TP.
  port.answer = [this](const Bytes& frame) {
    return frame[1] == 0x02 ? Hex("15 02 00 07 03 06") : the_coder->Take(frame);
  };
  Hold(0x04, "1");
  Tab().Command3.Press();
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(Shown(), "10001");
}

}  // namespace
}  // namespace corvalis::test
