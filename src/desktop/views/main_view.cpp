#include "desktop/views/main_view.h"

#include <QPushButton>

#include "desktop/views/file_panel.h"
#include "desktop/widgets/look/brand_header.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/button_widget.h"
#include "desktop/widgets/texts/state_line.h"

namespace corvalis::desktop {

namespace {

QWidget* Screens(MainForm& form, QWidget* parent) {
  // What an operator touches on the air first, then what prepares a station, then the link.
  QWidget* buttons = ButtonColumn(
      {&form.TaPtyMsButton, &form.PsnRtPinAfButton, &form.CtTpDiPiButton, &form.EonLiButton,
       &form.TdcIhButton, &form.EditGroupsButton, &form.ConnectionButton, &form.RS232CButton},
      parent);
  for (auto* button : buttons->findChildren<QPushButton*>()) {
    button->setMinimumHeight(kLargeHeight);
  }
  static_cast<QVBoxLayout*>(buttons->layout())->addStretch();
  return buttons;
}

}  // namespace

MainView::MainView(MainForm& form) : WindowView(form.window) {
  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new BrandHeader(form.marks, &form.Text_KOR, this));
  auto* halves = new QHBoxLayout;
  halves->setSpacing(2 * kApart);
  halves->addWidget(Screens(form, this));
  halves->addWidget(FilePanel({.drives = form.Drive1,
                               .folders = form.Dir1,
                               .files = form.File1,
                               .name = form.Text105,
                               .path = form.PathLabel},
                              {&form.NewButton, &form.OpenButton, &form.SaveButton}, this),
                    1);
  column->addLayout(halves, 1);
  column->addWidget(new StateLine(form.LinkLabel, TextBox::Content::kWindows1252, this));
  resize(sizeHint().expandedTo({860, 520}));
}

}  // namespace corvalis::desktop
