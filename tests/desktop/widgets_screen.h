#pragma once

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
#include "desktop/widgets/lists/calendar_widget.h"
#include "desktop/widgets/lists/combo_box_widget.h"
#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/lists/open_list_widget.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/presses/tabs_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/memo_widget.h"
#include "desktop/widgets/texts/text_box_widget.h"
#include "desktop/widgets/windows/screen_host.h"
#include "desktop/widgets/windows/window_view.h"
#include "screen/keys.h"

namespace corvalis::desktop {

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
    calendar.SetDate(std::chrono::year(2026) / std::chrono::November / 24);
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

}  // namespace corvalis::desktop
