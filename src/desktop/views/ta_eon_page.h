#pragma once

#include <QWidget>

#include "networks/ta_eon_tab.h"

namespace corvalis::desktop {

/// The tab of the announcement switches.
class TaEonPage : public QWidget {
 public:
  TaEonPage(TaEonTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
