#include "desktop/edit_groups_view.h"

#include <QGroupBox>

#include "desktop/check_box_widget.h"
#include "desktop/label_widget.h"
#include "desktop/layout.h"
#include "desktop/meter_widget.h"
#include "desktop/spinner_widget.h"
#include "desktop/style.h"

namespace corvalis::desktop {

namespace {

constexpr int kRepetitionColumns = 3;
constexpr int kPercentWidth = 48;
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
    AddGroup(form, number, *grid, row, 0, block);
    AddGroup(form, number + kGroupNumbers, *grid, row, 3, block);
    auto* share = new LabelWidget(form.PercentText[number], block);
    share->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    share->setFixedWidth(kPercentWidth);
    grid->addWidget(share, row, 6);
    grid->addWidget(new MeterWidget(form.PercentBar[number], block), row, 7);
  }
  grid->setColumnMinimumWidth(2, kNear);
  grid->setColumnMinimumWidth(5, kNear);
  grid->setColumnStretch(7, 1);
  return block;
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
  row->addWidget(new LabelWidget(form.SelectedLabel, this));
  row->addStretch();
  row->addWidget(ButtonRow(
      {&form.Command2, &form.Command13, &form.Command11, &form.Command1, &form.Command12}, this));
  column->addLayout(row);
}

}  // namespace corvalis::desktop
