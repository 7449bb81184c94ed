#include "desktop/views/ta_eon_page.h"

#include <QGroupBox>

#include "desktop/text.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {

constexpr int kLines = 5;

/// The state of a switch in words: on a ground of the on-air colour while it is on.
class StateChip : public QLabel {
 public:
  StateChip(Label& state, const CheckBox& box, QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignCenter);
    setAutoFillBackground(true);
    setMargin(kTight);
    setMinimumWidth(Length(84));
    setFont(Bold(font()));
    const auto draw = [this, &state, &box] {
      setText(FromBytes(state.Caption()));
      QPalette colours = palette();
      colours.setColor(QPalette::Window,
                       QColor(box.Checked() ? colours::kOnAir : colours::kDisplay));
      colours.setColor(QPalette::WindowText,
                       QColor(box.Checked() ? colours::kField : colours::kQuietText));
      setPalette(colours);
    };
    Bind(*this, state, draw);
    FollowScheme(*this, draw);
  }
};

}  // namespace

TaEonPage::TaEonPage(TaEonTab& tab, QWidget* parent) : QWidget(parent) {
  auto* panel = new QGroupBox(this);
  auto* grid = new QGridLayout(panel);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kNear);
  constexpr int kColumns = 5;
  for (int i = 0; i < kTaEonSwitches; ++i) {
    const int row = i % kLines;
    const int column = i / kLines * kColumns;
    auto* box = new CheckBoxWidget(tab.TaEonCheck[i], panel);
    auto* number = new LabelWidget(tab.Text2[i], panel);
    number->setBuddy(box);
    auto* name = new LabelWidget(tab.TaEonNameLabel[i], panel);
    SetInk(*name, colours::kQuietText);
    QFont places = DigitsFont();  // so that the PIs stand below each other
    places.setPointSizeF(name->font().pointSizeF());
    name->setFont(places);
    name->Name(box);
    grid->addWidget(box, row, column);
    grid->addWidget(number, row, column + 1);
    grid->addWidget(name, row, column + 2);
    grid->addWidget(new StateChip(tab.TaEonStateLabel[i], tab.TaEonCheck[i], panel), row,
                    column + 3);
    grid->setColumnStretch(column + 2, 1);
  }
  grid->setColumnMinimumWidth(kColumns - 1, kApart);
  QVBoxLayout* column = Column(this);
  column->setContentsMargins(0, kApart, 0, 0);
  column->setSpacing(kGap);
  column->addWidget(panel);
  column->addWidget(SelectedRow(tab.TaEonSelectedLabel, panel, this));
  column->addWidget(
      ButtonRow({&tab.ReadTaEonCommand, &tab.ReadTaEonAllCommand, &tab.SendTaEonCommand,
                 &tab.SendTaEonAllCommand, &tab.SendTaEonAllBurstCommand},
                this));
  column->addStretch();
}

}  // namespace corvalis::desktop
