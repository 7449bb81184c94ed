#pragma once

#include <QWidget>

class QTextBrowser;

namespace corvalis::desktop {

/// The window of the operator's guide: a page at a time, with the way to the contents and back. It
/// is no form: it owns nothing, and whatever stands under it stays as it is. ESC closes it.
class GuideWindow : public QWidget {
 public:
  /// `folder` holds the pages, "index.md" among them.
  explicit GuideWindow(const QString& folder);

  /// Shows the page in `file`, from the longest heading that is a part of `about`, else from its
  /// beginning, and takes the keyboard, also while a box stands. Where the page can't be read,
  /// the window says so.
  void Open(const QString& file, const QString& about);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  // A page has come up.
  void Dress();
  void GoToHeading(const QString& about);
  void Present();

  QString folder_;
  QTextBrowser* page_;
};

}  // namespace corvalis::desktop
