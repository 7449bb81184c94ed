#pragma once

#include <QWidget>

#include "networks/tmc_system_tab.h"

namespace corvalis::desktop {

/// The tab of what the traffic message channel says of itself.
class TmcSystemPage : public QWidget {
 public:
  TmcSystemPage(TmcSystemTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
