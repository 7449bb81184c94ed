#include "desktop/views/pin_page.h"

#include <QKeyEvent>
#include <QLabel>
#include <algorithm>

#include "desktop/widgets/grid/grid_widget.h"
#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/layout.h"

namespace corvalis::desktop {

namespace {

/// The list over the type's cell of the current row.
class TypeList : public DropDownWidget {
 public:
  TypeList(PinTab& tab, GridWidget& grid)
      : DropDownWidget(tab.Combo1, grid.viewport()), tab_(tab), grid_(grid) {
    // A list is called by its label, be it seen or not.
    auto* label = new QLabel(grid.viewport());
    label->setBuddy(this);
    ShowWord(*label, Wording("Type"));
    label->hide();
    grid_.Arranged = [this] { Place(); };
    Place();
  }

 protected:
  void showEvent(QShowEvent* event) override {
    Place();
    DropDownWidget::showEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    // What stands in the cell stays until an entry of the open list is chosen.
    const auto opening = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter};
    if (std::find(opening.begin(), opening.end(), event->key()) != opening.end()) {
      showPopup();
    } else {
      DropDownWidget::keyPressEvent(event);
    }
  }
  /// The table is the only way out; it would take this for its own Tab key and move.
  bool focusNextPrevChild(bool /*next*/) override {
    grid_.setFocus(Qt::OtherFocusReason);
    return true;
  }

 private:
  void Place() {
    const QRect cell = grid_.CellRect(tab_.DBGrid4.Row(), PinTab::kTypeColumn);
    setGeometry(cell.translated(-grid_.viewport()->pos()));
    raise();
  }

  PinTab& tab_;
  GridWidget& grid_;
};

}  // namespace

PinPage::PinPage(PinTab& tab, QWidget* parent) : QWidget(parent) {
  auto* grid = new GridWidget(tab.DBGrid4, this, Wording("PIN"));
  new TypeList(tab, *grid);
  ListPage(this, grid,
           {&tab.Command6, &tab.Command23, &tab.Command8, &tab.Command15, &tab.Command7}, {},
           {SelectedRow(tab.PinSelectedLabel, grid, this)});
}

}  // namespace corvalis::desktop
