#pragma once

#include <QWidget>

#include "station/ct_tab.h"

namespace corvalis::desktop {

/// The tab of the clock time.
class CtPage : public QWidget {
 public:
  CtPage(CtTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
