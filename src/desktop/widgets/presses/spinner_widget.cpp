#include "desktop/widgets/presses/spinner_widget.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/text_box_widget.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {
constexpr Length kWidth{26};
}  // namespace

SpinnerWidget::SpinnerWidget(Spinner& spinner, QWidget* parent)
    : QAbstractSpinBox(parent), spinner_(spinner) {
  lineEdit()->hide();
  setContextMenuPolicy(Qt::NoContextMenu);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
  Bind(*this, spinner, [] {});
}

void SpinnerWidget::Moves(const QLineEdit& box) {
  const auto show = [this](const QString& text) {
    const QSignalBlocker silent(lineEdit());  // its text is no input
    lineEdit()->setText(text);
  };
  show(box.text());
  connect(&box, &QLineEdit::textChanged, this, show);
}

QSize SpinnerWidget::sizeHint() const { return {kWidth, kControlHeight}; }

QAbstractSpinBox::StepEnabled SpinnerWidget::stepEnabled() const {
  return StepUpEnabled | StepDownEnabled;
}

void SpinnerWidget::stepBy(int steps) {
  for (; steps > 0; --steps) spinner_.PressUp();
  for (; steps < 0; ++steps) spinner_.PressDown();
}

void SpinnerWidget::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (HasKeyboard(*this)) QAbstractSpinBox::mousePressEvent(event);
}

void SpinnerWidget::wheelEvent(QWheelEvent* event) { event->ignore(); }

void SpinnerWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Up) {
    stepBy(+1);
  } else if (event->key() == Qt::Key_Down) {
    stepBy(-1);
  } else {
    event->ignore();
  }
}

SpinField::SpinField(TextBox& box, Spinner& spinner, int columns, QWidget* parent)
    : QWidget(parent) {
  auto* number = new TextBoxWidget(box, columns, this);
  number->setFrame(false);
  box_ = number;
  spinner_ = new SpinnerWidget(spinner, this);
  spinner_->setFocusPolicy(Qt::ClickFocus);  // the box steps it from the keyboard
  spinner_->setFrame(false);
  spinner_->Moves(*box_);
  setFocusProxy(box_);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(2, 2, 2, 2);
  row->setSpacing(0);
  row->addWidget(box_);
  row->addWidget(spinner_);
  setFixedHeight(kControlHeight);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  box_->installEventFilter(this);
  spinner_->installEventFilter(this);
  if (box_->isHidden()) hide();
}

void SpinField::Name(const Wording& name) {
  CallByWord(*box_, name);
  CallByWord(*spinner_, name);
}

bool SpinField::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
  // The field is there exactly while its box is.
  if (watched == box_ && event->type() == QEvent::ShowToParent) show();
  if (watched == box_ && event->type() == QEvent::HideToParent) hide();
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
