#pragma once

#include <QWidget>

#include "networks/eon_tab.h"

namespace corvalis::desktop {

/// The tab of the other networks.
class EonPage : public QWidget {
 public:
  EonPage(EonTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
