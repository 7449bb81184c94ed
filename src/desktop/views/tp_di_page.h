#pragma once

#include <QWidget>

#include "station/tp_di_tab.h"

namespace corvalis::desktop {

/// The tab of TP and DI.
class TpDiPage : public QWidget {
 public:
  TpDiPage(TpDiTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
