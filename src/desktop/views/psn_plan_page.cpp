#include "desktop/views/psn_plan_page.h"

#include "desktop/widgets/grid/grid_widget.h"
#include "desktop/widgets/look/layout.h"

namespace corvalis::desktop {

PsnPlanPage::PsnPlanPage(PsnPlanTab& tab, QWidget* parent) : QWidget(parent) {
  auto* grid = new GridWidget(tab.PsnPlanDBGrid, this, Wording("PSN PLAN"));
  ListPage(this, grid,
           {&tab.ReadPlanCommand, &tab.ReadAllPlanCommand, &tab.SendPlanCommand,
            &tab.SendAllPlanCommand, &tab.SendBurstPlanCommand},
           {}, {SelectedRow(tab.PlanSelectedLabel, grid, this)});
}

}  // namespace corvalis::desktop
