#include "desktop/views/ptyn_page.h"

#include <QGroupBox>

#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/radio_line.h"
#include "link/list_commands.h"

namespace corvalis::desktop {

PtynPage::PtynPage(PtynTab& tab, QWidget* parent) : QWidget(parent) {
  auto* name = new QGroupBox(this);
  QGridLayout* fields = Fields(name);
  AddField(*fields, tab.PtyLabel, new DropDownWidget(tab.PtyCombo, name));
  QLineEdit* text = CodeBox(tab.PtynText, kPtynCharacters, name);
  text->setAlignment(Qt::AlignLeft);  // its places count
  AddField(*fields, tab.PtynLabel, text);
  AddLine(*fields, new RadioLine(tab.PtynRadioLabel, name));
  AddLine(*fields, ButtonRow({&tab.ReadPtynCommand, &tab.ReadPtynAllCommand, &tab.SendPtynCommand,
                              &tab.SendPtynAllCommand, &tab.SendPtynBurstCommand},
                             name));
  NaturalColumn(this)->addWidget(name);
}

}  // namespace corvalis::desktop
