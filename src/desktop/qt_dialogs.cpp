#include "desktop/qt_dialogs.h"

#include <QApplication>
#include <QEventLoop>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "busy/transfer_bracket.h"
#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
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

// Below `window`, or above it where there is no room: what stands in it stays in sight.
void PlaceBeside(QWidget& box, const QWidget& window) {
  box.ensurePolished();
  box.adjustSize();
  const QRect frame = window.frameGeometry();
  const QRect room = window.screen()->availableGeometry();
  const int title = frame.height() - window.height();  // as high as the box's
  int y = frame.bottom() + kNear;
  if (y + box.height() + title > room.bottom()) y = frame.top() - box.height() - title - kNear;
  const int x = frame.center().x() - box.width() / 2;
  box.move(std::max(x, room.left()), std::max(y, room.top()));
}

// Beside a transfer screen nobody is kept out but by the program.
void ShowBesideTransfer(QMessageBox& box) {
  QEventLoop until_answered;
  QObject::connect(&box, &QDialog::finished, &until_answered, &QEventLoop::quit);
  QObject::connect(&box, &QObject::destroyed, &until_answered, &QEventLoop::quit);
  if (box.parentWidget() != nullptr) PlaceBeside(box, *box.parentWidget());
  box.setModal(false);
  box.show();
  box.activateWindow();
  until_answered.exec();
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
    help->setText(Wording("&Help").Text());
    help->disconnect(SIGNAL(clicked(bool)));  // the toolkit would take it for an answer
    QObject::connect(help, &QPushButton::clicked, help, [this, shown] { HelpAsked(*shown); });
    shown->setDefaultButton(QMessageBox::Ok);
    shown->setEscapeButton(QMessageBox::Ok);
  }
  if (TransferScreenStands()) {
    ShowBesideTransfer(*shown);
  } else {
    shown->exec();
  }
  delete shown.data();
}

void QtDialogs::Dismiss() {
  if (QMessageBox* box = StandingBox()) box->accept();
}

void QtDialogs::Beep() { QApplication::beep(); }

}  // namespace corvalis::desktop
