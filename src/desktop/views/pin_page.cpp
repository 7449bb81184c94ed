#include "desktop/views/pin_page.h"

#include "desktop/widgets/drop_down_widget.h"
#include "desktop/widgets/grid_widget.h"
#include "desktop/widgets/layout.h"

namespace corvalis::desktop {

namespace {

/// The list over the type's cell of the current row.
class TypeList : public DropDownWidget {
 public:
  TypeList(PinTab& tab, GridWidget& grid)
      : DropDownWidget(tab.Combo1, grid.viewport()), tab_(tab), grid_(grid) {
    setAccessibleName(QStringLiteral("Type"));
    grid_.Arranged = [this] { Place(); };
    Place();
  }

 protected:
  void showEvent(QShowEvent* event) override {
    Place();
    DropDownWidget::showEvent(event);
  }

 private:
  void Place() {
    setGeometry(grid_.CellRect(tab_.DBGrid4.Row(), PinTab::kTypeColumn));
    raise();
  }

  PinTab& tab_;
  GridWidget& grid_;
};

}  // namespace

PinPage::PinPage(PinTab& tab, QWidget* parent) : QWidget(parent) {
  auto* grid = new GridWidget(tab.DBGrid4, this, QStringLiteral("PIN"));
  new TypeList(tab, *grid);
  ListPage(this, grid,
           {&tab.Command6, &tab.Command23, &tab.Command8, &tab.Command15, &tab.Command7}, {},
           {SelectedRow(tab.PinSelectedLabel, grid, this)});
}

}  // namespace corvalis::desktop
