#include "desktop/views/tmc_system_page.h"

#include <QGroupBox>

#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kDigits = 2;

}  // namespace

TmcSystemPage::TmcSystemPage(TmcSystemTab& tab, QWidget* parent) : QWidget(parent) {
  QVBoxLayout* column = NaturalColumn(this);

  auto* numbers = Group(Wording("System"), this);
  QGridLayout* fields = Fields(numbers);
  AddField(*fields, Wording("LTN"), new SpinField(tab.LtnText, tab.LtnVScroll, kDigits, numbers));
  AddField(*fields, Wording("SID"), new SpinField(tab.SidText, tab.SidVScroll, kDigits, numbers));
  column->addWidget(numbers);

  auto* scope = Group(Wording("Scope"), this);
  auto* boxes = new QVBoxLayout(scope);
  for (CheckBox* box :
       {&tab.InternationalCheck, &tab.NationalCheck, &tab.RegionalCheck, &tab.UrbanCheck}) {
    boxes->addWidget(new CheckBoxWidget(*box, scope));
  }
  column->addWidget(scope);

  column->addWidget(ButtonRow(
      {&tab.ReadTmcSystemCommand, &tab.SendTmcSystemCommand, &tab.SendTmcSystemBurstCommand},
      this));
}

}  // namespace corvalis::desktop
