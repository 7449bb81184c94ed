#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

#include "busy/serial_communication_form.h"
#include "busy/wait_form.h"
#include "desktop/widgets/windows/window_view.h"

namespace corvalis::desktop {

/// "Wait please!", while files are read and written.
class WaitView : public WindowView {
 public:
  explicit WaitView(WaitForm& form);

 protected:
  /// Low, so that the lists that a port scan moves along stay in sight.
  [[nodiscard]] QPoint PlaceOver(const QRect& owner) const override;
};

/// The line that says how far a run is. It follows each item, but a screen reader is told once a
/// second at most.
class ProgressLine : public QLabel {
 public:
  ProgressLine(Label& label, QWidget* parent);

 private:
  static constexpr int kToldMs = 1000;

  void Tell();

  QTimer pause_;
};

/// A transfer is under way, and can be aborted. In its first second ESC and the mouse alone do it:
/// what is struck again on the button that began it must not end it in silence.
class SerialCommunicationView : public WindowView {
 public:
  explicit SerialCommunicationView(SerialCommunicationForm& form);

 protected:
  /// A press beside the button leaves the keyboard with it.
  void mousePressEvent(QMouseEvent* /*event*/) override {}
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* button, QEvent* event) override;

 private:
  static constexpr qint64 kDeafMs = 1000;

  QElapsedTimer since_shown_;
};

}  // namespace corvalis::desktop
