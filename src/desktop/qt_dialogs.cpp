#include "desktop/qt_dialogs.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>

#include "desktop/text.h"
#include "desktop/widgets/windows/front_window.h"
#include "desktop/widgets/windows/window_view.h"

namespace corvalis::desktop {

namespace {

QMessageBox::Icon IconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::kCritical:
      return QMessageBox::Critical;
    case BoxStyle::kWarning:
      return QMessageBox::Warning;
    case BoxStyle::kInformation:
      return QMessageBox::Information;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

void QtDialogs::Show(const Box& box) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* view = dynamic_cast<WindowView*>(window)) view->AwaitNoMore();
  }
  // Before the window in use; while the person is in another program, before all of ours. Its owner
  // may go, and take it along, while events run.
  const QPointer<QMessageBox> shown =
      new QMessageBox(IconOf(box.style), FromBytes(box.title), FromBytes(box.text), QMessageBox::Ok,
                      FrontWindow(QApplication::activeWindow()));
  shown->setTextFormat(Qt::PlainText);
  if (HelpAsked && !box.help_file.empty()) {
    QPushButton* help = shown->addButton(QMessageBox::Help);
    help->setText(QStringLiteral("&Help"));
    help->disconnect(SIGNAL(clicked(bool)));  // the toolkit would take it for an answer
    QObject::connect(help, &QPushButton::clicked, help, [this, shown] { HelpAsked(*shown); });
    shown->setDefaultButton(QMessageBox::Ok);
    shown->setEscapeButton(QMessageBox::Ok);
  }
  shown->exec();
  delete shown.data();
}

void QtDialogs::Beep() { QApplication::beep(); }

}  // namespace corvalis::desktop
