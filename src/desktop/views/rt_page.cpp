#include "desktop/views/rt_page.h"

#include "desktop/widgets/grid/grid_widget.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/radio_line.h"

namespace corvalis::desktop {

RtPage::RtPage(RtTab& tab, QWidget* parent) : QWidget(parent) {
  auto* grid = new GridWidget(tab.DBGrid3, this, Wording("RT"));
  QWidget* below = SelectedRow(tab.RtSelectedLabel, grid, this);
  auto* count = new LabelWidget(tab.RtCountLabel, below);
  CallByWord(*count, Wording("Characters"));
  static_cast<QHBoxLayout*>(below->layout())->addWidget(count);
  ListPage(this, grid,
           {&tab.Command9, &tab.Command22, &tab.Command14, &tab.Command21, &tab.Command10}, {},
           {below, new RadioLine(tab.RtRadioLabel, this)});
}

}  // namespace corvalis::desktop
