#include "desktop/widgets/meter_widget.h"

#include <QPainter>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

namespace {
constexpr int kWidth = 120;
constexpr int kLeastWidth = 56;
constexpr int kHeight = 12;
}  // namespace

MeterWidget::MeterWidget(Meter& meter, QWidget* parent) : QWidget(parent), meter_(meter) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  Bind(*this, meter, [this] { update(); });
}

QSize MeterWidget::sizeHint() const { return {kWidth, kHeight}; }

QSize MeterWidget::minimumSizeHint() const { return {kLeastWidth, kHeight}; }

void MeterWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(colours::kFaintBorder));
  QRectF share = rect();
  share.setWidth(share.width() * meter_.Value() / Meter::kMax);
  painter.fillRect(share, QColor(colours::kAccent));
}

}  // namespace corvalis::desktop
