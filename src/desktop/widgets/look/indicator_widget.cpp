#include "desktop/widgets/look/indicator_widget.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {

constexpr double kScale = 3.25;
constexpr Length kLeastWidth{300};
constexpr Length kLeastHeight{170};
constexpr double kCorner = 6;

}  // namespace

IndicatorWidget::IndicatorWidget(CheckBox& box, const Label& title, QWidget* parent)
    : QLabel(parent), box_(box), title_(title) {
  QFont large = Bold(font());
  large.setPointSizeF(kScale * QFontInfo(large).pointSizeF());
  setFont(large);
  setAlignment(Qt::AlignCenter);
  setTextFormat(Qt::PlainText);
  Bind(*this, box, [this] { Draw(); });
  FollowScheme(*this, [this] { Draw(); });
}

QSize IndicatorWidget::sizeHint() const {
  const QSize margins(4 * kApart, 2 * kApart);
  return (QLabel::sizeHint() + margins).expandedTo({kLeastWidth, kLeastHeight});
}

void IndicatorWidget::Draw() {
  const QString state = FromBytes(box_.Caption());
  setText(state);
  setAccessibleName(FromBytes(title_.Caption()) + QStringLiteral(": ") + state);
  // A state that is on shows white on its colour; one that is off stays as quiet as a field.
  const bool on = box_.ColourTone() == CheckBox::Tone::kOn;
  QPalette palette = parentWidget()->palette();
  palette.setColor(QPalette::Window, QColor(on ? colours::kOnAir : colours::kDisplay));
  palette.setColor(QPalette::WindowText, QColor(on ? colours::kField : colours::kQuietText));
  setPalette(palette);
}

void IndicatorWidget::showEvent(QShowEvent* event) {
  Draw();  // the title may have come after the state
  QLabel::showEvent(event);
}

void IndicatorWidget::mousePressEvent(QMouseEvent* event) {
  // The keyboard stays where it is.
  event->accept();
}

void IndicatorWidget::paintEvent(QPaintEvent* event) {
  {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().window());
    painter.drawRoundedRect(rect(), kCorner, kCorner);
  }
  QLabel::paintEvent(event);
}

}  // namespace corvalis::desktop
