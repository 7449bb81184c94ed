#pragma once

class QMessageBox;
class QWidget;

namespace corvalis::desktop {

/// The window that stands before all others of the program that `beneath` owns, boxes included;
/// `beneath` itself if there is none. With null, the one before all others. The guide is none of
/// them: nothing may hang on a window that the operator closes at will.
[[nodiscard]] QWidget* FrontWindow(QWidget* beneath);

/// The message box that stands unanswered; null for none.
[[nodiscard]] QMessageBox* StandingBox();

}  // namespace corvalis::desktop
