#pragma once

#include "desktop/widgets/lists/drop_down_widget.h"
#include "screen/combo_box.h"

namespace corvalis::desktop {

/// A list that drops down below a text that can be typed. What is typed selects no entry, even if
/// it is one; the wheel does nothing.
class ComboBoxWidget : public DropDownWidget {
 public:
  ComboBoxWidget(ComboBox& combo, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void Draw() override;

 private:
  void Take(const QString& text);

  ComboBox& combo_;
};

}  // namespace corvalis::desktop
