#include "desktop/views/edit_groups_view.h"

#include <QGroupBox>

#include "desktop/widgets/check_box_widget.h"
#include "desktop/widgets/label_widget.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/meter_widget.h"
#include "desktop/widgets/spinner_widget.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

namespace {

constexpr int kRepetitionColumns = 3;
constexpr int kPercentWidth = 42;
constexpr int kSelectedWidth = 88;
// A box and a number for each version, then what they make together.
constexpr int kVersionAColumn = 0;
constexpr int kVersionBColumn = 2;
constexpr int kShareColumn = 4;
constexpr int kBarColumn = 5;
constexpr int kBlock = kGroupNumbers / 2;

void AddGroup(EditGroupsForm& form, int group, QGridLayout& grid, int row, int column,
              QWidget* parent) {
  grid.addWidget(new CheckBoxWidget(form.Check1[group], parent), row, column);
  grid.addWidget(new SpinField(form.Text1[group], form.VScroll2[group], kRepetitionColumns, parent),
                 row, column + 1);
}

// Eight group numbers, one below the other.
QWidget* Block(EditGroupsForm& form, int first, QWidget* parent) {
  auto* block = new QGroupBox(parent);
  auto* grid = new QGridLayout(block);
  grid->setHorizontalSpacing(kNear);
  grid->setVerticalSpacing(kTight);
  for (int row = 0; row < kBlock; ++row) {
    const int number = first + row;
    AddGroup(form, number, *grid, row, kVersionAColumn, block);
    AddGroup(form, number + kGroupNumbers, *grid, row, kVersionBColumn, block);
    auto* share = new LabelWidget(form.PercentText[number], block);
    share->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    share->setFixedWidth(kPercentWidth);
    grid->addWidget(share, row, kShareColumn);
    grid->addWidget(new MeterWidget(form.PercentBar[number], block), row, kBarColumn);
  }
  grid->setColumnStretch(kBarColumn, 1);
  return block;
}

// What the two buttons beside it are about: as wide as the longest name, so that they stand still.
QWidget* Selected(EditGroupsForm& form, QWidget* parent) {
  auto* part = new QWidget(parent);
  QHBoxLayout* row = Row(part);
  row->setSpacing(kGap);
  auto* name = new LabelWidget(form.SelectedLabel, part);
  name->setFont(Bold(name->font()));
  name->setFixedWidth(kSelectedWidth);
  row->addWidget(name);
  row->addWidget(ButtonRow({&form.Command2, &form.Command11}, part));
  return part;
}

}  // namespace

EditGroupsView::EditGroupsView(EditGroupsForm& form) : WindowView(form.window) {
  auto* blocks = new QHBoxLayout;
  blocks->setSpacing(kApart);
  blocks->addWidget(Block(form, 0, this), 1);
  blocks->addWidget(Block(form, kBlock, this), 1);

  QVBoxLayout* column = WindowColumn(this);
  column->addLayout(blocks, 1);
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(Selected(form, this));
  row->addStretch(1);
  row->addWidget(ButtonRow({&form.Command13, &form.Command1, &form.Command12}, this));
  column->addLayout(row);
}

}  // namespace corvalis::desktop
