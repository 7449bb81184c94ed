#pragma once

#include <QWidget>

#include "screen/check_box.h"

namespace corvalis::desktop {

/// A state of the station on the air, in large letters on a ground of its colour, to be read from
/// across the room. A click goes to the form, which keeps the state as it is.
class IndicatorWidget : public QWidget {
 public:
  IndicatorWidget(CheckBox& box, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  CheckBox& box_;
};

}  // namespace corvalis::desktop
