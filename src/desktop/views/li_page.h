#pragma once

#include <QWidget>

#include "networks/li_tab.h"

namespace corvalis::desktop {

/// The tab of the linkage information.
class LiPage : public QWidget {
 public:
  LiPage(LiTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
