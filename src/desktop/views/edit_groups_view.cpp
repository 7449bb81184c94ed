#include "desktop/views/edit_groups_view.h"

#include <QGroupBox>

#include "desktop/text.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/progress_bar_widget.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kRepetitionColumns = 3;
// A box and a number for each version, then what they make together, each a little apart.
constexpr int kVersionAColumn = 0;
constexpr int kVersionBColumn = 3;
constexpr int kShareColumn = 6;
constexpr int kBarColumn = 7;
constexpr int kBlock = kGroupNumbers / 2;

void AddGroup(EditGroupsForm& form, int group, QGridLayout& grid, int row, int column,
              QWidget* parent) {
  const QString name = FromBytes(GroupName(group));
  auto* box = new CheckBoxWidget(form.Check1[group], parent);
  CallByWord(*box, Wording("Group %1", name));
  grid.addWidget(box, row, column);
  auto* repetitions =
      new SpinField(form.Text1[group], form.VScroll2[group], kRepetitionColumns, parent);
  repetitions->Name(Wording("Group %1, repetitions", name));
  grid.addWidget(repetitions, row, column + 1);
}

// Room for the longest text that a label takes, so that what is beside it stands still.
void KeepRoom(QWidget& label, const QString& longest) {
  label.setFixedWidth(label.fontMetrics().horizontalAdvance(longest) + kTight);
}

// Eight group numbers, one below the other.
QWidget* Block(EditGroupsForm& form, int first, QWidget* parent) {
  auto* block = new QGroupBox(parent);
  auto* grid = new QGridLayout(block);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kTight);
  for (const int column : {kVersionBColumn, kShareColumn}) {
    grid->setColumnMinimumWidth(column - 1, kTight);
  }
  for (const int column : {kVersionAColumn, kVersionBColumn}) {
    grid->addWidget(QuietText(Wording("Group"), block), 0, column);
    grid->addWidget(QuietText(Wording("Repetitions"), block), 0, column + 1);
  }
  grid->addWidget(QuietText(Wording("Share of the cycle"), block), 0, kShareColumn, 1, 2);
  for (int line = 0; line < kBlock; ++line) {
    const int number = first + line;
    const int row = line + 1;
    AddGroup(form, number, *grid, row, kVersionAColumn, block);
    AddGroup(form, number + kGroupNumbers, *grid, row, kVersionBColumn, block);
    auto* share = new LabelWidget(form.PercentText[number], block);
    share->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    KeepRoom(*share, QStringLiteral("100 %"));
    grid->addWidget(share, row, kShareColumn);
    auto* bar = new ProgressBarWidget(form.PercentBar[number], block);
    CallByWord(*bar, Wording("Share of group %1", QString::number(number)));
    grid->addWidget(bar, row, kBarColumn);
  }
  grid->setColumnStretch(kBarColumn, 1);
  return block;
}

// What the two buttons beside it are about.
QWidget* Selected(EditGroupsForm& form, QWidget* parent) {
  auto* part = new QWidget(parent);
  QHBoxLayout* row = Row(part);
  row->setSpacing(kGap);
  auto* name = new LabelWidget(form.SelectedLabel, part);
  name->setFont(Bold(name->font()));
  FollowLanguage(*name,
                 [name] { KeepRoom(*name, Wording("Group %1", QStringLiteral("00A")).Text()); });
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
