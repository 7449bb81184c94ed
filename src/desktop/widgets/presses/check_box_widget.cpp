#include "desktop/widgets/presses/check_box_widget.h"

#include <QMouseEvent>

#include "desktop/text.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {

// What is off steps back behind what is on.
void Colour(QPalette& palette, CheckBox::Tone tone) {
  if (tone == CheckBox::Tone::kPlain) return;
  const bool on = tone == CheckBox::Tone::kOn;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Highlight, QColor(on ? colours::kOn : colours::kOff));
    palette.setColor(group, QPalette::Dark, QColor(colours::kOff));
    palette.setColor(group, QPalette::WindowText,
                     QColor(on ? colours::kText : colours::kQuietText));
  }
}

}  // namespace

CheckBoxWidget::CheckBoxWidget(CheckBox& box, QWidget* parent) : QCheckBox(parent), box_(box) {
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  Bind(*this, box, [this] { Draw(); });
  FollowScheme(*this, [this] { Draw(); });
}

void CheckBoxWidget::Draw() {
  ShowCaption(*this, FromBytes(box_.Caption()));
  setChecked(box_.Checked());
  QPalette colours = parentWidget()->palette();
  Colour(colours, box_.ColourTone());
  if (palette() != colours) setPalette(colours);
}

void CheckBoxWidget::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (HasKeyboard(*this)) QCheckBox::mousePressEvent(event);
}

void CheckBoxWidget::nextCheckState() {
  box_.Press();
  Draw();
}

}  // namespace corvalis::desktop
