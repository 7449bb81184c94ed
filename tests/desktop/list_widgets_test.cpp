// The lists in a shown window, under a person's hand.

#include "desktop/widgets_screen.h"

namespace corvalis::desktop {
namespace {

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
  // Unless its form makes an entry of it; the caret stays where the hand has it.
  screen_.combo.Change = [this] {
    screen_.combo.Replace(1, screen_.combo.Text());
    screen_.combo.SetIndex(1);
  };
  view_->combo->setFocus();
  view_->combo->lineEdit()->selectAll();
  QTest::keyClicks(view_->combo, "ab");
  QTest::keyClick(view_->combo, Qt::Key_Left);
  QTest::keyClicks(view_->combo, "c");
  EXPECT_EQ(screen_.combo.Entry(1), "acb");
  QApplication::clipboard()->setText(QStringLiteral("\u0416d"));  // what the code page lacks
  view_->combo->lineEdit()->paste();
  QTest::keyClicks(view_->combo, "e");
  EXPECT_EQ(screen_.combo.Entry(1), "acdeb");
  QTest::keyClick(view_->combo, Qt::Key_Down);
  EXPECT_EQ(screen_.combo.Index(), 2);
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

}  // namespace
}  // namespace corvalis::desktop
