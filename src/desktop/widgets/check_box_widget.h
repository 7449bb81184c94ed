#pragma once

#include <QCheckBox>

#include "screen/check_box.h"

namespace corvalis::desktop {

/// A check box. One that tells by its colour stands on a pale ground of that colour, and is filled
/// with it while it is checked.
class CheckBoxWidget : public QCheckBox {
 public:
  CheckBoxWidget(CheckBox& box, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void nextCheckState() override;
  [[nodiscard]] bool hitButton(const QPoint& position) const override;

 private:
  void Draw();

  CheckBox& box_;
  CheckBox::Tone tone_ = CheckBox::Tone::kPlain;
};

}  // namespace corvalis::desktop
