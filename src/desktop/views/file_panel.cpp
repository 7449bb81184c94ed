#include "desktop/views/file_panel.h"

#include "desktop/widgets/lists/drop_down_widget.h"
#include "desktop/widgets/lists/open_list_widget.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/state_line.h"
#include "desktop/widgets/texts/text_box_widget.h"

namespace corvalis::desktop {

QWidget* FilePanel(const FileControls& controls, std::initializer_list<Button*> buttons,
                   QWidget* parent) {
  auto* panel = new QWidget(parent);
  QVBoxLayout* column = Column(panel);
  auto* drives = new DropDownWidget(controls.drives, panel, TextBox::Content::kFileName);
  column->addWidget(Heading(Wording("Drive"), drives));
  column->addWidget(drives);
  auto* folders = new DirListWidget(controls.folders, panel);
  auto* files = new FileListWidget(controls.files, panel);
  auto* lists = new QGridLayout;
  lists->setSpacing(kNear);
  lists->addWidget(Heading(Wording("Folders"), folders), 0, 0);
  lists->addWidget(Heading(Wording("Files"), files), 0, 1);
  lists->addWidget(folders, 1, 0);
  lists->addWidget(files, 1, 1);
  lists->setRowStretch(1, 1);
  for (const int half : {0, 1}) lists->setColumnStretch(half, 1);
  column->addLayout(lists, 1);
  auto* name = new TextBoxWidget(controls.name, 0, panel);
  column->addWidget(Heading(Wording("File name"), name));
  column->addWidget(name);
  column->addWidget(new StateLine(controls.path, TextBox::Content::kFileName, panel));
  column->addWidget(ButtonRow(buttons, panel));
  return panel;
}

}  // namespace corvalis::desktop
