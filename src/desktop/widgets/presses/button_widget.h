#pragma once

#include <QPushButton>

#include "screen/button.h"

namespace corvalis::desktop {

/// A push button. Buttons with the same parent are equally wide.
class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(Button& button, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Button& button_;
};

}  // namespace corvalis::desktop
