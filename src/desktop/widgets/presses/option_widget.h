#pragma once

#include <QRadioButton>

#include "screen/option_button.h"

namespace corvalis::desktop {

/// One of several options of a group box, which holds no others.
class OptionWidget : public QRadioButton {
 public:
  OptionWidget(OptionButton& option, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void nextCheckState() override;

 private:
  void Draw();

  OptionButton& option_;
};

}  // namespace corvalis::desktop
