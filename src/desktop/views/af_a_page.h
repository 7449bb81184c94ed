#pragma once

#include <QWidget>

#include "programme/af_a_tab.h"

namespace corvalis::desktop {

/// The tab of the alternative frequencies of method A.
class AfAPage : public QWidget {
 public:
  AfAPage(AfATab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
