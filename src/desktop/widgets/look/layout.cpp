#include "desktop/widgets/look/layout.h"

#include <QLabel>

#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/button_widget.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/text_box_widget.h"

namespace corvalis::desktop {

namespace {

template <class Box>
Box* Bare(QWidget* parent) {
  auto* box = new Box(parent);
  box->setContentsMargins(0, 0, 0, 0);
  box->setSpacing(kNear);
  return box;
}

// Returns what has the keyboard in `field`.
QWidget* AppendField(QGridLayout& fields, QLabel* caption, QWidget* field) {
  QWidget* box = field->focusProxy() == nullptr ? field : field->focusProxy();
  const int row = fields.rowCount();
  caption->setBuddy(box);
  fields.addWidget(caption, row, 0, Qt::AlignLeft | Qt::AlignVCenter);
  const bool fixed = field->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
  fields.addWidget(field, row, 1, fixed ? Qt::AlignLeft : Qt::Alignment());
  return box;
}

}  // namespace

QVBoxLayout* WindowColumn(QWidget* window) {
  auto* column = new QVBoxLayout(window);
  column->setContentsMargins(kApart, kApart, kApart, kApart);
  column->setSpacing(kApart);
  return column;
}

QVBoxLayout* NaturalColumn(QWidget* page) {
  auto* content = new QWidget(page);
  QHBoxLayout* row = Row(page);
  row->setContentsMargins(0, kApart, 0, 0);
  row->addWidget(content, 0, Qt::AlignLeft | Qt::AlignTop);
  QVBoxLayout* column = Column(content);
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
  auto* caption = new LabelWidget(label, field->parentWidget());
  QWidget* box = AppendField(fields, caption, field);
  caption->Name(box);
  for (auto* spinner : field->findChildren<SpinnerWidget*>()) {
    if (spinner->accessibleName().isEmpty()) caption->Name(spinner);
  }
}

void AddField(QGridLayout& fields, const Wording& word, QWidget* field) {
  auto* label = new QLabel(field->parentWidget());
  QWidget* box = AppendField(fields, label, field);
  ShowWord(*label, word);
  CallByWord(*box, word);
  for (auto* spinner : field->findChildren<SpinnerWidget*>()) CallByWord(*spinner, word);
}

void AddNumbered(QGridLayout& grid, int number, int in_line, const char* name, QWidget* box) {
  const int row = (number - 1) / in_line;
  const int column = (number - 1) % in_line * kNumberedColumns;
  QLabel* word = QuietText(QString::number(number), box->parentWidget());
  word->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(word, row, column);
  grid.addWidget(box, row, column + 1);
  grid.setColumnStretch(column + 2, 1);
  CallByWord(*box, Wording(name, QString::number(number)));
}

void AddLine(QGridLayout& fields, QWidget* line) {
  fields.addWidget(line, fields.rowCount(), 0, 1, 2);
}

QLineEdit* FixedBox(TextBox& box, int columns, QWidget* parent) {
  auto* widget = new TextBoxWidget(box, columns, parent);
  widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return widget;
}

QLineEdit* CodeBox(TextBox& box, int columns, QWidget* parent) {
  QLineEdit* widget = FixedBox(box, columns, parent);
  widget->setFont(DigitsFont());
  widget->setAlignment(Qt::AlignHCenter);
  return widget;
}

QWidget* ButtonRow(std::initializer_list<Button*> buttons, QWidget* parent) {
  auto* group = new QWidget(parent);
  QHBoxLayout* row = Row(group);
  for (Button* button : buttons) row->addWidget(new ButtonWidget(*button, group));
  row->addStretch();
  return group;
}

QWidget* SelectedRow(Label& row, QWidget* list, QWidget* parent) {
  auto* part = new QWidget(parent);
  QHBoxLayout* line = Row(part);
  auto* word = new QLabel(part);
  word->setBuddy(list);
  ShowWord(*word, Wording("Current row"));
  auto* name = new LabelWidget(row, part);
  name->setFont(Bold(name->font()));
  line->addWidget(word);
  line->addWidget(name);
  line->addStretch();
  return part;
}

QWidget* ButtonColumn(std::initializer_list<Button*> buttons, QWidget* parent) {
  auto* group = new QWidget(parent);
  QVBoxLayout* column = Column(group);
  for (Button* button : buttons) column->addWidget(new ButtonWidget(*button, group));
  return group;
}

void ListPage(QWidget* page, QWidget* grid, std::initializer_list<Button*> buttons,
              std::initializer_list<QWidget*> above, std::initializer_list<QWidget*> below) {
  QVBoxLayout* column = Column(page);
  column->setSpacing(kGap);
  for (QWidget* part : above) column->addWidget(part);
  column->addWidget(grid, 1);
  for (QWidget* part : below) column->addWidget(part);
  column->addWidget(ButtonRow(buttons, page));
}

}  // namespace corvalis::desktop
