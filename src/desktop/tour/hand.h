#pragma once

#include <QString>
#include <QWidget>

namespace corvalis::desktop {

/// The operator's hand on the real windows: mouse and keyboard, by the names of windows and
/// controls. What can't be done ends the tour with a sentence (`std::runtime_error`).
class Hand {
 public:
  /// Pictures go into `folder`.
  explicit Hand(QString folder) : folder_(std::move(folder)) {}

  /// The window of that name, which must be on the screen.
  [[nodiscard]] QWidget& Window(const QString& name) const;
  /// A control in it, which must be there to be seen.
  [[nodiscard]] QWidget& Control(const QString& window, const QString& name) const;

  void Click(const QString& window, const QString& control) const;
  /// Chooses the entry that reads `text` in a list, dropped down or open, with the mouse.
  void Choose(const QString& window, const QString& list, const QString& text) const;
  /// Puts `text` in place of what stands in a box, key by key, and goes on with Tab.
  void Type(const QString& window, const QString& box, const QString& text) const;
  /// Presses an arrow of a spinner.
  void StepUp(const QString& window, const QString& spinner) const;
  void StepDown(const QString& window, const QString& spinner) const;
  void TurnToTab(const QString& window, int tab) const;
  void TurnToTab(const QString& window, const QString& caption) const;
  /// Makes a cell of a grid the current one, with the keyboard. Rows and columns count from 0.
  void GoToCell(const QString& window, const QString& grid, int row, int column) const;
  /// Keys for whatever has the keyboard, one by one.
  void Strike(const QString& keys) const;
  void Close(const QString& window) const;

  /// What a box, a list or a button shows.
  [[nodiscard]] QString Shown(const QString& window, const QString& control) const;

  /// What a cell of a grid shows.
  [[nodiscard]] QString ShownCell(const QString& window, const QString& grid, int row,
                                  int column) const;

  /// A picture of a window, as `file`.png. The window need not be there: then there is none.
  void Picture(const QString& window, const QString& file) const;
  void Picture(QWidget& shown, const QString& file) const;
  /// The same for a window that is there for moments only; true once there is a picture.
  bool PictureOnce(const QString& window, const QString& file) const;

 private:
  [[nodiscard]] QString PathOf(const QString& file) const;

  QString folder_;
};

}  // namespace corvalis::desktop
