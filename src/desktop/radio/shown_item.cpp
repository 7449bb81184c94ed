#include "desktop/radio/shown_item.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "desktop/radio/copy.h"
#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

ShownItem::ShownItem(QString name, QWidget* parent) : QLabel(parent), name_(std::move(name)) {
  setTextFormat(Qt::PlainText);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setContentsMargins(kTight, 0, kTight, 0);
  FollowScheme(*this, [this] { Dress(); });
  Call();
}

void ShownItem::SetName(const QString& name) {
  name_ = name;
  Call();
}

void ShownItem::Display(const QString& text, const QString& copied, bool quiet) {
  if (text == this->text() && copied == copied_ && quiet == quiet_) return;
  copied_ = copied;
  setText(text);
  if (std::exchange(quiet_, quiet) != quiet) Dress();
  Call();
}

void ShownItem::Call() {
  setAccessibleName(name_ + QStringLiteral(": ") + text());
  setToolTip(copied_ == text() ? QString() : copied_.toHtmlEscaped());
}

void ShownItem::Dress() {
  QPalette palette = this->palette();
  palette.setColor(QPalette::WindowText, QColor(quiet_ ? colours::kQuietText : colours::kText));
  setPalette(palette);
}

void ShownItem::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    Copy(*this, copied_);
  }
}

void ShownItem::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy) || event->key() == Qt::Key_Space ||
      event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Copy(*this, copied_);
    return;
  }
  QLabel::keyPressEvent(event);
}

void ShownItem::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  DrawFocusRing(painter, rect());
}

void ShownItem::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  update();
}

void ShownItem::focusOutEvent(QFocusEvent* event) {
  QLabel::focusOutEvent(event);
  update();
}

}  // namespace corvalis::desktop
