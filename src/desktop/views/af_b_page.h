#pragma once

#include <QWidget>

#include "programme/af_b_tab.h"

namespace corvalis::desktop {

/// The tab of the alternative frequencies of method B.
class AfBPage : public QWidget {
 public:
  AfBPage(AfBTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
