#pragma once

#include <QWidget>

#include "station/pi_ecc_lic_tab.h"

namespace corvalis::desktop {

/// The tab of PI, ECC and LIC.
class PiEccLicPage : public QWidget {
 public:
  PiEccLicPage(PiEccLicTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
