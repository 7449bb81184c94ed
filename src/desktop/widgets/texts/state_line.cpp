#include "desktop/widgets/texts/state_line.h"

#include <QResizeEvent>

#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

StateLine::StateLine(Label& label, TextBox::Content content, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  SetInk(*this, colours::kQuietText);
  Bind(*this, label, [this, &label, content] {
    whole_ = FromContent(label.Caption(), content);
    setAccessibleName(whole_);
    Elide();
  });
}

void StateLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Elide();
}

void StateLine::Elide() {
  setText(fontMetrics().elidedText(whole_, Qt::ElideMiddle, width()));
  setToolTip(text() == whole_ ? QString() : whole_);
}

}  // namespace corvalis::desktop
