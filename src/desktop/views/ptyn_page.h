#pragma once

#include <QWidget>

#include "programme/ptyn_tab.h"

namespace corvalis::desktop {

/// The tab of the names of the programme types.
class PtynPage : public QWidget {
 public:
  PtynPage(PtynTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
