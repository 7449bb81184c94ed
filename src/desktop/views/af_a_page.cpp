#include "desktop/views/af_a_page.h"

#include "config/words.h"
#include "desktop/widgets/look/band_strip_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kInLine = 5;
constexpr int kCharacters = 7;

}  // namespace

AfAPage::AfAPage(AfATab& tab, QWidget* parent) : QWidget(parent) {
  auto* group = new LabelledGroup(tab.AlternativeFreqLabel, this);
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(kNear);
  grid->setVerticalSpacing(kNear);
  for (int i = 0; i < air::kAfEntries; ++i) {
    AddNumbered(*grid, i + 1, kInLine, LaterWord("Frequency %1"),
                FixedBox(tab.Text39[i], kCharacters, group));
  }
  QLabel* note = QuietText(
      Wording(
          "FM in MHz, LF and MF in kHz, 0 for none. A frequency between the 100 kHz steps, on LF "
          "or on MF takes two places: it closes a box at the end."),
      group);
  note->setWordWrap(true);
  grid->addWidget(note, grid->rowCount(), 0, 1, kNumberedColumns * kInLine);
  grid->addWidget(new BandStripWidget(tab.AfABandStrip, group), grid->rowCount(), 0, 1,
                  kNumberedColumns * kInLine);
  grid->setRowStretch(grid->rowCount(), 1);
  ListPage(this, group, {&tab.Command13, &tab.Command11, &tab.Command12});
}

}  // namespace corvalis::desktop
