// The TP-DI tab, driven through its controls against the Coder in memory.

#include "station/tp_di_tab.h"

#include <gtest/gtest.h>

#include "station/ct_tp_di_pi_form.h"
#include "support/station_screen.h"

namespace corvalis::test {
namespace {

const Bytes kNoTp = Hex("02 02 00 30 03 33");
const Bytes kRefusal = Hex("15 02 00 07 03 06");
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
}

TEST_F(TpDiTabTest, SendWritesTpAndThenDiUnlessTpFailed) {
  OpenScreen(kLocal);
  LinkError = 5;  // of an earlier run
  Tab().Command4.Press();
  EXPECT_EQ(Written(), (std::vector<Bytes>{kNoTp, kDiStereo}));
  for (CheckBox* box : {&Tab().Check1, &Tab().Check2, &Tab().Check4, &Tab().Check9}) box->Press();
  Tab().Command4.Press();
  EXPECT_EQ(Held(0x02) + Held(0x04), "1A");  // artificial head and dynamic PTY
  EXPECT_EQ(Boxes(), no_boxes);

  port.answer = [](const Bytes&) { return kRefusal; };
  port.written.clear();
  Tab().Command4.Press();
  EXPECT_EQ(Written().size(), 1U);
  EXPECT_EQ(Boxes().size(), 1U);
}

TEST_F(TpDiTabTest, OneWayLinkRepeatsTpOnceMoreAndSendsASingleDi) {
  OpenScreen(kSatellite);
  EXPECT_FALSE(Tab().Command3.Visible());
  ExpectAddressRule({&Tab().Command4, &Tab().Command5});
  for (const int burst : {3, 0}) {
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
  }
}

TEST_F(TpDiTabTest, ReadShowsWhatTheCoderHolds) {
  OpenScreen(kLocal);
  EXPECT_FALSE(Tab().Command5.Visible());
  Hold(0x02, "1");
  Hold(0x04, "E");
  Tab().Command3.Press();
  EXPECT_EQ(Written(), (std::vector<Bytes>{Hex("02 02 00 03 03"), Hex("02 04 00 03 05")}));
  EXPECT_EQ(Shown(), "11110");
}

}  // namespace
}  // namespace corvalis::test
