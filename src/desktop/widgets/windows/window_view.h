#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <map>

namespace corvalis {
class Timer;
class Window;
}  // namespace corvalis

namespace corvalis::desktop {

/// A window on the screen, and the base of each. It shows what a `Window` says: caption, enabled,
/// visible, owner, front and focus; it runs the window's timers, and hands the operator's focus
/// and close box over. What derives from it only lays the controls out.
class WindowView : public QWidget {
 public:
  explicit WindowView(Window& model);
  ~WindowView() override;

  /// The window has become visible, in front of `owner` (null: of none). One that can't be used yet
  /// comes up once it can: nobody is to press what is not there for him.
  void Present(QWidget* owner);
  /// Comes up at once if it is still waiting for that: a box is not to stand before nothing.
  void AwaitNoMore();
  /// The model ends: nothing of it is touched any more. Hides, and deletes itself once no event of
  /// it is under way.
  void Leave();

  /// True while the operator may act on the window.
  [[nodiscard]] bool TakesInput() const;
  /// The window has been activated. A disabled one gives the keyboard to what stands in front of
  /// it.
  void HandOver();
  /// True if ESC, struck while `focus` has the keyboard, closes the window: a working screen that
  /// has not been busy a moment ago, and no cell is open in which ESC is for the cell.
  [[nodiscard]] bool ClosesOnEscape(const QWidget& focus) const;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  /// Where the window comes up: the middle of its owner's frame, if nothing else is said.
  [[nodiscard]] virtual QPoint PlaceOver(const QRect& owner) const;

 private:
  void PutUp(QWidget* owner);
  void Draw();
  void TakeDown();
  void CloseMenus();
  void RunTimers();
  void CloseModel();
  void PlaceBefore(QWidget& owner);
  void MoveFocus(QWidget* now);
  void ShowFocus();

  Window* model_;
  QWidget* veil_;
  QTimer veil_delay_;
  std::map<Timer*, QTimer*> timers_;
  bool enabled_ = true;
  bool awaited_ = false;  // to come up once it can be used, in front of this one
  QPointer<QWidget> awaited_owner_;
  QElapsedTimer since_busy_;  // since the window was enabled again
  bool in_model_ = false;     // the model is moving the focus, or closing
};

}  // namespace corvalis::desktop
