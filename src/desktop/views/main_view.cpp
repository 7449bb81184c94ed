#include "desktop/views/main_view.h"

#include <QLabel>
#include <QResizeEvent>

#include "desktop/text.h"
#include "desktop/widgets/binding.h"
#include "desktop/widgets/brand_header.h"
#include "desktop/widgets/button_widget.h"
#include "desktop/widgets/drop_down_widget.h"
#include "desktop/widgets/label_widget.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/open_list_widget.h"
#include "desktop/widgets/style.h"
#include "desktop/widgets/text_box_widget.h"

namespace corvalis::desktop {

namespace {

/// A quiet line that says how things stand: as much of it as there is room for, the whole in its
/// tip.
class StateLine : public QLabel {
 public:
  StateLine(Label& label, TextBox::Content content, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, QColor(colours::kQuietText));
    setPalette(quiet);
    Bind(*this, label, [this, &label, content] {
      whole_ = FromContent(label.Caption(), content);
      setAccessibleName(whole_);
      Elide();
    });
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    Elide();
  }

 private:
  void Elide() {
    setText(fontMetrics().elidedText(whole_, Qt::ElideMiddle, width()));
    setToolTip(text() == whole_ ? QString() : whole_);
  }

  QString whole_;
};

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

QWidget* FilePanel(MainForm& form, QWidget* parent) {
  auto* panel = new QWidget(parent);
  QVBoxLayout* column = Column(panel);
  auto* drives = new DropDownWidget(form.Drive1, panel, TextBox::Content::kFileName);
  column->addWidget(Heading(QStringLiteral("Drive"), drives));
  column->addWidget(drives);
  auto* folders = new DirListWidget(form.Dir1, panel);
  auto* files = new FileListWidget(form.File1, panel);
  auto* lists = new QGridLayout;
  lists->setSpacing(kNear);
  lists->addWidget(Heading(QStringLiteral("Folders"), folders), 0, 0);
  lists->addWidget(Heading(QStringLiteral("Files"), files), 0, 1);
  lists->addWidget(folders, 1, 0);
  lists->addWidget(files, 1, 1);
  lists->setRowStretch(1, 1);
  for (const int half : {0, 1}) lists->setColumnStretch(half, 1);
  column->addLayout(lists, 1);
  auto* name = new TextBoxWidget(form.Text105, 0, panel);
  column->addWidget(Heading(QStringLiteral("File name"), name));
  column->addWidget(name);
  column->addWidget(new StateLine(form.PathLabel, TextBox::Content::kFileName, panel));
  column->addWidget(ButtonRow({&form.NewButton, &form.OpenButton, &form.SaveButton}, panel));
  return panel;
}

}  // namespace

MainView::MainView(MainForm& form) : WindowView(form.window) {
  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new BrandHeader(form.marks, &form.Text_KOR, this));
  auto* halves = new QHBoxLayout;
  halves->setSpacing(2 * kApart);
  halves->addWidget(Screens(form, this));
  halves->addWidget(FilePanel(form, this), 1);
  column->addLayout(halves, 1);
  column->addWidget(new StateLine(form.LinkLabel, TextBox::Content::kWindows1252, this));
  resize(sizeHint().expandedTo({860, 520}));
}

}  // namespace corvalis::desktop
