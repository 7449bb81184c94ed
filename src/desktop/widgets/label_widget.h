#pragma once

#include <QGroupBox>
#include <QLabel>

#include "screen/control.h"

namespace corvalis::desktop {

/// Shows the caption of a label; a label without a caption takes no room.
class LabelWidget : public QLabel {
 public:
  LabelWidget(Label& label, QWidget* parent);
};

/// Shows the caption of a label as the title of a group.
class LabelledGroup : public QGroupBox {
 public:
  LabelledGroup(Label& label, QWidget* parent);
};

}  // namespace corvalis::desktop
