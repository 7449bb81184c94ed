#pragma once

#include <QString>

class QWidget;

namespace corvalis::desktop {

/// Puts what `from` shows on the clipboard, and says so in the status line of its window. An empty
/// text leaves what is there.
void Copy(const QWidget& from, const QString& text);

}  // namespace corvalis::desktop
