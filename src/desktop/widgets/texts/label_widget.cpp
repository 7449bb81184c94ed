#include "desktop/widgets/texts/label_widget.h"

#include "desktop/text.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

void Naming::Name(QWidget* widget) {
  named_.emplace_back(widget);
  widget->setAccessibleName(caption_);
}

void Naming::Call(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  for (const auto& widget : named_) {
    if (widget) widget->setAccessibleName(caption);
  }
}

LabelWidget::LabelWidget(Label& label, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  Bind(*this, label, [this, &label] {
    const QString caption = FromBytes(label.Caption());
    ShowCaption(*this, caption);
    if (caption.isEmpty()) hide();
    Call(caption);
  });
}

LabelledGroup::LabelledGroup(Label& label, QWidget* parent) : QGroupBox(parent) {
  Bind(*this, label, [this, &label] {
    const QString caption = FromBytes(label.Caption());
    ShowCaption(*this, caption);
    Call(caption);
  });
}

QGroupBox* Group(const Wording& title, QWidget* parent) {
  auto* group = new QGroupBox(parent);
  ShowWord(*group, title);
  return group;
}

QLabel* QuietText(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  SetInk(*label, colours::kQuietText);
  return label;
}

QLabel* QuietText(const Wording& word, QWidget* parent) {
  QLabel* label = QuietText(QString(), parent);
  ShowWord(*label, word);
  return label;
}

QLabel* Heading(const Wording& word, QWidget* box) {
  if (box->accessibleName().isEmpty()) CallByWord(*box, word);
  QLabel* heading = QuietText(word, box->parentWidget());
  heading->setBuddy(box);
  return heading;
}

}  // namespace corvalis::desktop
