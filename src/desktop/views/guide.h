#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "desktop/widgets/windows/guide_window.h"

namespace corvalis::desktop {

/// Where the operator's guide is: beside the installed program, else in the tree it was built from.
[[nodiscard]] QString GuideFolder();

/// The operator's guide under F1: any window of the program leads to its own page, and a tab to its
/// part of it. While the transfer or the wait screen is up F1 does nothing, so ESC stays with it.
class Guide : public QObject {
 public:
  /// `language` gives the code of the language that the program speaks.
  explicit Guide(std::function<QString()> language, const QString& folder = GuideFolder());

  /// Opens the page of a window: of a screen by its name, of a box with help at the link's errors,
  /// of another box that of the screen under it. False if there is none.
  bool OpenFor(const QWidget& window);

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  GuideWindow window_;
};

}  // namespace corvalis::desktop
