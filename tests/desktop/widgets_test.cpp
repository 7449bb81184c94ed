// The widgets in a shown window, under a person's hand: keys and clicks go in as events, and what
// counts is what the controls hold, what the screen's rules refuse, and what is seen.

#include "desktop/widgets_screen.h"

namespace corvalis::desktop {
namespace {

using std::chrono::November;
using std::chrono::year;

TEST(TextConversion, EveryByteOfAScreenTextComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(ToBytes(FromBytes(all)), all);
  EXPECT_EQ(FromBytes("\x80\x9F\xE9"), QStringLiteral(u"\u20AC\u0178\u00E9"));
  EXPECT_EQ(ToBytes(QStringLiteral(u"\u0416\U0001F600\u0080x")), "???x");
}

TEST(TextConversion, EveryFileNameComesBack) {
  for (const char* name : {"M\xC3\xBCnchen \xF0\x9F\x93\xBB", "latin \xFC.rds", "\xE2\x82x"}) {
    EXPECT_EQ(ToFileName(FromFileName(name)), name);
  }
  EXPECT_EQ(FromFileName("M\xC3\xBCnchen"), QStringLiteral(u"M\u00FCnchen"));
}

TEST_F(WidgetsTest, NothingGetsPastTheRuleOfABox) {
  QTest::keyClicks(view_->box, "5xab0c");
  EXPECT_EQ(screen_.box.Text(), "5AB0");  // the x cancelled, the a replaced, a fifth refused
  EXPECT_EQ(screen_.refused, 2);

  QApplication::clipboard()->setText("FFFF");
  view_->box->selectAll();
  QTest::keyClick(view_->box, Qt::Key_V, Qt::ControlModifier);
  QTest::keyClick(view_->box, Qt::Key_Insert, Qt::ShiftModifier);
  QMimeData dragged;
  dragged.setText("FFFF");
  QDragEnterEvent enter({2, 2}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QCoreApplication::sendEvent(view_->box, &enter);
  QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &dragged, Qt::LeftButton, {});
  QCoreApplication::sendEvent(view_->box, &drop);
  Compose(view_->box, "zz");
  EXPECT_EQ(screen_.refused, 7);
  screen_.box.KeyPress = nullptr;
  QApplication::clipboard()->setText(QStringLiteral(u"BЖ😀"));
  view_->box->selectAll();
  QTest::keyClick(view_->box, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(screen_.box.Text(), "B");  // no "?" for what the code page lacks
  screen_.box.SetText("5AB0");
  EXPECT_EQ(screen_.box.Text(), "5AB0");
  EXPECT_EQ(view_->box->text(), "5AB0");
}

TEST_F(WidgetsTest, SelectionAndCaretAreTheSameOnBothSides) {
  QTest::keyClicks(view_->box, "1234");
  QTest::keyClick(view_->box, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(screen_.box.SelStart(), 3);
  QTest::keyClicks(view_->box, "a");  // full, but a selection gives way
  EXPECT_EQ(screen_.box.Text(), "123A");

  screen_.box.Select(1, 2);
  EXPECT_EQ(view_->box->selectedText(), "23");
  QTest::keyClick(view_->box, Qt::Key_Delete);
  EXPECT_EQ(screen_.box.Text(), "1A");
  EXPECT_EQ(screen_.box.SelStart(), 1);

  screen_.box.Change = [this] { screen_.box.SetText("0001"); };
  QTest::keyClicks(view_->box, "1");
  EXPECT_EQ(view_->box->text(), "0001");
}

TEST_F(WidgetsTest, ABoxOfAFileNameTakesWholeCharacters) {
  view_->name->setFocus();
  screen_.name.SetText("\xC3\xBC\xFF");
  QTest::keyClick(view_->name, Qt::Key_End);
  QTest::keyClick(view_->name, Qt::Key_Backspace);
  EXPECT_EQ(screen_.name.Text(), "\xC3\xBC");
  Compose(view_->name, QStringLiteral(u"\u0416"));
  EXPECT_EQ(screen_.name.Text(), "\xC3\xBC\xD0\x96");
  EXPECT_EQ(screen_.name.SelStart(), 4);
}

TEST_F(WidgetsTest, ALostFocusRuleTakesTheFocusBackAndTheClickIsVoid) {
  screen_.box.LostFocus = [this] {
    if (screen_.box.Text().size() == 4) return;
    screen_.box.SelectAll();
    screen_.box.SetFocus();
  };
  QTest::keyClicks(view_->box, "12");
  Click(view_->check);
  Click(view_->drop);
  Click(view_->open->viewport(), Middle(*view_->open, 2));
  auto* bar = view_->findChild<QTabBar*>("SSTab1");
  Click(bar, bar->tabRect(1).center());
  QTest::keyClick(view_->box, Qt::Key_Tab);
  Settle();
  EXPECT_TRUE(view_->box->hasFocus());
  EXPECT_EQ(view_->box->selectedText(), "12");
  EXPECT_FALSE(screen_.check.Checked());
  EXPECT_FALSE(view_->drop->view()->isVisible());
  EXPECT_EQ(screen_.open.Index(), 0);
  EXPECT_EQ(bar->currentIndex(), 0);

  QTest::keyClicks(view_->box, "1234");
  Click(view_->check);
  EXPECT_TRUE(screen_.check.Checked());
}

TEST_F(WidgetsTest, TabsThatAreHiddenOrDisabledArePassedOver) {
  auto* bar = view_->findChild<QTabBar*>("SSTab1");
  screen_.tabs.SetTabVisible(1, false);
  screen_.tabs.SetTabEnabled(2, false);
  bar->setFocus();
  QTest::keyClick(bar, Qt::Key_Right);
  EXPECT_EQ(screen_.tabs.Tab(), 3);
  Click(bar, bar->tabRect(2).center());
  EXPECT_EQ(screen_.tabs.Tab(), 3);
  EXPECT_FALSE(bar->isTabVisible(1));
  screen_.tabs.SetTabVisible(3, false);
  EXPECT_EQ(bar->currentIndex(), 0);
  screen_.tabs.SetTabVisible(1, true);
  Click(bar, bar->tabRect(1).center());
  EXPECT_EQ(screen_.tabs.Tab(), 1);
}

TEST_F(WidgetsTest, AnOpenMenuGoesWithItsWindow) {
  QContextMenuEvent asked(QContextMenuEvent::Keyboard, {}, view_->mapToGlobal(QPoint()));
  QCoreApplication::sendEvent(view_->box, &asked);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  screen_.window.Hide();
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  screen_.window.Show();
  QApplication::setActiveWindow(nullptr);  // the keyboard is elsewhere, and yet a press counts
  Click(view_->check);
  EXPECT_TRUE(screen_.check.Checked());
}

TEST_F(WidgetsTest, ACheckBoxShowsWhatTheFormMakesOfAPress) {
  QTest::keyClick(view_->check, Qt::Key_Space);
  EXPECT_TRUE(screen_.check.Checked());
  screen_.check.Click = [this] { screen_.check.SetChecked(true); };  // an indicator
  Click(view_->check);
  EXPECT_TRUE(view_->check->isChecked());
}

TEST_F(WidgetsTest, AMemoKeepsTheBytesThatAreNotTouched) {
  screen_.memo.SetText("one\r\ntwo\nthree\xA0");
  view_->memo->setFocus();
  QTest::keyClick(view_->memo, Qt::Key_End);
  QTest::keyClick(view_->memo, Qt::Key_Return);
  QTest::keyClicks(view_->memo, "x");
  EXPECT_EQ(screen_.memo.Text(), "one\r\nx\r\ntwo\nthree\xA0");
  screen_.memo.SetLocked(true);
  QTest::keyClick(view_->memo, Qt::Key_Delete);
  EXPECT_EQ(screen_.memo.Text(), "one\r\nx\r\ntwo\nthree\xA0");
}

TEST_F(WidgetsTest, WhatIsUndoneInAMemoIsNeverTheTextOfBefore) {
  for (const char* text : {"the page of before", "the page"}) screen_.memo.SetText(text);
  view_->memo->setFocus();
  QTest::keyClick(view_->memo, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(screen_.memo.Text(), "the page");
}

TEST_F(WidgetsTest, AMemoKeepsEveryByteThereIs) {
  std::string text = "one\rtwo\ntwo\r\nthree  ";
  for (int i = 0; i < 256; ++i) text += static_cast<char>(i);
  text += "\n\r\r\n\n  end ";
  screen_.memo.SetText(text);
  EXPECT_EQ(screen_.memo.Text(), text);
  view_->memo->setFocus();
  QTest::keyClick(view_->memo, Qt::Key_Home, Qt::ControlModifier);
  for (int i = 0; i < 3; ++i) QTest::keyClick(view_->memo, Qt::Key_Down);
  QTest::keyClick(view_->memo, Qt::Key_Right);
  EXPECT_EQ(screen_.memo.Text(), text);
  QTest::keyClicks(view_->memo, "x");
  EXPECT_EQ(screen_.memo.Text(), text.insert(text.find("hree"), "x"));
  QTest::keyClick(view_->memo, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClicks(view_->memo, "y");
  EXPECT_EQ(screen_.memo.Text(), text + "y");
  QApplication::clipboard()->setText(u'\u0416' + QString(1'000'000, u'a'));
  QTest::keyClick(view_->memo, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(view_->memo, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(screen_.memo.Text(), std::string(16'384, 'a'));  // cut before it is laid out
}

TEST_F(WidgetsTest, ACalendarMovesByKeysAndShowsTheDateOfTheModel) {
  view_->calendar->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(screen_.calendar.Date(), year(2026) / November / 25);
  screen_.calendar.Change = [this] { screen_.calendar.SetDate(year(2026) / November / 1); };
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(view_->calendar->selectedDate(), QDate(2026, 11, 1));
}

TEST_F(WidgetsTest, ADisabledWindowTakesNothing) {
  screen_.window.SetEnabled(false);
  QTest::keyClicks(view_->box, "1");
  Compose(view_->box, "1");
  QTest::keyClick(view_->box, Qt::Key_Tab);
  view_->close();
  EXPECT_EQ(screen_.box.Text(), "");
  EXPECT_TRUE(screen_.box.HasFocus());
  EXPECT_TRUE(view_->isVisible());
}

}  // namespace
}  // namespace corvalis::desktop
