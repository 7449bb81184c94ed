#pragma once

#include <QLineEdit>

#include "screen/text_box.h"

namespace corvalis::desktop {

/// A box of one line. The form's rules see every key and every paste before the text changes; the
/// widget then shows what the box holds. Edits that raise no key (delete, cut, undo) are made here
/// and told to the box.
///
/// Positions of the box count bytes, those of the widget UTF-16 units.
class TextBoxWidget : public QLineEdit {
 public:
  /// `columns` is the width in digits of the font in use; 0: as wide as the layout lets it.
  TextBoxWidget(TextBox& box, int columns, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Draw();
  void DrawText();
  void TellSelection();
  void TellEdit();
  void Strike(const QString& characters);
  void StrikeBackspace();
  void Paste(const QString& clip);

  [[nodiscard]] bool FileName() const;
  [[nodiscard]] QString Shown(const std::string& bytes) const;
  [[nodiscard]] std::string Bytes(const QString& shown) const;
  /// Where a position of the one side lies on the other.
  [[nodiscard]] int ByteAt(int unit) const;
  [[nodiscard]] int UnitAt(int byte) const;

  TextBox& box_;
  int columns_;
  bool in_step_ = false;   // one side is being brought in step with the other
  bool striking_ = false;  // the operator's key is being carried out
};

}  // namespace corvalis::desktop
