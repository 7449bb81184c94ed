#pragma once

#include <QCheckBox>

#include "screen/check_box.h"

namespace corvalis::desktop {

/// A check box. One that tells by its colour is filled with it while it is checked, and else has
/// its edge in it.
class CheckBoxWidget : public QCheckBox {
 public:
  CheckBoxWidget(CheckBox& box, QWidget* parent);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void nextCheckState() override;

 private:
  void Draw();

  CheckBox& box_;
};

}  // namespace corvalis::desktop
