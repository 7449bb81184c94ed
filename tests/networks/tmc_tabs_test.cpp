// The tabs of the traffic messages: what is stepped, typed and pasted, and what goes on the line.

#include <gtest/gtest.h>

#include <utility>

#include "networks/networks_screen.h"
#include "networks/tmc_system_tab.h"
#include "networks/tmc_tab.h"

namespace corvalis::test {
namespace {

constexpr int kLocation = 1, kEvent = 2, kDuration = 3, kDirection = 4, kExtent = 5, kDiversion = 6,
              kRepetition = 7;

// The two tabs, on a window of their own.
struct TmcScreen {
  explicit TmcScreen(Window& menu) : main_menu(menu) {}
  void Load() {
    tmc_system.InitCaptions();
    tmc.InitCaptions();
    tmc_system.Open();
    tmc.Open();
    window.ShowModal(main_menu);
  }
  Window window{this, "TmcScreen"};
  TmcSystemTab tmc_system{window};
  TmcTab tmc{window};
  Window& main_menu;
};

class TmcTabsTest : public NetworksTest<TmcScreen> {
 protected:
  Grid& grid() { return form->tmc.TmcDBGrid; }
  void Strike(int row, int column, const std::string& keys) {
    form->window.MoveFocus(&grid());
    grid().MoveTo(row, column);
    grid().Type(keys);
  }
  static std::string Body(const Bytes& frame) { return {frame.begin() + 3, frame.end() - 2}; }
};

TEST_F(TmcTabsTest, TheNumbersGoRoundAndTheScopesAreStoredAtOnce) {
  OpenScreen(std::string(kLocal) + "[TMC]\nLtn=63\nSid=0\n");
  TmcSystemTab& tab = form->tmc_system;
  EXPECT_EQ(tab.LtnText.Text() + " " + tab.SidText.Text(), "63 0");
  Step(tab.LtnVScroll, 1);
  Step(tab.SidVScroll, -1);
  EXPECT_EQ(tab.LtnText.Text() + " " + tab.SidText.Text(), "0 63");
  tab.LtnText.Type("5");
  EXPECT_EQ(tab.LtnText.Text(), "0");
  for (CheckBox* box : {&tab.InternationalCheck, &tab.RegionalCheck}) box->Press();
  tab.SendTmcSystemCommand.Press();
  EXPECT_EQ(Held(0x21), "003F1010");
  Hold(0x21, "0A0B0101");
  tab.ReadTmcSystemCommand.Press();
  EXPECT_EQ(tab.LtnText.Text() + " " + tab.SidText.Text(), "10 11");
  EXPECT_TRUE(!tab.InternationalCheck.Checked() && tab.NationalCheck.Checked() &&
              !tab.RegionalCheck.Checked() && tab.UrbanCheck.Checked());
  Step(tab.LtnVScroll, -1);
  tab.SidText.Type("5");
  EXPECT_EQ(tab.LtnText.Text() + " " + tab.SidText.Text(), "9 11");
  for (const auto& [box, body] :
       {std::pair{&tab.NationalCheck, "090B0001"}, {&tab.UrbanCheck, "090B0000"}}) {
    box->Press();
    tab.SendTmcSystemCommand.Press();
    EXPECT_EQ(Held(0x21), body);
  }
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(TmcTabsTest, ACellTakesWhatItsColumnAllows) {
  OpenScreen(kLocal);
  struct Case {
    int column;
    std::string keys, shown;
  };
  // The rows stand on 1 everywhere; typing replaces what stands there.
  const Case cases[] = {{0, "5", "00"},
                        {kLocation, "65535", "65535"},
                        {kLocation, "65536", "1"},
                        {kLocation, "123456", "12345"},
                        {kLocation, "\b", "1"},
                        {kLocation, ".", "1"},
                        {kLocation, "1.5", "1"},
                        {kLocation, "a", "1"},
                        {kLocation, "4x2", "42"},
                        {kEvent, "2047", "2047"},
                        {kEvent, "2048", "1"},
                        {kDuration, "7", "7"},
                        {kDuration, "8", "1"},
                        {kDuration, "78", "7"},
                        {kDirection, "5", "Off"},
                        {kDirection, " ", "On"},
                        {kExtent, "0", "0"},
                        {kExtent, "9", "1"},
                        {kDiversion, " ", "On"},
                        {kRepetition, "15", "15"},
                        {kRepetition, "16", "1"}};
  for (const Case& one : cases) {
    SCOPED_TRACE(std::to_string(one.column) + " " + one.keys);
    tmcData->SetLocation(0, 1);
    tmcData->SetEvents(0, 1);
    tmcData->SetDuration(0, 1);
    tmcData->SetExtent(0, 1);
    tmcData->SetRepetition(0, 1);
    tmcData->SetDirection(0, false);
    tmcData->SetDiversion(0, false);
    Strike(0, one.column, one.keys);
    grid().MoveTo(1, one.column);
    EXPECT_EQ(grid().Row(), 1);
    EXPECT_EQ(grid().Shown(0, one.column), one.shown);
  }
  EXPECT_EQ(dialogs.beeps, 0);
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(TmcTabsTest, APasteIsOfDigitsAndIsNotCutToFit) {
  OpenScreen(kLocal);
  const std::pair<std::string, std::string> cases[] = {
      {"123", "123"}, {"12345", "1"}, {"00002", "1"}, {"2a", "1"},
      {"1.5", "1"},   {"-2", "1"},    {"", "1"}};
  for (const auto& [pasted, shown] : cases) {
    SCOPED_TRACE(pasted);
    tmcData->SetEvents(0, 1);
    Strike(0, kEvent, "");
    grid().Paste(pasted);
    const bool digits = pasted.find_first_not_of("0123456789") == std::string::npos;
    EXPECT_EQ(grid().Editor().Text(), digits ? pasted : "1");
    grid().MoveTo(1, kEvent);
    EXPECT_EQ(grid().Shown(0, kEvent), shown);
  }
  // Delete opens a cell too.
  Strike(0, kEvent, "");
  grid().Clear();
  grid().Type("12");
  EXPECT_TRUE(grid().Commit());
  EXPECT_EQ(tmcData->Events(0), 12);
}

TEST_F(TmcTabsTest, ARowWithoutALocationIsNotLeft) {
  OpenScreen(kLocal);
  Strike(0, kEvent, "5");
  grid().PutEdit(kLocation, "");
  EXPECT_FALSE(grid().MoveTo(1, kEvent));
  EXPECT_EQ(Boxes(), std::vector<std::string>{"Immettere un valore nella seconda colonna"});
  EXPECT_EQ(grid().Row(), 0);
  EXPECT_EQ(tmcData->Events(0), 0);
}

TEST_F(TmcTabsTest, WhatIsBeingTypedIsSent) {
  OpenScreen(kLocal);
  Strike(1, kLocation, "65535");
  form->tmc.SendTmcCommand.Press();
  EXPECT_EQ(Held(0x22, 1), "000FFFF00000");
  grid().Press(1, kDirection);
  form->tmc.SendTmcCommand.Press();
  EXPECT_EQ(Held(0x22, 1), "000FFFF10000");
  EXPECT_EQ(grid().Row(), 1);
  grid().Press(1, kDiversion);
  form->tmc.SendAllTmcCommand.Press();
  EXPECT_EQ(Held(0x22, 1), "000FFFF10100");

  OpenScreen(std::string(kSatellite) + "[TMC]\nMaxListNum=3\n");
  EXPECT_EQ(grid().Row(), 0);  // another list
  AddressSent = true;
  Strike(2, kEvent, "9");
  form->tmc.SendAllBurstTmcCommand.Press();
  EXPECT_EQ(Body(Written().back()), "009000000000");
}

}  // namespace
}  // namespace corvalis::test
