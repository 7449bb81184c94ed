#include "desktop/views/ta_pty_ms_view.h"

#include <initializer_list>

#include "desktop/widgets/lists/combo_box_widget.h"
#include "desktop/widgets/look/indicator_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/button_widget.h"
#include "desktop/widgets/texts/label_widget.h"

namespace corvalis::desktop {

namespace {

ButtonWidget* LargeButton(Button& button, QWidget* parent) {
  auto* widget = new ButtonWidget(button, parent);
  widget->setMinimumHeight(kLargeHeight);
  widget->setFont(Bold(widget->font()));
  return widget;
}

// A switch: what is on the air, and under it the button that changes it.
QWidget* Switch(Label& title, std::initializer_list<CheckBox*> states, Button& toggle,
                QWidget* parent) {
  auto* group = new LabelledGroup(title, parent);
  auto* column = new QVBoxLayout(group);
  // All in one place: only one of them shows, and the window keeps its size when they change over.
  auto* place = new QGridLayout;
  for (CheckBox* state : states) place->addWidget(new IndicatorWidget(*state, title, group), 0, 0);
  column->addLayout(place, 1);
  column->addWidget(LargeButton(toggle, group));
  return group;
}

}  // namespace

TaPtyMsView::TaPtyMsView(TaPtyMsForm& form) : WindowView(form.window) {
  auto* switches = new QHBoxLayout;
  switches->setSpacing(kApart);
  switches->addWidget(Switch(form.TaLabel, {&form.Check3, &form.Check4}, form.Command2, this), 1);
  switches->addWidget(Switch(form.MsLabel, {&form.Check1, &form.Check2}, form.Command6, this), 1);

  auto* type = new LabelledGroup(form.PtyLabel, this);
  auto* row = new QHBoxLayout(type);
  auto* list = new ComboBoxWidget(form.Combo1, type);
  list->setMinimumHeight(kLargeHeight);
  type->Name(list);
  row->addWidget(list, 1);
  row->addWidget(LargeButton(form.Command1, type));

  QVBoxLayout* column = WindowColumn(this);
  column->addLayout(switches, 1);
  column->addWidget(type);
  column->addWidget(ButtonRow({&form.Command8}, this));
}

}  // namespace corvalis::desktop
