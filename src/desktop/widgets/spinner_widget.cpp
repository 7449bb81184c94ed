#include "desktop/widgets/spinner_widget.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/style.h"
#include "desktop/widgets/text_box_widget.h"

namespace corvalis::desktop {

namespace {
constexpr int kWidth = 26;
constexpr int kFirstRepeatMs = 400;
constexpr int kRepeatMs = 60;
}  // namespace

SpinnerWidget::SpinnerWidget(Spinner& spinner, QWidget* parent)
    : QWidget(parent), spinner_(spinner) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  connect(&repeat_, &QTimer::timeout, this, [this] { Step(); });
  Bind(*this, spinner, [this] { update(); });
}

QSize SpinnerWidget::sizeHint() const { return {kWidth, kControlHeight}; }

void SpinnerWidget::Step() {
  repeat_.start(repeat_.isActive() ? kRepeatMs : kFirstRepeatMs);
  update();
  if (held_ == Half::kUp) {
    spinner_.PressUp();
  } else {
    spinner_.PressDown();
  }
}

void SpinnerWidget::LetGo() {
  repeat_.stop();
  held_ = Half::kNone;
  update();
}

void SpinnerWidget::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (event->button() != Qt::LeftButton || !hasFocus()) return;
  held_ = event->position().y() < height() / 2.0 ? Half::kUp : Half::kDown;
  Step();
}

void SpinnerWidget::mouseReleaseEvent(QMouseEvent* /*event*/) { LetGo(); }

void SpinnerWidget::focusOutEvent(QFocusEvent* event) {
  LetGo();
  QWidget::focusOutEvent(event);
}

void SpinnerWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up) {
    spinner_.PressUp();
  } else if (event->key() == Qt::Key_Down) {
    spinner_.PressDown();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void SpinnerWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect up(0, 0, width(), height() / 2);
  const QRect down(0, up.height(), width(), height() - up.height());
  if (held_ != Half::kNone) {
    painter.fillRect(held_ == Half::kUp ? up : down, QColor(colours::kPressed));
  }
  DrawArrow(painter, QRectF(up).translated(0, 1), true, isEnabled());
  DrawArrow(painter, QRectF(down).translated(0, -1), false, isEnabled());
  // Within a field, the field shows the focus.
  const bool alone = (focusPolicy() & Qt::TabFocus) != 0;
  if (alone && hasFocus()) DrawFocusRing(painter, rect());
}

SpinField::SpinField(TextBox& box, Spinner& spinner, int columns, QWidget* parent)
    : QWidget(parent) {
  auto* number = new TextBoxWidget(box, columns, this);
  number->setFrame(false);
  box_ = number;
  spinner_ = new SpinnerWidget(spinner, this);
  spinner_->setFocusPolicy(Qt::ClickFocus);  // the box steps it from the keyboard
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(2, 2, 2, 2);
  row->setSpacing(0);
  row->addWidget(box_);
  row->addWidget(spinner_);
  setFixedHeight(kControlHeight);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  box_->installEventFilter(this);
  spinner_->installEventFilter(this);
}

bool SpinField::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
  if (watched == box_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      return QCoreApplication::sendEvent(spinner_, event);
    }
  }
  return QWidget::eventFilter(watched, event);
}

void SpinField::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  DrawField(painter, rect(),
            {.enabled = spinner_->isEnabled(),
             .focus = box_->hasFocus() || spinner_->hasFocus(),
             .display_only = box_->isReadOnly()});
  if (box_->isReadOnly() && spinner_->isEnabled()) {
    painter.fillRect(spinner_->geometry(), QColor(colours::kField));
  }
  painter.setPen(QColor(colours::kFaintBorder));
  const int x = spinner_->x();
  painter.drawLine(x, kTight, x, height() - kTight - 1);
}

}  // namespace corvalis::desktop
