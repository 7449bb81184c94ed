#pragma once

#include <QWidget>

#include "networks/ih_tab.h"

namespace corvalis::desktop {

/// The in-house pages: the page's text at the left, its file at the right.
class IhPage : public QWidget {
 public:
  IhPage(IhTab& tab, QWidget* parent);
};

}  // namespace corvalis::desktop
