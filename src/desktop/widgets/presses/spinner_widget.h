#pragma once

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QWidget>

#include "desktop/text.h"
#include "screen/spinner.h"
#include "screen/text_box.h"

namespace corvalis::desktop {

/// Two arrows, one above the other, that step while they are held. From the keyboard: up and down.
class SpinnerWidget : public QAbstractSpinBox {
 public:
  SpinnerWidget(Spinner& spinner, QWidget* parent);

  /// The spinner's value is what `box` shows, for whoever does not see the two side by side.
  void Moves(const QLineEdit& box);

  void stepBy(int steps) override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  [[nodiscard]] StepEnabled stepEnabled() const override;
  void mousePressEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Spinner& spinner_;
};

/// A box and the spinner that moves its number, as one field.
class SpinField : public QWidget {
 public:
  /// `columns` is the width of the box in digits.
  SpinField(TextBox& box, Spinner& spinner, int columns, QWidget* parent);

  /// The accessible name of both.
  void Name(const Wording& name);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLineEdit* box_;
  SpinnerWidget* spinner_;
};

}  // namespace corvalis::desktop
