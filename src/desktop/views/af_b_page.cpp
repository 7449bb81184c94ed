#include "desktop/views/af_b_page.h"

#include "config/words.h"
#include "desktop/widgets/lists/combo_box_widget.h"
#include "desktop/widgets/look/band_strip_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kInLine = 6;
constexpr int kCharacters = 5;
constexpr int kNumberDigits = 3;

QWidget* Alternatives(AfBTab& tab, QWidget* parent) {
  auto* group = new LabelledGroup(tab.AltFreqLabel, parent);
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(kNear);
  grid->setVerticalSpacing(kNear);
  for (int i = 1; i < AfBTab::kBoxes; ++i) {
    AddNumbered(*grid, i, kInLine, LaterWord("Alternative frequency %1"),
                FixedBox(tab.Text2[i], kCharacters, group));
  }
  grid->addWidget(new BandStripWidget(tab.AfBBandStrip, group), grid->rowCount(), 0, 1,
                  kNumberedColumns * kInLine);
  return group;
}

}  // namespace

AfBPage::AfBPage(AfBTab& tab, QWidget* parent) : QWidget(parent) {
  auto* list = new QWidget(this);
  QVBoxLayout* column = Column(list);
  column->setSpacing(kApart);
  auto* head = new QGroupBox(list);
  QGridLayout* fields = Fields(head);
  AddField(*fields, tab.ListNrLabel, new SpinField(tab.Text1, tab.VScroll1, kNumberDigits, head));
  AddField(*fields, tab.DescriptionLabel, new ComboBoxWidget(tab.Combo2, head));
  AddField(*fields, tab.MainFreqLabel, FixedBox(tab.Text2[0], kCharacters, head));
  column->addWidget(head);
  column->addWidget(Alternatives(tab, list));
  column->addStretch();
  ListPage(this, list, {&tab.Command4, &tab.Command5, &tab.Command2, &tab.Command1, &tab.Command3});
}

}  // namespace corvalis::desktop
