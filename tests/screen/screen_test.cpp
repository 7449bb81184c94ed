// Controls without pixels: what the operator's hand does, and what the program's does.

#include <gtest/gtest.h>

#include "screen/button.h"
#include "screen/combo_box.h"
#include "screen/keys.h"
#include "screen/list_box.h"
#include "screen/progress_bar.h"
#include "screen/spinner.h"
#include "screen/tabs.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {
namespace {

class ScreenTest : public testing::Test {
 protected:
  ScreenTest() { window.Show(); }

  Window window{this, "Test"};
  TextBox text{window, "Text1"};
  TextBox other{window, "Text2"};
  ListBox list{window, "Combo1"};
  Button button{window, "Command1"};
};

TEST_F(ScreenTest, TextBoxEditsAtCaretAndSelection) {
  text.Type("abd");
  text.Select(2, 0);
  text.Type("c");
  EXPECT_EQ(text.Text(), "abcd");
  text.TypeKey(kKeyBackspace);
  EXPECT_EQ(text.Text(), "abd");
  text.SelectAll();
  text.Type("x");
  text.Select(0, 0);
  text.TypeKey(kKeyBackspace);
  text.TypeKey(1);  // a control character that the form lets pass edits nothing
  EXPECT_EQ(text.Text(), "x");
}

TEST_F(ScreenTest, FormMayReplaceOrCancelAKey) {
  text.KeyPress = [](int& key) { key = key == 'a' ? 'A' : key == 'b' ? kKeyCancelled : key; };
  int changes = 0;
  text.Change = [&] { ++changes; };
  text.Type("ab");
  EXPECT_EQ(text.Text(), "A");
  EXPECT_EQ(changes, 1);
  text.KeyPress = [](int& key) {
    if (key == kKeyPaste) key = kKeyCancelled;
  };
  text.Paste("pasted");
  EXPECT_EQ(text.Text(), "A");
}

TEST_F(ScreenTest, SameValueRaisesNothing) {
  int raised = 0;
  text.Change = [&] { ++raised; };
  list.Click = [&] { ++raised; };
  list.Fill({"a", "b"});
  text.SetText("x");
  text.SetText("x");
  EXPECT_EQ(raised, 1);
  list.SetIndex(1);
  list.SetIndex(1);
  EXPECT_EQ(raised, 2);
  list.Choose(1);  // the operator's hand does, for the same entry too
  EXPECT_EQ(raised, 3);
  EXPECT_THROW(list.SetIndex(2), std::out_of_range);
}

TEST_F(ScreenTest, AReplacedEntryStaysSelectedAndRaisesNothing) {
  ComboBox combo(window, "Combo2");
  int raised = 0;
  combo.Fill({"a", "b"});
  combo.SetIndex(1);
  combo.Click = combo.Change = [&] { ++raised; };
  combo.Replace(1, "other");
  EXPECT_EQ(combo.Text(), "other");
  EXPECT_EQ(combo.Index(), 1);
  combo.TypeText("typed");
  combo.Replace(1, "third");
  EXPECT_EQ(combo.Text(), "typed");
  EXPECT_EQ(raised, 1);  // by the typed text
  EXPECT_THROW(combo.Replace(2, "x"), std::out_of_range);
  EXPECT_THROW(combo.Replace(ListBox::kNone, "x"), std::out_of_range);
}

TEST_F(ScreenTest, PartnersThatSetEachOtherComeToRest) {
  text.Change = [this] { other.SetText(text.Text()); };
  other.Change = [this] { text.SetText(other.Text()); };
  text.Type("ab");
  EXPECT_EQ(other.Text(), "ab");
}

TEST_F(ScreenTest, DisabledTakesNoEventOfTheOperator) {
  int raised = 0;
  button.Click = list.Click = text.Change = [&] { ++raised; };
  window.QueryUnload = [&](bool&) { ++raised; };
  list.Fill({"a"});
  const auto use_all = [&] {
    button.Press();
    list.Choose(0);
    text.Type("x");
    text.Paste("x");
    text.Edit("x", 0);
  };
  window.SetEnabled(false);
  use_all();
  window.Close();
  EXPECT_FALSE(window.MoveFocus(&text));
  window.SetEnabled(true);
  button.SetEnabled(false);
  list.SetEnabled(false);
  text.SetEnabled(false);
  use_all();
  EXPECT_EQ(raised, 0);
  text.SetText("set");  // the program may all the same
  EXPECT_EQ(raised, 1);
}

TEST_F(ScreenTest, RuleThatAsksTheFocusBackGetsItWhenItHasEnded) {
  int left = 0;
  bool clicked = false;
  text.LostFocus = [&] {
    ++left;
    text.SetFocus();
    EXPECT_FALSE(other.HasFocus());
  };
  button.Click = [&] { clicked = true; };
  window.MoveFocus(&text);
  EXPECT_FALSE(window.MoveFocus(&other));
  EXPECT_TRUE(text.HasFocus());
  EXPECT_EQ(left, 1);
  button.Press();  // a press that would have to leave the box is not carried out
  EXPECT_FALSE(clicked);
  text.LostFocus = nullptr;
  button.Press();
  EXPECT_TRUE(clicked);
}

TEST_F(ScreenTest, CloseTakesWhatWasTypedAndCanBeCancelled) {
  std::string order;
  text.LostFocus = [&] { order += "left "; };
  window.Unloading = [&] { order += "unloaded"; };
  bool keep = true;
  window.QueryUnload = [&](bool& cancel) {
    order += "asked ";
    cancel = keep;
  };
  window.MoveFocus(&text);
  window.Close();
  EXPECT_TRUE(window.Visible());
  EXPECT_EQ(order, "left asked ");
  keep = false;
  window.Close();
  EXPECT_FALSE(window.Visible());
  EXPECT_EQ(order, "left asked asked unloaded");
}

TEST_F(ScreenTest, SpinnerStepsAndRests) {
  Spinner spinner(window, "VScroll1");
  std::string steps;
  spinner.StepUp = [&] { steps += "+"; };
  spinner.StepDown = [&] { steps += "-"; };
  spinner.PressUp();
  spinner.PressDown();
  spinner.SetValue(Spinner::kRest - 1);
  spinner.SetValue(Spinner::kRest);
  spinner.SetValue(Spinner::kRest + 100);
  EXPECT_EQ(steps, "+-+-");
}

TEST_F(ScreenTest, BarFillsShowsTheMaximumForOneTickAndStartsAgain) {
  ProgressBar bar(window, "Bar");
  for (int i = 0; i < 100; ++i) bar.Tick();
  EXPECT_EQ(bar.Value(), ProgressBar::kMax);
  bar.Tick();
  EXPECT_EQ(bar.Value(), ProgressBar::kMin);
}

TEST_F(ScreenTest, ForATabThatIsHiddenTheNearestThatCanBeUsedComesToTheFront) {
  Tabs tabs(window, "SSTab1", {"0", "1", "2", "3", "4"});
  std::string order;
  tabs.Click = [&] { order += std::to_string(tabs.Tab()); };
  tabs.SetTab(2);
  tabs.SetTabEnabled(1, false);
  tabs.SetTabVisible(3, false);
  tabs.SetTabVisible(2, false);
  for (const int refused : {1, 2, 3}) tabs.Choose(refused);
  tabs.SetTab(3);
  EXPECT_EQ(order, "20");
  for (const int tab : {4, 0, 1}) tabs.SetTabVisible(tab, false);
  tabs.SetTabVisible(3, true);
  EXPECT_EQ(order, "2013");
}

}  // namespace
}  // namespace corvalis
