#pragma once

#include <QWidget>

#include "programme/rt_tab.h"

namespace corvalis::desktop {

/// The tab of the radio texts.
class RtPage : public QWidget {
 public:
  RtPage(RtTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
