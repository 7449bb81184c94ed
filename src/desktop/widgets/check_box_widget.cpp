#include "desktop/widgets/check_box_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/text.h"
#include "desktop/widgets/binding.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

namespace {

constexpr int kSquare = 18;
constexpr double kCorner = 4;

struct ToneColours {
  QRgb strong;
  QRgb ground;
};

ToneColours ColoursOf(CheckBox::Tone tone) {
  switch (tone) {
    case CheckBox::Tone::kOn:
      return {colours::kOn, colours::kOnGround};
    case CheckBox::Tone::kOff:
      return {colours::kOff, colours::kOffGround};
    case CheckBox::Tone::kPlain:
      break;
  }
  return {colours::kAccent, colours::kField};
}

void DrawTick(QPainter& painter, const QRectF& square) {
  painter.setPen(QPen(QColor(colours::kField), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF points[] = {square.topLeft() + QPointF(4.5, 9.5),
                            square.topLeft() + QPointF(7.5, 12.5),
                            square.topLeft() + QPointF(13.5, 5.5)};
  painter.drawPolyline(points, 3);
}

}  // namespace

CheckBoxWidget::CheckBoxWidget(CheckBox& box, QWidget* parent) : QCheckBox(parent), box_(box) {
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  Bind(*this, box, [this] { Draw(); });
}

void CheckBoxWidget::Draw() {
  const QString caption = FromBytes(box_.Caption());
  if (text() != caption) setText(caption);
  setChecked(box_.Checked());
  tone_ = box_.ColourTone();
  update();
}

QSize CheckBoxWidget::sizeHint() const {
  const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
  const int gap = text().isEmpty() ? 0 : kNear;
  return {2 * kTight + kSquare + gap + words.width() + (gap == 0 ? 0 : kTight),
          qMax(kSquare, words.height()) + 2 * kTight};
}

bool CheckBoxWidget::hitButton(const QPoint& position) const { return rect().contains(position); }

void CheckBoxWidget::mousePressEvent(QMouseEvent* event) {
  // Without the focus the press is void: the control left has taken it back.
  if (hasFocus()) QCheckBox::mousePressEvent(event);
}

void CheckBoxWidget::nextCheckState() {
  box_.Press();
  Draw();
}

void CheckBoxWidget::paintEvent(QPaintEvent* /*event*/) {
  const bool plain = tone_ == CheckBox::Tone::kPlain;
  ToneColours tone = ColoursOf(tone_);
  QRgb edge = plain && !isChecked() ? colours::kBorder : tone.strong;
  if (!isEnabled()) {
    tone = {colours::kDisabledText, colours::kWindow};
    edge = colours::kDisabledText;
  }
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!plain && isEnabled()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(tone.ground));
    painter.drawRoundedRect(QRectF(rect()), kCorner, kCorner);
  }
  const QRectF square = QRect(kTight, (height() - kSquare) / 2, kSquare, kSquare);
  QRgb fill = isChecked() ? tone.strong : colours::kField;
  if (!isEnabled() && !isChecked()) fill = colours::kWindow;
  if (isEnabled() && !isChecked() && underMouse()) fill = colours::kHover;
  painter.setPen(QPen(QColor(edge), plain || isChecked() ? 1 : 1.5));
  painter.setBrush(QColor(fill));
  painter.drawRoundedRect(square.adjusted(0.5, 0.5, -0.5, -0.5), kCorner, kCorner);
  if (isChecked()) DrawTick(painter, square);
  QRect words = rect();
  words.setLeft(kTight + kSquare + kNear);
  painter.setPen(QColor(isEnabled() ? colours::kText : colours::kDisabledText));
  painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
  if (hasFocus()) DrawFocusRing(painter, rect());
}

}  // namespace corvalis::desktop
