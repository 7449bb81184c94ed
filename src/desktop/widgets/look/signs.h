#pragma once

#include <QIcon>
#include <QStyle>

namespace corvalis::desktop {

/// The sign of a message box, as flat as the rest of the program: a triangle warns, a disc tells of
/// a failure or informs. Null for every other picture of the toolkit.
[[nodiscard]] QIcon SignOf(QStyle::StandardPixmap picture);

}  // namespace corvalis::desktop
