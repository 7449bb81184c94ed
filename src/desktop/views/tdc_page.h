#pragma once

#include <QWidget>

#include "networks/tdc_tab.h"

namespace corvalis::desktop {

/// The tab of the transparent data channels.
class TdcPage : public QWidget {
 public:
  TdcPage(TdcTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
