// The widgets in a shown window, under a person's hand: keys and clicks go in as events, and what
// counts is what the controls hold, what the screen's rules refuse, and what is seen.

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTabBar>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include "desktop/text.h"
#include "desktop/widgets/calendar_widget.h"
#include "desktop/widgets/check_box_widget.h"
#include "desktop/widgets/combo_box_widget.h"
#include "desktop/widgets/drop_down_widget.h"
#include "desktop/widgets/label_widget.h"
#include "desktop/widgets/memo_widget.h"
#include "desktop/widgets/open_list_widget.h"
#include "desktop/widgets/screen_host.h"
#include "desktop/widgets/tabs_widget.h"
#include "desktop/widgets/text_box_widget.h"
#include "desktop/widgets/window_view.h"
#include "screen/keys.h"

namespace corvalis::desktop {
namespace {

using std::chrono::November;
using std::chrono::year;

/// A screen with one control of each kind. Its box takes hexadecimal digits, four at most, makes
/// them capitals, and may not be left while it is not full; its rule beeps into `refused`.
struct Screen {
  Screen() {
    box.KeyPress = [this](int& key) {
      const bool letter = key >= 'a' && key <= 'f';
      const bool full = box.Text().size() >= 4 && box.SelLength() == 0;
      if (letter) key -= 'a' - 'A';
      const bool digit = (key >= '0' && key <= '9') || (key >= 'A' && key <= 'F');
      if (key == kKeyBackspace || (digit && !full)) return;
      key = kKeyCancelled;
      ++refused;
    };
    for (ListBox* list : {&drop, static_cast<ListBox*>(&combo), &open}) {
      list->Fill({"10", "20", "30"});
      list->SetIndex(0);
    }
    drop.KeyPress = [this](int& key) {
      key = kKeyCancelled;
      ++refused;
    };
    calendar.SetDate(year(2026) / November / 24);
  }

  Window window{this, "Screen"};
  TextBox box{window, "Text1"};
  TextBox name{window, "Text2", TextBox::Content::kFileName};
  TextBox memo{window, "Text3"};
  ListBox drop{window, "Combo1"};
  ComboBox combo{window, "Combo2"};
  ListBox open{window, "List1"};
  ListBox files{window, "File1"};
  CheckBox check{window, "Check1"};
  Calendar calendar{window, "Calendar1"};
  Tabs tabs{window, "SSTab1", {"PI", "TP", "DI", "TA"}};
  int refused = 0;
};

struct View : WindowView {
  explicit View(Screen& of) : WindowView(of.window), screen(of) {
    auto* column = new QVBoxLayout(this);
    for (QWidget* part : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      column->addWidget(part);
    }
    for (int page = 0; page < 4; ++page) tabs->AddPage(new QWidget);
    last = this;
  }

  Screen& screen;
  TextBoxWidget* box = new TextBoxWidget(screen.box, 8, this);
  TextBoxWidget* name = new TextBoxWidget(screen.name, 0, this);
  MemoWidget* memo = new MemoWidget(screen.memo, this);
  DropDownWidget* drop = new DropDownWidget(screen.drop, this);
  ComboBoxWidget* combo = new ComboBoxWidget(screen.combo, this);
  OpenListWidget* open = new OpenListWidget(screen.open, this);
  FileListWidget* files = new FileListWidget(screen.files, this);
  CheckBoxWidget* check = new CheckBoxWidget(screen.check, this);
  CalendarWidget* calendar = new CalendarWidget(screen.calendar, this);
  TabsWidget* tabs = new TabsWidget(screen.tabs, this);
  static inline View* last = nullptr;
};

class WidgetsTest : public testing::Test {
 protected:
  WidgetsTest() {
    // Lest the click on a list that has just opened counts as the rest of the opening one.
    QApplication::setDoubleClickInterval(0);
    host_.Register<Screen, View>();
    screen_.window.Show();
    view_ = View::last;
    EXPECT_TRUE(QTest::qWaitForWindowActive(view_));
    QTest::mouseClick(view_->box, Qt::LeftButton);
  }

  static void Settle() { QCoreApplication::processEvents(); }

  static void Click(QWidget* widget, QPoint at = {}) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, at);
    Settle();
  }

  static void Compose(QWidget* widget, const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(widget, &event);
  }

  static QPoint Middle(const QAbstractItemView& list, int row) {
    return list.visualRect(list.model()->index(row, 0)).center();
  }

  QtScreenHost host_;
  Screen screen_;
  View* view_ = nullptr;
};

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

TEST_F(WidgetsTest, AClosedListTellsTypedKeysOpenOrNot) {
  Click(view_->drop);
  QTest::keyClick(view_->drop->view(), Qt::Key_3);
  QTest::keyClick(view_->drop->view(), Qt::Key_Escape);
  QTest::keyClicks(view_->drop, "23");
  EXPECT_EQ(screen_.refused, 3);
  EXPECT_EQ(screen_.drop.Index(), 0);
}

TEST_F(WidgetsTest, AListForThePointerAloneSwallowsEveryKey) {
  screen_.drop.SetPointerOnly(true);
  view_->drop->setFocus();
  for (const auto key : {Qt::Key_Down, Qt::Key_Space, Qt::Key_2, Qt::Key_F4}) {
    QTest::keyClick(view_->drop, key);
  }
  QAbstractItemView* popup = view_->drop->view();
  EXPECT_FALSE(popup->isVisible());
  Click(view_->drop);
  for (const auto key : {Qt::Key_Down, Qt::Key_Return}) QTest::keyClick(popup, key);
  EXPECT_EQ(screen_.drop.Index(), 0);
  Click(popup->viewport(), Middle(*popup, 2));
  EXPECT_EQ(screen_.drop.Index(), 2);
}

TEST_F(WidgetsTest, WhatIsTypedIntoAComboBoxSelectsNoEntry) {
  view_->combo->setFocus();
  view_->combo->lineEdit()->selectAll();
  QTest::keyClicks(view_->combo, "20");
  QTest::keyClick(view_->combo, Qt::Key_Return);
  QTest::keyClick(view_->combo, Qt::Key_Tab);
  EXPECT_EQ(screen_.combo.Index(), ListBox::kNone);
  EXPECT_EQ(screen_.combo.Text(), "20");
}

TEST_F(WidgetsTest, AnEntryThatIsReplacedShowsInItsPlace) {
  view_->drop->showPopup();
  for (ListBox* list : {&screen_.drop, static_cast<ListBox*>(&screen_.combo), &screen_.open}) {
    list->Replace(0, "other");
    list->Replace(2, "last");
  }
  EXPECT_TRUE(view_->drop->view()->isVisible());
  EXPECT_EQ(view_->drop->itemText(2), "last");
  EXPECT_EQ(view_->drop->currentText(), "other");
  EXPECT_EQ(view_->combo->lineEdit()->text(), "other");
  EXPECT_EQ(view_->open->item(2)->text(), "last");
  EXPECT_EQ(view_->open->currentItem()->text(), "other");
}

TEST_F(WidgetsTest, AnOpenListGoesWithItsControl) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"hidden", [this] { screen_.drop.SetVisible(false); }},
      {"disabled", [this] { screen_.drop.SetEnabled(false); }}};
  for (const auto& [way, go] : ways) {
    screen_.drop.SetVisible(true);
    view_->drop->setFocus();
    QTest::keyClick(view_->drop, Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(view_->drop->view()->isVisible()) << way;
    go();
    Settle();
    EXPECT_FALSE(view_->drop->view()->isVisible()) << way;
    EXPECT_FALSE(screen_.drop.HasFocus()) << way;
  }
}

TEST_F(WidgetsTest, AnAccessibleNameFollowsItsLabel) {
  Label label(screen_.window, "Label1");
  LabelledGroup group(label, view_);
  group.Name(view_->box);
  label.SetCaption("Kennung");
  EXPECT_EQ(view_->box->accessibleName(), "Kennung");
}

TEST_F(WidgetsTest, ANameOfAnyLengthAndContentCanBeToldFromTheOthers) {
  const std::string longest = std::string(400, 'x') + "<b>.rds";
  screen_.files.Fill({"a\nb.rds", "\xE2\x80\xAEsdr.a", "b.rds", longest});
  EXPECT_EQ(view_->files->item(0)->text(), QStringLiteral(u"a\uFFFDb.rds"));
  EXPECT_EQ(view_->files->item(1)->text(), QStringLiteral(u"\uFFFDsdr.a"));  // would turn round
  const QRect drawn = view_->files->visualItemRect(view_->files->item(3));
  EXPECT_EQ(drawn.width(), view_->files->viewport()->width());
  EXPECT_EQ(view_->files->textElideMode(), Qt::ElideMiddle);
  const auto tip_at = [this](int row) {
    const QPoint at = Middle(*view_->files, row);
    QHelpEvent help(QEvent::ToolTip, at, view_->files->viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(view_->files->viewport(), &help);
    return QToolTip::text();
  };
  EXPECT_TRUE(tip_at(3).contains(QString(400, u'x') + QStringLiteral("&lt;b&gt;.rds")));
  EXPECT_FALSE(tip_at(2).contains("b.rds"));  // it can be read where it stands
}

TEST_F(WidgetsTest, TheLettersTypedChooseTheFirstNameThatBeginsWithThem) {
  screen_.files.Fill({"corvalis.rds", "Nord west.rds", "Nord.rds", "nordost.rds"});
  view_->files->setFocus();
  const std::pair<const char*, int> typed[] = {{"n", 1}, {"ord", 1}, {".", 2}, {"x", 2}};
  for (const auto& [letters, index] : typed) {
    QTest::keyClicks(view_->files, letters);
    EXPECT_EQ(screen_.files.Index(), index) << letters;
  }
  EXPECT_EQ(view_->files->currentRow(), 2);
}

TEST_F(WidgetsTest, TheWheelChoosesNothing) {
  view_->drop->setFocus();
  for (QWidget* widget :
       std::initializer_list<QWidget*>{view_->drop, view_->combo, view_->combo->lineEdit(),
                                       view_->findChild<QTabBar*>("SSTab1")}) {
    QWheelEvent wheel({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &wheel);
  }
  EXPECT_EQ(screen_.drop.Index(), 0);
  EXPECT_EQ(screen_.combo.Index(), 0);
  EXPECT_EQ(screen_.tabs.Tab(), 0);
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
}

TEST_F(WidgetsTest, ACalendarMovesByKeysAndShowsTheDateOfTheModel) {
  view_->calendar->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(screen_.calendar.Date(), year(2026) / November / 25);
  screen_.calendar.Change = [this] { screen_.calendar.SetDate(year(2026) / November / 1); };
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(view_->calendar->selectedDate(), QDate(2026, 11, 1));
}

TEST_F(WidgetsTest, APressBesideAnOpenListReachesWhatItHits) {
  for (QComboBox* list :
       {static_cast<QComboBox*>(view_->drop), static_cast<QComboBox*>(view_->combo)}) {
    screen_.check.SetChecked(false);
    list->setFocus();
    list->showPopup();
    Settle();
    const QPoint at = view_->check->mapTo(view_, QPoint(8, 8));
    QTest::mousePress(view_->windowHandle(), Qt::LeftButton, {}, at);
    Settle();
    QTest::mouseRelease(view_->windowHandle(), Qt::LeftButton, {}, at);
    Settle();
    EXPECT_FALSE(list->view()->isVisible());
    EXPECT_TRUE(screen_.check.Checked());
  }
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
