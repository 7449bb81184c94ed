#pragma once

#include <QWidget>

#include "programme/psn_plan_tab.h"

namespace corvalis::desktop {

/// The tab of the plan by which the pages change.
class PsnPlanPage : public QWidget {
 public:
  PsnPlanPage(PsnPlanTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
