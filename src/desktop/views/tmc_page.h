#pragma once

#include <QWidget>

#include "networks/tmc_tab.h"

namespace corvalis::desktop {

/// The tab of the traffic messages.
class TmcPage : public QWidget {
 public:
  TmcPage(TmcTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
