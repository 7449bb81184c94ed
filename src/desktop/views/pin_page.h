#pragma once

#include <QWidget>

#include "programme/pin_tab.h"

namespace corvalis::desktop {

/// The tab of the programme items. The list of the types comes up over the type's cell.
class PinPage : public QWidget {
 public:
  PinPage(PinTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
