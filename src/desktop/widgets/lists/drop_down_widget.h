#pragma once

#include <QComboBox>
#include <string>
#include <vector>

#include "screen/list_box.h"
#include "screen/text_box.h"

namespace corvalis::desktop {

/// A closed list that drops down. The operator chooses with the mouse, the arrow keys, or from the
/// list dropped down (F4, Alt+Down); from a list for the pointer alone, with the mouse. Typed keys
/// go to the form and choose nothing; nor does the wheel, lest a passing hand changes what goes on
/// air.
class DropDownWidget : public QComboBox {
 public:
  /// `content` says what the entries are.
  DropDownWidget(ListBox& list, QWidget* parent,
                 TextBox::Content content = TextBox::Content::kWindows1252);

  bool eventFilter(QObject* watched, QEvent* event) override;
  void showPopup() override;
  void setVisible(bool visible) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  /// Brings the entries and the selection in step with the list, without a signal.
  virtual void Draw();
  /// Opens the list, or moves its selection, if `event` is such a key.
  [[nodiscard]] bool MovedByKey(const QKeyEvent& event);

 private:
  [[nodiscard]] bool TakenInPopup(const QKeyEvent& event);
  // Closes the list and passes on a press that is neither in it nor on the box.
  [[nodiscard]] bool PressedBeside(const QMouseEvent& event);
  void Choose(int index);
  [[nodiscard]] QString Shown(const std::string& entry) const;

  ListBox& list_;
  TextBox::Content content_;
  std::vector<std::string> shown_;
};

}  // namespace corvalis::desktop
