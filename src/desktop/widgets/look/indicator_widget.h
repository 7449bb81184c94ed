#pragma once

#include <QLabel>

#include "screen/check_box.h"

namespace corvalis::desktop {

/// A state of the station on the air, in large letters on a ground of its colour, to be read from
/// across the room. It only shows: a click changes nothing.
class IndicatorWidget : public QLabel {
 public:
  /// `title` says what it is the state of; the two together are its accessible name.
  IndicatorWidget(CheckBox& box, const Label& title, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Draw();

  CheckBox& box_;
  const Label& title_;
};

}  // namespace corvalis::desktop
