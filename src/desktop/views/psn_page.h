#pragma once

#include <QWidget>

#include "programme/psn_tab.h"

namespace corvalis::desktop {

/// The tab of the names: the list, beside it the pages and the scrolling text.
class PsnPage : public QWidget {
 public:
  PsnPage(PsnTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
