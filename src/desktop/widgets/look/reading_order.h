#pragma once

class QWidget;

namespace corvalis::desktop {

/// Has Tab go through `window` as it reads: in the order of its layouts, line by line and from the
/// left, whatever the order in which the controls were made. What stands in no layout comes after
/// the control that it stands on.
void SetReadingOrder(QWidget& window);

}  // namespace corvalis::desktop
