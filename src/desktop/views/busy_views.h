#pragma once

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

/// A transfer is under way, and can be aborted.
class SerialCommunicationView : public WindowView {
 public:
  explicit SerialCommunicationView(SerialCommunicationForm& form);

 protected:
  /// A press beside the button leaves the keyboard with it.
  void mousePressEvent(QMouseEvent* /*event*/) override {}
};

}  // namespace corvalis::desktop
