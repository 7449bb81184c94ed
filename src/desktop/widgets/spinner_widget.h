#pragma once

#include <QLineEdit>
#include <QTimer>
#include <QWidget>

#include "screen/spinner.h"
#include "screen/text_box.h"

namespace corvalis::desktop {

/// Two arrows, one above the other, that step while they are held. From the keyboard: up and down.
class SpinnerWidget : public QWidget {
 public:
  SpinnerWidget(Spinner& spinner, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  enum class Half { kNone, kUp, kDown };
  void Step();
  void LetGo();

  Spinner& spinner_;
  Half held_ = Half::kNone;
  QTimer repeat_;
};

/// A box and the spinner that moves its number, as one field.
class SpinField : public QWidget {
 public:
  /// `columns` is the width of the box in digits.
  SpinField(TextBox& box, Spinner& spinner, int columns, QWidget* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLineEdit* box_;
  QWidget* spinner_;
};

}  // namespace corvalis::desktop
