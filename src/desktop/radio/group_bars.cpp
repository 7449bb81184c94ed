#include "desktop/radio/group_bars.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "desktop/radio/copy.h"
#include "desktop/radio/in_words.h"
#include "desktop/widgets/look/style.h"

namespace corvalis::desktop {

namespace {

constexpr Length kBarHeight{54};
constexpr Length kLeastBar{24};

}  // namespace

GroupBars::GroupBars(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize GroupBars::sizeHint() const {
  return {kInLine * (kLeastBar + kTight),
          2 * (kBarHeight + fontMetrics().height() + kTight) + fontMetrics().height() + kTight};
}

void GroupBars::Show(const std::array<radio::Face::Group, air::kGroupKinds>& groups) {
  if (groups == groups_) return;
  groups_ = groups;
  double most = 0;
  for (const auto& group : groups_) most = std::max({most, group.heard, group.prepared});
  for (whole_ = 0.25; whole_ < most;) whole_ *= 2;
  Call();
  update();
}

QString GroupBars::WordsOf(int group) const {
  return QString::fromStdString(groups_.at(static_cast<std::size_t>(group)).words);
}

void GroupBars::Call() {
  setAccessibleName(InWords("Share of each group") + QStringLiteral(": ") + WordsOf(chosen_));
  QStringList all;
  for (int group = 0; group < air::kGroupKinds; ++group) {
    const auto& one = groups_.at(static_cast<std::size_t>(group));
    if (one.heard > 0 || one.prepared > 0) all << WordsOf(group);
  }
  setAccessibleDescription(all.join(QStringLiteral("; ")));
}

void GroupBars::Choose(int group) {
  chosen_ = std::clamp(group, 0, air::kGroupKinds - 1);
  Call();
  update();
}

QRectF GroupBars::PlaceOf(int group) const {
  const double wide = 1.0 * width() / kInLine;
  const double high = kBarHeight + fontMetrics().height() + kTight;
  return {wide * (group % kInLine), group < kInLine ? 0 : high, wide, high};
}

int GroupBars::GroupAt(const QPointF& point) const {
  for (int group = 0; group < air::kGroupKinds; ++group) {
    if (PlaceOf(group).contains(point)) return group;
  }
  return -1;
}

void GroupBars::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  for (int group = 0; group < air::kGroupKinds; ++group) PaintBar(painter, group);
  painter.setPen(QColor(colours::kText));
  const QRect line(0, height() - fontMetrics().height(), width(), fontMetrics().height());
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, WordsOf(chosen_));
}

void GroupBars::PaintBar(QPainter& painter, int group) const {
  const auto& shown = groups_.at(static_cast<std::size_t>(group));
  const QRectF place = PlaceOf(group);
  const QRectF bar(place.left() + kTight / 2.0, place.top() + 1, place.width() - kTight,
                   kBarHeight - 1);
  painter.fillRect(bar, QColor(colours::kDisplay));
  const double heard = bar.height() * std::min(1.0, shown.heard / whole_);
  const bool both = shown.has_prepared;
  const double wide = both ? bar.width() * 0.6 : bar.width();
  painter.fillRect(QRectF(bar.left(), bar.bottom() - heard, wide, heard), QColor(colours::kAccent));
  if (both && shown.prepared > 0) {
    // Prepared is a frame beside it, so that the two are told apart by their shape.
    const double high = std::max(2.0, bar.height() * std::min(1.0, shown.prepared / whole_));
    painter.setPen(QPen(QColor(colours::kText), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(
        QRectF(bar.left() + wide + 1, bar.bottom() - high, bar.width() - wide - 2, high - 1));
  }
  const QRectF text(place.left(), bar.bottom(), place.width(), fontMetrics().height());
  painter.setPen(QColor(shown.heard > 0 ? colours::kText : colours::kQuietText));
  painter.setFont(group == chosen_ ? Bold(font()) : font());
  painter.drawText(text, Qt::AlignCenter, QString::fromStdString(shown.name));
  painter.setFont(font());
  if (group == chosen_ && hasFocus()) DrawFocusRing(painter, place.toRect());
}

void GroupBars::mousePressEvent(QMouseEvent* event) {
  const int group = GroupAt(event->position());
  if (group >= 0) Choose(group);
  Copy(*this, WordsOf(chosen_));
}

void GroupBars::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return Choose(chosen_ - 1);
    case Qt::Key_Right:
      return Choose(chosen_ + 1);
    case Qt::Key_Up:
      return Choose(chosen_ >= kInLine ? chosen_ - kInLine : chosen_);
    case Qt::Key_Down:
      return Choose(chosen_ < kInLine ? chosen_ + kInLine : chosen_);
    case Qt::Key_Home:
      return Choose(0);
    case Qt::Key_End:
      return Choose(air::kGroupKinds - 1);
    default:
      break;
  }
  if (event->matches(QKeySequence::Copy) || event->key() == Qt::Key_Space) {
    return Copy(*this, WordsOf(chosen_));
  }
  QWidget::keyPressEvent(event);
}

void GroupBars::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void GroupBars::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

bool GroupBars::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const int group = GroupAt(help.pos());
    QToolTip::showText(help.globalPos(), group < 0 ? QString() : WordsOf(group), this);
    return true;
  }
  return QWidget::event(event);
}

}  // namespace corvalis::desktop
