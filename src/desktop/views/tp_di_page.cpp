#include "desktop/views/tp_di_page.h"

#include <QGroupBox>
#include <array>
#include <initializer_list>

#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

constexpr Length kFirstWidth{150};

using Pair = std::array<CheckBox*, 2>;

// Each pair in a line of its own; what one box says is the opposite of the other.
QWidget* Pairs(const Wording& title, std::initializer_list<Pair> pairs, QWidget* parent) {
  auto* group = Group(title, parent);
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(2 * kApart);
  for (const Pair& pair : pairs) {
    const int row = grid->rowCount();
    grid->addWidget(new CheckBoxWidget(*pair[0], group), row, 0);
    grid->addWidget(new CheckBoxWidget(*pair[1], group), row, 1);
  }
  grid->setColumnMinimumWidth(0, kFirstWidth);  // as wide in both groups
  grid->setColumnStretch(1, 1);
  return group;
}

}  // namespace

TpDiPage::TpDiPage(TpDiTab& tab, QWidget* parent) : QWidget(parent) {
  QVBoxLayout* column = NaturalColumn(this);
  column->addWidget(Pairs(Wording("TP"), {{&tab.Check1, &tab.Check10}}, this));
  column->addWidget(Pairs(Wording("DI"),
                          {{&tab.Check2, &tab.Check3},
                           {&tab.Check4, &tab.Check5},
                           {&tab.Check6, &tab.Check7},
                           {&tab.Check8, &tab.Check9}},
                          this));
  column->addWidget(ButtonRow({&tab.Command3, &tab.Command4, &tab.Command5}, this));
}

}  // namespace corvalis::desktop
