#include "desktop/views/rs232c_view.h"

#include <QGroupBox>

#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/look/brand_header.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/button_widget.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/memo_widget.h"
#include "desktop/widgets/texts/text_box_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kNumberColumns = 20;
constexpr Length kListsWidth{260};

struct Field {
  Label& label;
  ListBox& list;
};

// The first list has the group's title for its label.
LabelledGroup* Lists(const Field& first, std::initializer_list<Field> others, QWidget* parent) {
  auto* group = new LabelledGroup(first.label, parent);
  QGridLayout* grid = Fields(group);
  grid->setColumnStretch(0, 1);  // halves, so that the lists of all groups begin at one place
  auto* list = new DropDownWidget(first.list, group);
  group->Name(list);
  AddLine(*grid, list);
  for (const Field& field : others) {
    AddField(*grid, field.label, new DropDownWidget(field.list, group));
  }
  return group;
}

// From top to bottom as a call goes: the number, Hook, what the modem says, Hang up. The dialogue
// stands between the two buttons also for the keyboard, which moves on to it once Hook is done.
QWidget* Modem(RS232CForm& form, QWidget* parent) {
  auto* group = Group(Wording("Modem"), parent);
  auto* grid = new QGridLayout(group);
  grid->setSpacing(kNear);
  grid->setColumnStretch(0, 1);

  auto* number = new TextBoxWidget(form.Text2, kNumberColumns, group);
  number->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
  auto* tones = new QWidget(group);
  QHBoxLayout* tone = Row(tones);
  tone->addWidget(new CheckBoxWidget(form.Check1, tones));
  tone->addWidget(new CheckBoxWidget(form.Check2, tones));
  tone->addStretch();
  auto* dialogue = new MemoWidget(form.Text1, group);

  grid->addWidget(Heading(Wording("Telephone number"), number), 0, 0);
  grid->addWidget(number, 1, 0);
  grid->addWidget(tones, 2, 0, 1, 2);
  grid->addWidget(new ButtonWidget(form.Command2, group), 1, 1);
  grid->addWidget(Heading(Wording("Dialogue with the modem"), dialogue), 3, 0, 1, 2);
  grid->addWidget(dialogue, 4, 0, 1, 2);
  grid->addWidget(new ButtonWidget(form.Command1, group), 5, 1);
  return group;
}

}  // namespace

RS232CView::RS232CView(RS232CForm& form) : WindowView(form.window) {
  QGroupBox* way =
      Lists({form.RdsOptionLabel, form.RdsOptionCombo}, {{form.BurstLabel, form.Combo1}}, this);
  QGroupBox* port = Lists({form.SerialLabel, form.SerialCombo},
                          {{form.BaudrateLabel, form.BaudrateCombo},
                           {form.ParityLabel, form.ParityCombo},
                           {form.StopBitLabel, form.StopBitCombo}},
                          this);
  AddLine(*static_cast<QGridLayout*>(port->layout()), new ButtonWidget(form.Command31, port));
  QGroupBox* language = Lists({form.LanguageLabel, form.LanguageCombo}, {}, this);

  auto* left = new QVBoxLayout;
  left->setSpacing(kApart);
  left->addStrut(kListsWidth);
  left->addWidget(way);
  left->addWidget(port);
  left->addWidget(language);
  left->addStretch();
  auto* halves = new QHBoxLayout;
  halves->setSpacing(kApart);
  halves->addLayout(left);
  halves->addWidget(Modem(form, this), 1);

  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new BrandHeader(form.marks, nullptr, this));
  column->addLayout(halves, 1);
  column->addWidget(QuietText(Wording("Settings take effect when this window is closed."), this));
}

}  // namespace corvalis::desktop
