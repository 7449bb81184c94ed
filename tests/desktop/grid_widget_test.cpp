// A grid in a shown window, under a person's hand.

#include "desktop/widgets/grid/grid_widget.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>
#include <functional>
#include <memory>

#include "desktop/text.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/presses/button_widget.h"
#include "desktop/widgets/texts/text_box_widget.h"
#include "desktop/widgets/windows/screen_host.h"
#include "desktop/widgets/windows/window_view.h"
#include "support/grid_form.h"

namespace corvalis::desktop {
namespace {

struct View : WindowView {
  explicit View(test::GridForm& form)
      : WindowView(form.window),
        grid(new GridWidget(form.grid, this, Wording("Names"))),
        box(new TextBoxWidget(form.box, 8, this)) {
    ListPage(this, grid, {&form.button}, {}, {box});
    last = this;
  }

  GridWidget* grid;
  TextBoxWidget* box;
  static inline View* last = nullptr;
};

class GridWidgetTest : public testing::Test {
 protected:
  GridWidgetTest() {
    host_.Register<test::GridForm, View>();
    form_.window.Show();
    view_ = View::last->grid;
    EXPECT_TRUE(QTest::qWaitForWindowActive(View::last));
    view_->setFocus();
  }

  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QCoreApplication::processEvents();
  }
  void Keys(const QString& keys) {
    for (const QChar key : keys) QTest::keyClick(QApplication::focusWidget(), key.toLatin1());
    QCoreApplication::processEvents();
  }
  [[nodiscard]] QPoint Middle(int row, int column) const {
    return view_->visualRect(view_->model()->index(row, column)).center();
  }
  void Click(int row, int column) {
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, Middle(row, column));
    QCoreApplication::processEvents();
  }
  void DoubleClick(QPoint at) {
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(view_->viewport(), Qt::LeftButton, {}, at);  // the second press alone
  }
  /// Where the grid is: "row, column", and what stands in the open cell, selected part in brackets.
  [[nodiscard]] std::string At() {
    Grid& grid = form_.grid;
    std::string at = std::to_string(grid.Row()) + "," + std::to_string(grid.Column());
    if (!grid.Opened()) return at;
    auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    if (box == nullptr) return at + " without the keyboard";
    const QString text = box->text();
    const int start = box->hasSelectedText() ? box->selectionStart() : box->cursorPosition();
    const int end = start + static_cast<int>(box->selectedText().size());
    return at + " " + text.left(start).toStdString() + "[" +
           text.mid(start, end - start).toStdString() + "]" + text.mid(end).toStdString();
  }

  QtScreenHost host_;
  test::GridForm form_;
  GridWidget* view_ = nullptr;
};

TEST_F(GridWidgetTest, TheModelKeepsTheToolkitsRules) {
  const QAbstractItemModelTester tester(view_->model(),
                                        QAbstractItemModelTester::FailureReportingMode::Fatal);
  for (const std::size_t rows : {50U, 500U, 0U, 3U, 50U}) {
    form_.items.resize(rows);
    form_.grid.Refresh();
    EXPECT_EQ(view_->model()->rowCount(), static_cast<int>(rows));
  }
  Key(Qt::Key_Down);
  EXPECT_TRUE(view_->selectionModel()->isRowSelected(1));
  EXPECT_FALSE(view_->selectionModel()->isRowSelected(0));
  Key(Qt::Key_End);
  Key(Qt::Key_Space);
  EXPECT_EQ(form_.grid.Shown(1, 3), "ON");
  form_.items.clear();
  form_.grid.Restart();
  Keys(QStringLiteral("x"));
  Key(Qt::Key_Return);
  Key(Qt::Key_Tab);  // out of a grid without rows
  EXPECT_EQ(QApplication::focusWidget(), View::last->box);
}

TEST_F(GridWidgetTest, KeysOpenTypeAndMove) {
  form_.ItemAt(1).text = "ABC     ";
  const std::vector<std::pair<std::function<void()>, std::string>> steps = {
      {[this] { Key(Qt::Key_Tab); }, "0,1"},
      {[this] { Keys("75"); }, "0,1 75[]"},
      {[this] { Keys("1"); }, "0,1 75[]"},
      {[this] { Key(Qt::Key_Home); }, "0,1 []75"},
      {[this] { Key(Qt::Key_Return); }, "1,1"},
      {[this] { Key(Qt::Key_Right); }, "1,2"},
      {[this] { Key(Qt::Key_F2); }, "1,2 ABC[     ]"},
      {[this] { Key(Qt::Key_Escape); }, "1,2"},
      {[this] { Key(Qt::Key_Backspace); }, "1,2 []"},
      {[this] { Keys("New"); }, "1,2 New[]"},
      {[this] { Key(Qt::Key_Left); }, "1,2 Ne[]w"},
      {[this] { Key(Qt::Key_Tab); }, "1,3"},
      {[this] { Key(Qt::Key_Backtab, Qt::ShiftModifier); }, "1,2"},
      {[this] { Key(Qt::Key_Delete); }, "1,2 []"},
      {[this] { Keys("stay"); }, "1,2 stay[]"},
      {[this] { Key(Qt::Key_Tab); }, "1,2 stay[]"},
      {[this] { Key(Qt::Key_Down); }, "1,2 stay[]"},
      {[this] { Key(Qt::Key_Backspace); }, "1,2 sta[]"},
      {[this] { Key(Qt::Key_Up); }, "0,2"},
      {[this] { Key(Qt::Key_End, Qt::ControlModifier); }, "49,3"},
      {[this] { Key(Qt::Key_Home, Qt::ControlModifier); }, "0,0"},
      {[this] { Key(Qt::Key_PageDown); }, std::to_string(form_.grid.RowsInView()) + ",0"},
  };
  for (std::size_t step = 0; step < steps.size(); ++step) {
    steps[step].first();
    EXPECT_EQ(At(), steps[step].second) << "step " << step;
  }
  EXPECT_EQ(form_.ItemAt(0).time, "75");
  EXPECT_EQ(form_.ItemAt(1).text, "sta     ");
  EXPECT_TRUE(form_.grid.OnScreen(form_.grid.Row()));
}

TEST_F(GridWidgetTest, TabPassesThroughAndOutOnBothSides) {
  QWidget* const button = View::last->findChild<QWidget*>("Command17");
  View::last->box->setFocus();
  Key(Qt::Key_Backtab);
  EXPECT_TRUE(view_->hasFocus());
  Key(Qt::Key_End, Qt::ControlModifier);
  Key(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), View::last->box);
  form_.grid.MoveTo(0, 1);
  view_->setFocus();
  Keys("7");
  Key(Qt::Key_Backtab);  // from the open first cell
  EXPECT_EQ(QApplication::focusWidget(), button);
  Key(Qt::Key_Tab);
  EXPECT_EQ(At(), "0,1 7[]");
  Key(Qt::Key_Tab, Qt::ControlModifier);  // from any cell
  EXPECT_EQ(QApplication::focusWidget(), View::last->box);
}

TEST_F(GridWidgetTest, EachPressCounts) {
  Click(2, 2);
  EXPECT_EQ(At(), "2,2");
  Click(2, 2);
  EXPECT_EQ(At(), "2,2 [        ]");
  Click(3, 3);
  EXPECT_EQ(form_.grid.Shown(3, 3), "ON");
  DoubleClick(Middle(3, 3));
  EXPECT_EQ(form_.grid.Shown(3, 3), "ON");  // twice more
  View::last->resize(View::last->width(), View::last->height() + 10);
  QCoreApplication::processEvents();
  // The row at the lower edge moves up under the first press; the second is still for it.
  const int edge = form_.grid.RowsInView();
  DoubleClick({Middle(edge, 3).x(), view_->viewport()->height() - 2});
  EXPECT_EQ(form_.grid.Row(), edge);
  EXPECT_EQ(form_.grid.Shown(edge, 3), "Off");
  QTest::mouseClick(view_->viewport(), Qt::RightButton, {}, Middle(edge, 3));
  EXPECT_EQ(form_.grid.Shown(edge, 3), "Off");

  // A key that is held down presses once.
  view_->setFocus();
  for (const bool again : {false, true, true}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), again);
    QCoreApplication::sendEvent(view_, &press);
  }
  EXPECT_EQ(form_.grid.Shown(edge, 3), "ON");

  // A press that another control's rule refuses does nothing.
  form_.box.LostFocus = [this] { form_.box.SetFocus(); };
  View::last->box->setFocus();
  Click(edge, 3);
  EXPECT_EQ(form_.grid.Shown(edge, 3), "ON");
  EXPECT_EQ(QApplication::focusWidget(), View::last->box);
}

TEST_F(GridWidgetTest, AButtonTakesTheFocusAndLeavesTheCellOpen) {
  std::string seen;
  form_.button.Click = [&] {
    seen = form_.grid.Opened() ? "open " : "closed ";
    seen += form_.ItemAt(0).text;
    form_.grid.Commit();
  };
  int lost = 0;
  form_.grid.LostFocus = [&] { ++lost; };
  Key(Qt::Key_Right);
  Key(Qt::Key_Right);
  Keys("Name");
  EXPECT_TRUE(form_.grid.HasFocus());
  EXPECT_EQ(lost, 0);
  QWidget* const button = View::last->findChild<QWidget*>("Command17");
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(seen, "open         ");
  EXPECT_EQ(lost, 1);
  EXPECT_EQ(form_.ItemAt(0).text, "Name    ");
  EXPECT_EQ(QApplication::focusWidget(), button);  // a cell that closes leaves it there
}

TEST_F(GridWidgetTest, WhatCannotBeDrawnIsHarmlessAndStays) {
  const std::string bytes("\x81\x8D\x9D\n\r\t\x01\0", 8);
  form_.ItemAt(0).text = bytes;
  form_.grid.Refresh();
  const QString shown = view_->model()->index(0, 2).data().toString();
  EXPECT_EQ(shown, QString(8, QChar(0x25AF)));
  view_->grab();
  form_.grid.MoveTo(0, 2);
  Key(Qt::Key_F2);  // opened, and left as it was
  Key(Qt::Key_Return);
  EXPECT_EQ(form_.ItemAt(0).text, bytes);
  form_.grid.MoveTo(0, 1);
  Keys("5");  // another cell of its row
  Key(Qt::Key_Return);
  EXPECT_EQ(form_.ItemAt(0).time, "5");
  EXPECT_EQ(form_.ItemAt(0).text, bytes);
  form_.grid.MoveTo(0, 2);
  Key(Qt::Key_F2);  // one place of it replaced, by the toolkit's own hand too
  Key(Qt::Key_Home);
  Key(Qt::Key_Delete);
  Keys("x");
  Key(Qt::Key_Return);
  EXPECT_EQ(form_.ItemAt(0).text, "x" + bytes.substr(1));
}

TEST_F(GridWidgetTest, TheViewIsToldAndScrolls) {
  form_.items.resize(500);
  form_.grid.Refresh();
  QCoreApplication::processEvents();
  QScrollBar& bar = *view_->verticalScrollBar();
  const int in_view = form_.grid.RowsInView();
  EXPECT_GT(in_view, 3);
  EXPECT_EQ(bar.maximum(), 500 - in_view);
  form_.grid.SetFirstRow(100);
  EXPECT_EQ(bar.value(), 100);
  EXPECT_EQ(view_->rowAt(0), 100);
  int arranged = 0;
  view_->Arranged = [&] { ++arranged; };
  EXPECT_TRUE(view_->CellRect(0, 2).isEmpty());
  EXPECT_EQ(view_->childAt(view_->CellRect(101, 2).center()), view_->viewport());

  // The wheel scrolls, with an open cell too, and changes nothing else.
  form_.grid.MoveTo(100, 2);
  Keys("a");
  const QPoint at = Middle(102, 2);
  QWheelEvent wheel(at, view_->viewport()->mapToGlobal(at), {}, {0, -120}, {}, {}, {}, false);
  QCoreApplication::sendEvent(view_->viewport(), &wheel);
  EXPECT_GT(form_.grid.FirstRow(), 100);
  EXPECT_EQ(form_.grid.FirstRow(), bar.value());
  EXPECT_GT(arranged, 0);
  EXPECT_EQ(At(), "100,2 a[]");
  Keys("b");  // and what is typed comes back into sight
  EXPECT_EQ(At(), "100,2 ab[]");
  EXPECT_EQ(bar.value(), 100);

  View::last->resize(View::last->width() + 100, View::last->height() + 200);
  QCoreApplication::processEvents();
  EXPECT_GT(form_.grid.RowsInView(), in_view);
  EXPECT_EQ(view_->horizontalHeader()->length(), view_->viewport()->width());
  form_.items.resize(2);
  form_.grid.Restart();
  QCoreApplication::processEvents();
  EXPECT_EQ(form_.grid.FirstRow(), 0);
  EXPECT_EQ(bar.maximum(), 0);
  EXPECT_EQ(QApplication::focusWidget(), view_);
}

TEST_F(GridWidgetTest, EscClosesTheCellBeforeTheWindow) {
  const auto takes_esc = [&] {
    QKeyEvent ask(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    ask.ignore();
    QCoreApplication::sendEvent(QApplication::focusWidget(), &ask);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    press.ignore();
    const bool asked = ask.isAccepted();
    QCoreApplication::sendEvent(QApplication::focusWidget(), &press);
    return asked && press.isAccepted();
  };
  form_.grid.MoveTo(0, 3);
  Key(Qt::Key_Space);
  form_.grid.MoveTo(0, 2);
  Keys("a");
  EXPECT_TRUE(takes_esc());  // the cell
  EXPECT_EQ(At(), "0,2");
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, {}, QString(), true);
  QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
  EXPECT_EQ(form_.grid.Shown(0, 3), "ON");
  EXPECT_TRUE(takes_esc());  // the row
  EXPECT_EQ(form_.grid.Shown(0, 3), "Off");
  EXPECT_FALSE(takes_esc());
}

TEST(GridWidget, AFormMayEndBeforeItsTable) {
  QtScreenHost host;
  host.Register<test::GridForm, View>();
  auto form = std::make_unique<test::GridForm>();
  form->window.Show();
  EXPECT_TRUE(QTest::qWaitForWindowActive(View::last));
  form->grid.MoveTo(1, 2);
  form->grid.Type("a");
  form->items.resize(500);
  form->grid.Refresh();
  const QPointer<QWidget> view = View::last;
  form.reset();  // with a layout of the table still to be done
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(view, nullptr);
}

}  // namespace
}  // namespace corvalis::desktop
