#pragma once

#include <QLabel>

namespace corvalis::desktop {

/// Something that the radio shows. A press on it, Ctrl+C, Space or Enter copies it.
class ShownItem : public QLabel {
 public:
  /// `name` says what it is.
  ShownItem(QString name, QWidget* parent);

  /// `text` is what is seen, `copied` what a press copies; `quiet`: it is not heard, as its words
  /// say.
  void Display(const QString& text, const QString& copied, bool quiet = false);
  void Display(const QString& text, bool quiet = false) { Display(text, text, quiet); }
  [[nodiscard]] const QString& Name() const { return name_; }
  void SetName(const QString& name);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  /// The inks of this moment.
  virtual void Dress();

 private:
  void Call();

  QString name_;
  QString copied_;
  bool quiet_ = false;
};

}  // namespace corvalis::desktop
