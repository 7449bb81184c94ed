// The on-air screen, driven through its controls against the Coder in memory.

#include "station/ta_pty_ms_form.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/station_screen.h"

namespace corvalis::test {
namespace {

const Bytes kTaOn = Hex("02 0e 00 31 03 3e");
const Bytes kTaOff = Hex("02 0e 00 30 03 3f");
const Bytes kSpeech = Hex("02 0f 00 30 03 3e");
const Bytes kWeather = Hex("02 0d 00 31 30 03 0d");

class TaPtyMsTest : public StationScreenTest<TaPtyMsForm> {
 protected:
  /// The operator opens the list and chooses a line.
  void ChoosePty(int line) const {
    form->window.MoveFocus(&form->Combo1);
    form->Combo1.Choose(line);
  }
  /// The indicators that are to be seen.
  std::string Lit() const {
    std::string lit;
    for (const CheckBox* box : {&form->Check1, &form->Check2, &form->Check3, &form->Check4}) {
      EXPECT_TRUE(box->Checked());
      if (box->Visible()) lit += box->Name().back();
    }
    return lit;
  }
};

TEST_F(TaPtyMsTest, OpensOnTheRecord) {
  OpenScreen(kLocal);
  const std::tuple<bool, bool, std::int16_t, const char*, const char*> cases[] = {
      {false, true, 0, "14", "0    No program type or undefined"},
      {true, false, 31, "23", "31  Alarm! "},
      {true, true, 32, "13", ""}};
  for (const auto& [ta, music, pty, lit, line] : cases) {
    configData->SetTa(ta);
    configData->SetMusic(music);
    configData->SetPty(pty);
    form->Load();
    EXPECT_EQ(Lit(), lit);
    EXPECT_EQ(form->Combo1.Text(), line);
    form->window.Close();
    EXPECT_EQ(configData->Pty(), pty);  // showing it is no choice
  }
}

TEST_F(TaPtyMsTest, APressOfTaOrMsChangesTheValueAndSendsIt) {
  OpenScreen(kLocal);
  form->Command2.Press();
  EXPECT_EQ(Lit(), "13");
  form->Command6.Press();
  EXPECT_EQ(Lit(), "23");
  form->Check3.Press();  // an indicator only shows
  EXPECT_EQ(Lit(), "23");
  port.Wrote = [this] { form->Command2.Press(); };  // a press during a transfer is none
  form->Command2.Press();
  EXPECT_EQ(Written(), (std::vector<Bytes>{kTaOn, kSpeech, kTaOff}));
  EXPECT_FALSE(configData->Ta() || configData->Music());
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(TaPtyMsTest, OneWayLinkRepeatsWithoutAnAddress) {
  OpenScreen(kSatellite);
  EXPECT_FALSE(form->Command8.Visible());
  ChoosePty(16);
  bool ta = false;
  for (const int burst : {3, 0}) {
    configData->SetBurst(static_cast<std::int16_t>(burst));
    const auto passes = static_cast<std::size_t>(burst);
    form->Command2.Press();
    ta = !ta;
    EXPECT_EQ(configData->Ta(), ta);
    EXPECT_EQ(Written(), std::vector<Bytes>(passes, ta ? kTaOn : kTaOff));
    form->Command1.Press();
    EXPECT_EQ(Written(), std::vector<Bytes>(passes, kWeather));
  }
  // No failure cuts it short or takes the value back.
  configData->SetBurst(3);
  port.Wrote = [this] { EscPressed = port.written.size() == 1; };
  form->Command6.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>(3, kSpeech));
  EXPECT_EQ(Lit(), "24");
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(TaPtyMsTest, PtyIsTakenWhenTheListIsLeft) {
  OpenScreen(kLocal);
  ChoosePty(16);
  EXPECT_EQ(configData->Pty(), 0);
  form->Command1.Press();
  EXPECT_EQ(Written(), std::vector<Bytes>{kWeather});
  form->window.MoveFocus(&form->Combo1);
  form->Combo1.TypeText("News");  // is no programme type
  form->Command1.Press();
  EXPECT_EQ(configData->Pty(), -1);
  EXPECT_EQ(Boxes(), std::vector<std::string>{"Select a programme type from the list first."});
  ChoosePty(5);
  form->window.Close();
  EXPECT_EQ(configData->Pty(), 5);
  EXPECT_TRUE(port.written.empty());
}

TEST_F(TaPtyMsTest, ReadTakesAllThreeWhateverBecameOfTheOthers) {
  OpenScreen(kLocal);
  Hold(0x0D, "10");
  Hold(0x0E, "2");  // any digit but 0
  Hold(0x0F, "0");
  form->Command8.Press();
  EXPECT_EQ(Written(), (std::vector<Bytes>{Hex("02 0d 00 03 0c"), Hex("02 0e 00 03 0f"),
                                           Hex("02 0f 00 03 0e")}));
  EXPECT_EQ(form->Combo1.Text(), "16  Weather");
  EXPECT_EQ(Lit(), "23");
  port.answer = [](const Bytes&) { return Hex("15 02 00 07 03 06"); };
  form->Command8.Press();
  EXPECT_EQ(Written().size(), 3U);
  EXPECT_EQ(Boxes().size(), 3U);
}

}  // namespace
}  // namespace corvalis::test
