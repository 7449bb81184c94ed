#pragma once

#include <QLabel>

#include "screen/control.h"

namespace corvalis::desktop {

/// Says under a field what radios show of the text in it, which is the caption of the label, or
/// which plain characters go out in place of those that radios do not have (see
/// link/radio_text.h). What differs is underlined, and named in the accessible name and the tip.
/// Where nothing does, it shows nothing, but keeps its room.
class RadioLine : public QLabel {
 public:
  RadioLine(Label& label, QWidget* parent);

 private:
  void Show(const std::string& text);
};

}  // namespace corvalis::desktop
