#include "desktop/views/tdc_page.h"

#include "desktop/widgets/grid/grid_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

// A grid under its caption, beside which a word says that it is the selected one.
QWidget* Table(Label& caption, Label& mark, Grid& grid, QWidget* parent) {
  auto* table = new QWidget(parent);
  QVBoxLayout* column = Column(table);
  auto* head = new QWidget(table);
  QHBoxLayout* row = Row(head);
  auto* list = new GridWidget(grid, table);
  auto* title = new LabelWidget(caption, head);
  title->setBuddy(list);
  title->Name(list);
  auto* word = new LabelWidget(mark, head);
  word->setFont(Bold(word->font()));
  SetInk(*word, colours::kAccent);
  row->addWidget(title);
  row->addWidget(word);
  row->addStretch();
  column->addWidget(head);
  column->addWidget(list, 1);
  return table;
}

}  // namespace

TdcPage::TdcPage(TdcTab& tab, QWidget* parent) : QWidget(parent) {
  auto* tables = new QWidget(this);
  QHBoxLayout* halves = Row(tables);
  halves->setSpacing(kApart);
  // No equal parts: each takes what its columns need.
  halves->addWidget(Table(tab.Tdc0Label, tab.Tdc0MarkLabel, tab.DBGrid1, tables));
  halves->addWidget(Table(tab.TdcLabel, tab.TdcMarkLabel, tab.DBGrid2, tables));
  ListPage(this, tables,
           {&tab.Command2, &tab.Command3, &tab.Command5, &tab.Command6, &tab.Command4}, {},
           {SelectedRow(tab.TdcSelectedLabel, tables, this)});
}

}  // namespace corvalis::desktop
