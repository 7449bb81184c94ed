#include "desktop/views/psn_page.h"

#include <QGroupBox>

#include "desktop/widgets/grid/grid_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/radio_line.h"

namespace corvalis::desktop {

namespace {

constexpr int kRowDigits = 3;
constexpr int kScrollColumns = 24;  // a longer text moves in its box

QWidget* Pages(PsnTab& tab, QWidget* parent) {
  auto* part = new QWidget(parent);
  QVBoxLayout* column = Column(part);
  auto* page = new QWidget(part);
  QGridLayout* fields = Fields(page);
  fields->setContentsMargins(0, 0, 0, 0);
  AddField(*fields, tab.Text10,
           new SpinField(tab.PageNumberText, tab.PageNumberScroll, kRowDigits, page));
  column->addWidget(page);
  column->addWidget(ButtonColumn(
      {&tab.ReadPsnActiveButton, &tab.SendPsnActiveButton, &tab.SendPsnActiveBurstButton}, part));
  return part;
}

QWidget* ScrollText(PsnTab& tab, QWidget* parent) {
  auto* group = Group(Wording("Scrolling text"), parent);
  QGridLayout* fields = Fields(group);
  AddField(*fields, tab.ScrollTextLabel, FixedBox(tab.Text11, kScrollColumns, group));
  AddField(*fields, tab.ScrollFromLabel, FixedBox(tab.Text12, kRowDigits, group));
  AddField(*fields, tab.ScrollToLabel, FixedBox(tab.Text13, kRowDigits, group));
  AddField(*fields, tab.ScrollTimeLabel, FixedBox(tab.Text14, kRowDigits, group));
  AddLine(*fields, ButtonRow({&tab.Command24}, group));
  return group;
}

}  // namespace

PsnPage::PsnPage(PsnTab& tab, QWidget* parent) : QWidget(parent) {
  auto* list = new QWidget(this);
  QHBoxLayout* halves = Row(list);
  halves->setSpacing(kApart);
  auto* grid = new GridWidget(tab.DBGrid1, list, Wording("PSN"));
  halves->addWidget(grid, 1);
  auto* side = new QWidget(list);
  QVBoxLayout* column = Column(side);
  column->setSpacing(kApart);
  column->addWidget(Pages(tab, side));
  column->addWidget(ScrollText(tab, side));
  column->addStretch();
  halves->addWidget(side);
  ListPage(this, list,
           {&tab.Command19, &tab.Command20, &tab.Command17, &tab.Command16, &tab.Command18}, {},
           {SelectedRow(tab.PsnSelectedLabel, grid, this), new RadioLine(tab.PsnRadioLabel, this)});
}

}  // namespace corvalis::desktop
