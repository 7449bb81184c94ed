#include "desktop/views/tmc_page.h"

#include "desktop/widgets/grid/grid_widget.h"
#include "desktop/widgets/look/layout.h"

namespace corvalis::desktop {

TmcPage::TmcPage(TmcTab& tab, QWidget* parent) : QWidget(parent) {
  auto* grid = new GridWidget(tab.TmcDBGrid, this, Wording("TMC messages"));
  ListPage(this, grid,
           {&tab.ReadTmcCommand, &tab.ReadAllTmcCommand, &tab.SendTmcCommand,
            &tab.SendAllTmcCommand, &tab.SendAllBurstTmcCommand},
           {}, {SelectedRow(tab.TmcSelectedLabel, grid, this)});
}

}  // namespace corvalis::desktop
