#include "desktop/views/busy_views.h"

#include <QKeyEvent>

#include "desktop/text.h"
#include "desktop/widgets/look/brand_header.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/progress_bar_widget.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/button_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

WaitView::WaitView(WaitForm& form) : WindowView(form.window) {
  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new BrandHeader(form.marks, nullptr, this));
  column->addWidget(new LabelWidget(form.WaitMessage, this));
  column->addWidget(new ProgressBarWidget(form.WaitBar, this));
}

QPoint WaitView::PlaceOver(const QRect& owner) const {
  const QPoint middle = WindowView::PlaceOver(owner);
  return {middle.x(), owner.bottom() - height() - 2 * kApart};
}

ProgressLine::ProgressLine(Label& label, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  SetInk(*this, colours::kQuietText);
  // What is told once a second at most is the name; without one the toolkit would tell each text.
  setAccessibleName(Wording("Progress").Text());
  pause_.setSingleShot(true);
  pause_.setInterval(kToldMs);
  connect(&pause_, &QTimer::timeout, this, [this] { Tell(); });
  Bind(*this, label, [this, &label] {
    setText(FromBytes(label.Caption()));
    if (text().isEmpty()) hide();
    if (!pause_.isActive()) Tell();
  });
}

void ProgressLine::Tell() {
  if (text().isEmpty() || accessibleName() == text()) return;
  setAccessibleName(text());
  pause_.start();
}

SerialCommunicationView::SerialCommunicationView(SerialCommunicationForm& form)
    : WindowView(form.window) {
  QVBoxLayout* column = WindowColumn(this);
  column->addWidget(new ProgressBarWidget(form.ProgressBar1, this));
  column->addWidget(new ProgressLine(form.ProgressLabel, this));
  column->addWidget(new LabelWidget(form.HintLabel, this));
  column->addWidget(new ButtonWidget(form.Command1, this), 0, Qt::AlignHCenter);
  findChild<ButtonWidget*>()->installEventFilter(this);
}

void SerialCommunicationView::showEvent(QShowEvent* event) {
  WindowView::showEvent(event);
  since_shown_.start();
}

bool SerialCommunicationView::eventFilter(QObject* button, QEvent* event) {
  if (event->type() == QEvent::KeyPress && !since_shown_.hasExpired(kDeafMs) &&
      static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape) {
    return true;
  }
  return WindowView::eventFilter(button, event);
}

}  // namespace corvalis::desktop
