#include "desktop/widgets/label_widget.h"

#include "desktop/text.h"
#include "desktop/widgets/binding.h"

namespace corvalis::desktop {

LabelWidget::LabelWidget(Label& label, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  Bind(*this, label, [this, &label] {
    const QString caption = FromBytes(label.Caption());
    if (text() != caption) setText(caption);
    if (caption.isEmpty()) hide();
  });
}

LabelledGroup::LabelledGroup(Label& label, QWidget* parent) : QGroupBox(parent) {
  Bind(*this, label, [this, &label] { setTitle(FromBytes(label.Caption())); });
}

}  // namespace corvalis::desktop
