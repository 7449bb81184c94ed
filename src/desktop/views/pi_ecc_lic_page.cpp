#include "desktop/views/pi_ecc_lic_page.h"

#include <QGroupBox>

#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/lists/open_list_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kPiColumns = 4;
constexpr int kEccColumns = 3;
constexpr int kIdNumberColumns = 3;

}  // namespace

PiEccLicPage::PiEccLicPage(PiEccLicTab& tab, QWidget* parent) : QWidget(parent) {
  auto* identity = new LabelledGroup(tab.PiLabel, this);
  QGridLayout* pi = Fields(identity);
  AddField(*pi, tab.CountryLabel, new DropDownWidget(tab.CountryCombo, identity));
  AddField(*pi, tab.CoverageLabel, new DropDownWidget(tab.CoverageCombo, identity));
  AddField(*pi, tab.IDNumberLabel,
           new SpinField(tab.IDNumberText, tab.VScroll3, kIdNumberColumns, identity));
  // Under the three parts that make it up.
  auto* code = new QWidget(identity);
  code->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  QLineEdit* digits = CodeBox(tab.PiText, kPiColumns, code);
  code->setFocusProxy(digits);
  QHBoxLayout* line = Row(code);
  line->addWidget(digits);
  QLabel* parts = QuietText(Wording("country, coverage, ID number (2 digits)"), code);
  parts->setWordWrap(true);
  line->addWidget(parts);
  AddField(*pi, Wording("PI code"), code);
  pi->addWidget(
      ButtonRow({&tab.ReadPiCommand, &tab.SendPiCommand, &tab.SendPiBurstCommand}, identity),
      pi->rowCount(), 1);

  auto* extended = new LabelledGroup(tab.EccLabel, this);
  QGridLayout* ecc = Fields(extended);
  QLineEdit* country_code = CodeBox(tab.EccText, kEccColumns, extended);
  AddField(*ecc, Wording("Country code"), country_code);
  extended->Name(country_code);
  AddLine(*ecc, ButtonRow({&tab.ReadEccCommand, &tab.SendEccCommand, &tab.SendEccBurstCommand},
                          extended));

  auto* language = new LabelledGroup(tab.LicLabel, this);
  QGridLayout* lic = Fields(language);
  AddField(*lic, Wording("Language"), new DropDownWidget(tab.LicCombo, language));
  AddLine(*lic, ButtonRow({&tab.ReadLicCommand, &tab.SendLicCommand, &tab.SendLicBurstCommand},
                          language));

  auto* countries = new LabelledGroup(tab.CountryListLabel, this);
  auto* list = new OpenListWidget(tab.CountryList, countries);
  list->ShowOnly();
  countries->Name(list);
  QVBoxLayout* inside = new QVBoxLayout(countries);
  inside->addWidget(list);

  auto* codes = new QGridLayout;
  codes->setSpacing(kApart);
  codes->addWidget(identity, 0, 0, 1, 2);
  codes->addWidget(extended, 1, 0);
  codes->addWidget(language, 1, 1);
  codes->setColumnStretch(1, 1);
  codes->setRowStretch(0, 1);
  QHBoxLayout* halves = Row(this);
  halves->setContentsMargins(0, kApart, 0, 0);
  halves->setSpacing(kApart);
  halves->addLayout(codes, 1);
  halves->addWidget(countries, 1);
}

}  // namespace corvalis::desktop
