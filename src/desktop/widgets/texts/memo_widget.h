#pragma once

#include <QPlainTextEdit>
#include <string>

#include "screen/text_box.h"

namespace corvalis::desktop {

/// A text box of several lines. The form's rules see every key and every paste before the text
/// changes. What the operator does not touch keeps its bytes, line ends included; a new line ends
/// in CR LF. When the program makes the text grow at its end, the end is in sight.
class MemoWidget : public QPlainTextEdit {
 public:
  MemoWidget(TextBox& box, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void Draw();
  void Dress();
  void TellEdit();
  void TellSelection();
  void Strike(int key);
  /// True if the form lets the key through; it may have replaced it.
  [[nodiscard]] bool Allowed(int& key) const;
  [[nodiscard]] QString Plain() const;

  TextBox& box_;
  std::string shown_;
  bool in_step_ = false;  // one side is being brought in step with the other
};

}  // namespace corvalis::desktop
