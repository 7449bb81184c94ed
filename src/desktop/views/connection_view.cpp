#include "desktop/views/connection_view.h"

#include <QGroupBox>
#include <initializer_list>

#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/button_widget.h"
#include "desktop/widgets/presses/check_box_widget.h"
#include "desktop/widgets/presses/option_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/state_line.h"
#include "link/list_commands.h"

namespace corvalis::desktop {

namespace {

QWidget* IdLine(TextBox& id, Button& send, QWidget* parent) {
  auto* line = new QWidget(parent);
  QHBoxLayout* row = Row(line);
  QLineEdit* box = CodeBox(id, kCoderIdCharacters, line);
  box->setAlignment(Qt::AlignLeft);  // its places count
  line->setFocusProxy(box);
  row->addWidget(box);
  row->addWidget(new ButtonWidget(send, line));
  row->addStretch();
  return line;
}

QWidget* CoderId(ConnectionForm& form, QWidget* parent) {
  auto* group = Group(Wording("Coder"), parent);
  QGridLayout* fields = Fields(group);
  AddField(*fields, form.AddressLabel, IdLine(form.Text1, form.Command4, group));
  AddField(*fields, form.NewAddressLabel, IdLine(form.Text2, form.Command5, group));
  AddLine(*fields, new StateLine(form.AddressStateLabel, TextBox::Content::kWindows1252, group));
  return group;
}

QGroupBox* Ticks(const Wording& title, std::initializer_list<CheckBox*> boxes, QWidget* parent) {
  auto* group = Group(title, parent);
  auto* column = new QVBoxLayout(group);
  column->setSpacing(kTight);
  for (CheckBox* box : boxes) column->addWidget(new CheckBoxWidget(*box, group));
  column->addStretch();
  return group;
}

// As an engineer thinks of them: what is read, where it is heard, who sends it, who else, and what
// travels along.
QWidget* Selection(ConnectionForm& form, QWidget* parent) {
  auto* part = new QWidget(parent);
  auto* columns = new QGridLayout(part);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kApart);
  columns->addWidget(
      Ticks(Wording("Texts"), {&form.PsnCheck, &form.PSNPagesCheck, &form.Check3, &form.PtynCheck},
            part),
      0, 0);
  QGroupBox* frequencies = Ticks(Wording("Frequencies"), {&form.Check2}, part);
  auto* methods = static_cast<QVBoxLayout*>(frequencies->layout());
  for (OptionButton* method : {&form.AFAOption, &form.AFBOption}) {
    methods->insertWidget(methods->count() - 1, new OptionWidget(*method, frequencies));
  }
  columns->addWidget(frequencies, 1, 0);
  columns->addWidget(Ticks(Wording("Identity"),
                           {&form.Check1, &form.EccCheck, &form.LicCheck, &form.Check11,
                            &form.Check8, &form.Check5, &form.Check4},
                           part),
                     0, 1, 2, 1);
  columns->addWidget(Ticks(Wording("Networks"), {&form.EonCheck, &form.LiCheck}, part), 0, 2);
  columns->addWidget(Ticks(Wording("Data"), {&form.Check6, &form.Check7, &form.TmcCheck}, part), 1,
                     2);
  for (const int column : {0, 1, 2}) columns->setColumnStretch(column, 1);
  return part;
}

}  // namespace

ConnectionView::ConnectionView(ConnectionForm& form) : WindowView(form.window) {
  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(CoderId(form, this));
  column->addWidget(Selection(form, this), 1);
  auto* foot = new QHBoxLayout;
  foot->setSpacing(kApart);
  foot->addWidget(ButtonRow({&form.Command1, &form.Command11, &form.Command12}, this));
  auto* load = new QVBoxLayout;
  load->setSpacing(0);
  for (Label* line : {&form.ReadLoadLabel, &form.SendLoadLabel, &form.BurstLoadLabel}) {
    load->addWidget(new LabelWidget(*line, this));
  }
  foot->addLayout(load, 1);
  column->addLayout(foot);
}

}  // namespace corvalis::desktop
