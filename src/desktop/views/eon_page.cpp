#include "desktop/views/eon_page.h"

#include <QGroupBox>

#include "config/words.h"
#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/radio_line.h"
#include "link/list_commands.h"

namespace corvalis::desktop {

namespace {

constexpr int kListDigits = 3;
constexpr int kHexDigits = 4;
constexpr int kFrequency = 5;

QWidget* Network(EonTab& tab, QWidget* parent) {
  auto* group = new QGroupBox(parent);
  QGridLayout* fields = Fields(group);
  AddField(*fields, tab.EonListLabel,
           new SpinField(tab.EonListText, tab.EonListScroll, kListDigits, group));
  QLineEdit* name = CodeBox(tab.EonPsnText, kPsnCharacters, group);
  name->setAlignment(Qt::AlignLeft);  // its places count
  AddField(*fields, tab.EonPsnLabel, name);
  AddLine(*fields, new RadioLine(tab.EonPsnRadioLabel, group));
  AddField(*fields, tab.EonPiLabel, CodeBox(tab.EonPiText, kHexDigits, group));
  AddField(*fields, tab.EonPinLabel, CodeBox(tab.EonPinText, kHexDigits, group));
  AddField(*fields, tab.EonPtyLabel, new DropDownWidget(tab.EonPtyCombo, group));
  for (CheckBox* box : {&tab.EonEnableCheck, &tab.EonTpCheck, &tab.EonTaCheck}) {
    AddLine(*fields, new CheckBoxWidget(*box, group));
  }
  fields->setRowStretch(fields->rowCount(), 1);
  return group;
}

QWidget* MethodA(EonTab& tab, QWidget* parent) {
  auto* group = new LabelledGroup(tab.EonAfALabel, parent);
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(kNear);
  for (int i = 0; i < kEonAfA; ++i) {
    AddNumbered(*grid, i + 1, kEonAfA, LaterWord("AF method A %1"),
                FixedBox(tab.EonAfAText[i], kFrequency, group));
  }
  return group;
}

// Each main frequency and the alternative that belongs to it in one line, and those on LF or MF
// with the last.
QWidget* MethodB(EonTab& tab, QWidget* parent) {
  auto* group = new LabelledGroup(tab.EonAfBLabel, parent);
  auto* grid = new QGridLayout(group);
  grid->setHorizontalSpacing(kNear);
  grid->setVerticalSpacing(kNear);
  grid->addWidget(QuietText(Wording("Main"), group), 0, 1);
  grid->addWidget(QuietText(Wording("Alternative"), group), 0, 3);
  for (int i = 0; i < kEonAfB; ++i) {
    const int row = 1 + i / 2;
    QWidget* box = FixedBox(tab.EonAfBText[i], kFrequency, group);
    if (i == kEonAm) {
      auto* label = new LabelWidget(tab.EonAfBAmLabel, group);
      label->setBuddy(box);
      label->Name(box);
      grid->addWidget(label, row, 2, Qt::AlignRight | Qt::AlignVCenter);
    } else {
      const char* what =
          i % 2 == 0 ? LaterWord("Main frequency %1") : LaterWord("Alternative frequency %1");
      CallByWord(*box, Wording(what, QString::number(row)));
      if (i % 2 == 0) grid->addWidget(QuietText(QString::number(row), group), row, 0);
    }
    grid->addWidget(box, row, i % 2 == 0 ? 1 : 3);
  }
  grid->setColumnStretch(4, 1);
  return group;
}

}  // namespace

EonPage::EonPage(EonTab& tab, QWidget* parent) : QWidget(parent) {
  auto* list = new QWidget(this);
  auto* grid = new QGridLayout(list);
  grid->setContentsMargins(0, kApart, 0, 0);
  grid->setSpacing(kApart);
  grid->addWidget(Network(tab, list), 0, 0, 2, 1);
  grid->addWidget(MethodA(tab, list), 0, 1);
  grid->addWidget(MethodB(tab, list), 1, 1);
  grid->setColumnStretch(0, 1);
  grid->setRowStretch(2, 1);
  ListPage(this, list,
           {&tab.ReadEonCommand, &tab.ReadEonAllCommand, &tab.SendEonCommand,
            &tab.SendEonAllCommand, &tab.SendEonBurstCommand});
}

}  // namespace corvalis::desktop
