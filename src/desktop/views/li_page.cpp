#include "desktop/views/li_page.h"

#include <QGroupBox>

#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/check_box_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kLsnDigits = 3;

}  // namespace

LiPage::LiPage(LiTab& tab, QWidget* parent) : QWidget(parent) {
  auto* linkage = new QGroupBox(this);
  QGridLayout* fields = Fields(linkage);
  for (CheckBox* box : {&tab.LiLaCheck, &tab.LiEgiCheck, &tab.LiILCheck}) {
    fields->addWidget(new CheckBoxWidget(*box, linkage), fields->rowCount(), 0, 1, 2);
  }
  AddField(*fields, tab.LiLsnLabel, CodeBox(tab.LiLsnText, kLsnDigits, linkage));
  QVBoxLayout* column = NaturalColumn(this);
  column->addWidget(linkage);
  column->addWidget(
      ButtonRow({&tab.ReadLiCommand, &tab.SendLiCommand, &tab.SendLiBurstCommand}, this));
}

}  // namespace corvalis::desktop
