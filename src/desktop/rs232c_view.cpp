#include "desktop/rs232c_view.h"

#include <QGroupBox>

#include "desktop/brand_header.h"
#include "desktop/check_box_widget.h"
#include "desktop/drop_down_widget.h"
#include "desktop/layout.h"
#include "desktop/memo_widget.h"
#include "desktop/style.h"
#include "desktop/text_box_widget.h"

namespace corvalis::desktop {

namespace {

struct Field {
  Label& label;
  ListBox& list;
};

QGroupBox* Lists(std::initializer_list<Field> fields, QWidget* parent) {
  auto* group = new QGroupBox(parent);
  QGridLayout* grid = Fields(group);
  for (const Field& field : fields) {
    AddField(*grid, field.label, new DropDownWidget(field.list, group));
  }
  return group;
}

QWidget* Modem(RS232CForm& form, QWidget* parent) {
  auto* group = new QGroupBox(QStringLiteral("Modem"), parent);
  auto* column = new QVBoxLayout(group);
  auto* number = new QHBoxLayout;
  number->addWidget(new TextBoxWidget(form.Text2, 0, group), 1);
  number->addWidget(new CheckBoxWidget(form.Check1, group));
  number->addWidget(new CheckBoxWidget(form.Check2, group));
  column->addLayout(number);
  column->addWidget(new MemoWidget(form.Text1, group), 1);
  column->addWidget(ButtonRow({&form.Command2, &form.Command1}, group));
  return group;
}

}  // namespace

RS232CView::RS232CView(RS232CForm& form) : WindowView(form.window) {
  QGroupBox* way =
      Lists({{form.RdsOptionLabel, form.RdsOptionCombo}, {form.BurstLabel, form.Combo1}}, this);
  QGroupBox* port = Lists({{form.SerialLabel, form.SerialCombo},
                           {form.BaudrateLabel, form.BaudrateCombo},
                           {form.ParityLabel, form.ParityCombo},
                           {form.StopBitLabel, form.StopBitCombo}},
                          this);
  AddLine(*static_cast<QGridLayout*>(port->layout()), ButtonRow({&form.Command31}, port));
  QGroupBox* language = Lists({{form.LanguageLabel, form.LanguageCombo}}, this);

  auto* left = new QVBoxLayout;
  left->setSpacing(kApart);
  left->addWidget(way);
  left->addWidget(port);
  left->addWidget(language);
  left->addStretch();
  auto* halves = new QHBoxLayout;
  halves->setSpacing(kApart);
  halves->addLayout(left, 1);
  halves->addWidget(Modem(form, this), 1);

  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new BrandHeader(form.marks, nullptr, this));
  column->addLayout(halves, 1);
}

}  // namespace corvalis::desktop
