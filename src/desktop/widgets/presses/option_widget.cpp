#include "desktop/widgets/presses/option_widget.h"

#include <QMouseEvent>

#include "desktop/text.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

OptionWidget::OptionWidget(OptionButton& option, QWidget* parent)
    : QRadioButton(parent), option_(option) {
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  // The model says which one is chosen: the base would let none of a group be taken back.
  setAutoExclusive(false);
  Bind(*this, option, [this] { Draw(); });
}

void OptionWidget::Draw() {
  ShowCaption(*this, FromBytes(option_.Caption()));
  setChecked(option_.Chosen());
}

void OptionWidget::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (HasKeyboard(*this)) QRadioButton::mousePressEvent(event);
}

void OptionWidget::nextCheckState() {
  option_.Press();
  Draw();
}

}  // namespace corvalis::desktop
