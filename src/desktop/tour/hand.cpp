#include "desktop/tour/hand.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <stdexcept>

#include "desktop/widgets/look/mnemonics.h"

namespace corvalis::desktop {

namespace {

constexpr int kLayoutDepth = 10;

[[noreturn]] void Fail(const QString& what) { throw std::runtime_error(what.toStdString()); }

QWidget* Visible(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == name && window->isVisible()) return window;
  }
  return nullptr;
}

void ClickEntry(QAbstractItemView& view, const QString& text) {
  const QAbstractItemModel& entries = *view.model();
  for (int row = 0; row < entries.rowCount(); ++row) {
    const QModelIndex index = entries.index(row, 0);
    if (index.data().toString().trimmed() != text.trimmed()) continue;
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    return;
  }
  Fail("The list has no entry " + text + ".");
}

QTabBar& TabsOf(const QWidget& window) {
  auto* tabs = window.findChild<QTabBar*>();
  if (tabs == nullptr) Fail(window.objectName() + " has no tabs.");
  return *tabs;
}

QTableView& GridOf(QWidget& widget) {
  auto* table = qobject_cast<QTableView*>(&widget);
  if (table == nullptr) Fail(widget.objectName() + " is no grid.");
  return *table;
}

}  // namespace

QWidget& Hand::Window(const QString& name) const {
  QWidget* window = Visible(name);
  if (window == nullptr) Fail("The window " + name + " is not on the screen.");
  // Without a window manager the keyboard comes back to a window only once it is asked to.
  const auto active = [window] {
    if (!window->isActiveWindow()) window->activateWindow();
    return window->isActiveWindow();
  };
  if (!QTest::qWaitFor(active)) Fail(name + " does not get the keyboard.");
  return *window;
}

QWidget& Hand::Control(const QString& window, const QString& name) const {
  auto* control = Window(window).findChild<QWidget*>(name);
  if (control == nullptr || !control->isVisible()) Fail(window + " does not show " + name + ".");
  return *control;
}

void Hand::Click(const QString& window, const QString& control) const {
  QWidget& widget = Control(window, control);
  if (!widget.isEnabled()) Fail(control + " can't be pressed.");
  // A check box takes the press on its box, which stands at the left.
  const bool box = qobject_cast<QCheckBox*>(&widget) != nullptr;
  const QPoint at = box ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center();
  QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
}

void Hand::Choose(const QString& window, const QString& list, const QString& text) const {
  QWidget& widget = Control(window, list);
  widget.setFocus(Qt::MouseFocusReason);
  if (auto* drop_down = qobject_cast<QComboBox*>(&widget)) {
    drop_down->showPopup();
    ClickEntry(*drop_down->view(), text);
    drop_down->hidePopup();
  } else if (auto* view = qobject_cast<QAbstractItemView*>(&widget)) {
    ClickEntry(*view, text);
  } else {
    Fail(list + " is no list.");
  }
}

void Hand::Type(const QString& window, const QString& box, const QString& text) const {
  QWidget& widget = Control(window, box);
  widget.setFocus(Qt::MouseFocusReason);
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    line->selectAll();
  } else if (auto* memo = qobject_cast<QPlainTextEdit*>(&widget)) {
    memo->selectAll();
  } else {
    Fail(box + " can't be typed in.");
  }
  QTest::keyClicks(&widget, text);
  QTest::keyClick(&widget, Qt::Key_Tab);
}

void Hand::StepUp(const QString& window, const QString& spinner) const {
  QWidget& widget = Control(window, spinner);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {widget.width() / 2, widget.height() / 4});
}

void Hand::StepDown(const QString& window, const QString& spinner) const {
  QWidget& widget = Control(window, spinner);
  QTest::mouseClick(&widget, Qt::LeftButton, {}, {widget.width() / 2, widget.height() * 3 / 4});
}

void Hand::TurnToTab(const QString& window, int tab) const {
  QTabBar& tabs = TabsOf(Window(window));
  QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
}

void Hand::TurnToTab(const QString& window, const QString& caption) const {
  const QTabBar& tabs = TabsOf(Window(window));
  for (int tab = 0; tab < tabs.count(); ++tab) {
    if (!tabs.isTabVisible(tab) || PlainCaption(tabs.tabText(tab)) != caption) continue;
    return TurnToTab(window, tab);
  }
  Fail(window + " shows no tab " + caption + ".");
}

void Hand::GoToCell(const QString& window, const QString& grid, int row, int column) const {
  QTableView& table = GridOf(Control(window, grid));
  if (!table.hasFocus() && table.isAncestorOf(QApplication::focusWidget())) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);  // the open cell is left
  }
  table.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&table, Qt::Key_Home, Qt::ControlModifier);
  for (int i = 0; i < row; ++i) QTest::keyClick(&table, Qt::Key_Down);
  for (int i = 0; i < column; ++i) QTest::keyClick(&table, Qt::Key_Right);
  if (table.currentIndex() != table.model()->index(row, column)) {
    Fail(grid + " does not go to its cell.");
  }
}

void Hand::Strike(const QString& keys) const {
  for (const QChar key : keys) {
    QWidget* widget = QApplication::focusWidget();
    if (widget == nullptr) Fail("The keyboard is nowhere.");
    QTest::keyClick(widget, key.toLatin1());
  }
}

void Hand::Close(const QString& window) const {
  Window(window).close();
  QApplication::processEvents();
}

QString Hand::Shown(const QString& window, const QString& control) const {
  QWidget& widget = Control(window, control);
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) return line->text();
  if (auto* drop_down = qobject_cast<QComboBox*>(&widget)) return drop_down->currentText();
  if (auto* memo = qobject_cast<QPlainTextEdit*>(&widget)) return memo->toPlainText();
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return PlainCaption(button->text());
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    return label->buddy() == nullptr ? label->text() : PlainCaption(label->text());
  }
  if (auto* group = qobject_cast<QGroupBox*>(&widget)) return PlainCaption(group->title());
  Fail(control + " shows no text.");
}

QString Hand::ShownCell(const QString& window, const QString& grid, int row, int column) const {
  return GridOf(Control(window, grid)).model()->index(row, column).data().toString();
}

void Hand::Picture(const QString& window, const QString& file) const {
  // Layouts within layouts settle one after the other.
  for (int depth = 0; depth < kLayoutDepth; ++depth) QApplication::processEvents();
  if (QWidget* shown = Visible(window)) Picture(*shown, file);
}

void Hand::Picture(QWidget& shown, const QString& file) const { shown.grab().save(PathOf(file)); }

bool Hand::PictureOnce(const QString& window, const QString& file) const {
  if (QFile::exists(PathOf(file))) return true;
  QWidget* shown = Visible(window);
  return shown != nullptr && shown->grab().save(PathOf(file));
}

QString Hand::PathOf(const QString& file) const { return folder_ + "/" + file + ".png"; }

}  // namespace corvalis::desktop
