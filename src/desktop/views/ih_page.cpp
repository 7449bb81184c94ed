#include "desktop/views/ih_page.h"

#include <QGroupBox>

#include "desktop/views/file_panel.h"
#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/memo_widget.h"
#include "desktop/widgets/texts/state_line.h"

namespace corvalis::desktop {

namespace {

constexpr int kBoxesInLine = 8;

QWidget* Text(IhTab& tab, QWidget* parent) {
  auto* part = new QWidget(parent);
  QVBoxLayout* column = Column(part);
  auto* page = new DropDownWidget(tab.Combo1, part);
  column->addWidget(Heading(Wording("Page"), page));
  column->addWidget(page);
  auto* text = new MemoWidget(tab.RichTextBox1, part);
  column->addWidget(Heading(Wording("Text"), text));
  column->addWidget(text, 1);
  column->addWidget(new StateLine(tab.CountLabel, TextBox::Content::kWindows1252, part));
  column->addWidget(ButtonRow({&tab.Command8}, part));
  return part;
}

QWidget* Selection(IhTab& tab, QWidget* parent) {
  auto* group = Group(Wording("Selected pages"), parent);
  auto* grid = new QGridLayout(group);
  grid->setSpacing(kNear);
  for (int i = 0; i < IhTab::kBoxes; ++i) {
    grid->addWidget(new CheckBoxWidget(tab.Check1[i], group), i / kBoxesInLine, i % kBoxesInLine);
  }
  return group;
}

}  // namespace

IhPage::IhPage(IhTab& tab, QWidget* parent) : QWidget(parent) {
  QVBoxLayout* column = Column(this);
  column->setSpacing(kGap);
  auto* halves = new QHBoxLayout;
  halves->setSpacing(kApart);
  halves->addWidget(Text(tab, this), 1);
  halves->addWidget(FilePanel({.drives = tab.Drive1,
                               .folders = tab.Dir1,
                               .files = tab.File1,
                               .name = tab.Text105,
                               .path = tab.PathLabel},
                              {&tab.Command15, &tab.Command16}, this),
                    1);
  column->addLayout(halves, 1);
  column->addWidget(Selection(tab, this));
  column->addWidget(ButtonRow(
      {&tab.Command13, &tab.Command7, &tab.Command11, &tab.Command1, &tab.Command12}, this));
}

}  // namespace corvalis::desktop
