#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "desktop/widgets/windows/guide_pages.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace corvalis::desktop {

/// The window of the operator's guide: a page at a time, with the way to the contents and back. It
/// is no form: it owns nothing, and whatever stands under it stays as it is. ESC closes it.
///
/// What is typed into the search box is looked for in all pages at once: the places stand in a
/// list, the one chosen is shown and marked. Up and Down go through the list from the box too,
/// Enter and Shift with Enter to the next place and the one before; ESC there first empties the
/// box.
class GuideWindow : public QWidget {
 public:
  /// `folder` holds the pages, as `GuidePages` wants them. `language` is asked at each opening for
  /// the code of the language that the program speaks.
  explicit GuideWindow(QString folder, std::function<QString()> language);

  /// Shows the page in `file`, from the longest heading that is a part of `about`, else from its
  /// beginning, and takes the keyboard, also while a box stands. Where the page can't be read,
  /// the window says so.
  void Open(const QString& file, const QString& about);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  // The page in `file` has come up.
  void Dress(const QString& file);
  void ShowPage(const QString& file);
  void GoToHeading(const QString& about);
  void Present();
  void Search();
  void ShowPlace(int row);
  void MarkPlaces();
  void Step(int by);
  void Print();
  bool eventFilter(QObject* receiver, QEvent* event) override;

  QString folder_;
  std::function<QString()> language_;
  QString spoken_;  // of `pages_`
  GuidePages pages_;
  QString file_;  // on the screen
  std::vector<GuidePlace> places_;

  QTextBrowser* page_;
  QLineEdit* search_;
  QLabel* count_;
  QListWidget* list_;
};

}  // namespace corvalis::desktop
