#include "desktop/widgets/layout.h"

#include "desktop/widgets/button_widget.h"
#include "desktop/widgets/label_widget.h"
#include "desktop/widgets/style.h"
#include "desktop/widgets/text_box_widget.h"

namespace corvalis::desktop {

namespace {

template <class Box>
Box* Bare(QWidget* parent) {
  auto* box = new Box(parent);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(kNear);
  return box;
}

}  // namespace

QVBoxLayout* WindowColumn(QWidget* window) {
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(kApart, kApart, kApart, kApart);
  column->setSpacing(kApart);
  return column;
}

QVBoxLayout* Column(QWidget* parent) { return Bare<QVBoxLayout>(parent); }

QHBoxLayout* Row(QWidget* parent) { return Bare<QHBoxLayout>(parent); }

QGridLayout* Fields(QWidget* group) {
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kNear);
  grid->setColumnStretch(1, 1);
  return grid;
}

void AddField(QGridLayout& fields, Label& label, QWidget* field) {
  const int row = fields.rowCount();
  auto* caption = new LabelWidget(label, field->parentWidget());
  caption->setBuddy(field);
  fields.addWidget(caption, row, 0, Qt::AlignLeft | Qt::AlignVCenter);
  const bool fixed = field->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
  fields.addWidget(field, row, 1, fixed ? Qt::AlignLeft : Qt::Alignment());
}

void AddLine(QGridLayout& fields, QWidget* line) {
  fields.addWidget(line, fields.rowCount(), 0, 1, 2);
}

QWidget* FixedBox(TextBox& box, int columns, QWidget* parent) {
  auto* widget = new TextBoxWidget(box, columns, parent);
  widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return widget;
}

QWidget* CodeBox(TextBox& box, int columns, QWidget* parent) {
  auto* widget = new TextBoxWidget(box, columns, parent);
  widget->setFont(DigitsFont());
  widget->setAlignment(Qt::AlignHCenter);
  widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return widget;
}

QWidget* ButtonRow(std::initializer_list<Button*> buttons, QWidget* parent) {
  auto* group = new QWidget(parent);
  QHBoxLayout* row = Row(group);
  for (Button* button : buttons) row->addWidget(new ButtonWidget(*button, group));
  row->addStretch();
  return group;
}

QWidget* ButtonColumn(std::initializer_list<Button*> buttons, QWidget* parent) {
  auto* group = new QWidget(parent);
  QVBoxLayout* column = Column(group);
  for (Button* button : buttons) column->addWidget(new ButtonWidget(*button, group));
  return group;
}

}  // namespace corvalis::desktop
