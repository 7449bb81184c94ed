#include "desktop/widgets/progress_bar_widget.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/widgets/binding.h"
#include "desktop/widgets/style.h"

namespace corvalis::desktop {

namespace {
constexpr int kWidth = 320;
constexpr int kHeight = 10;
}  // namespace

ProgressBarWidget::ProgressBarWidget(ProgressBar& bar, QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  Bind(*this, bar, [this, &bar] {
    const int before = Filled();
    value_ = bar.Value();
    const auto [left, right] = std::minmax({before, Filled()});
    if (left < right) update(left, 0, right - left, height());
  });
}

QSize ProgressBarWidget::sizeHint() const { return {kWidth, kHeight}; }

int ProgressBarWidget::Filled() const {
  return width() * (value_ - ProgressBar::kMin) / (ProgressBar::kMax - ProgressBar::kMin);
}

void ProgressBarWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRect full(0, 0, Filled(), height());
  painter.fillRect(event->rect(), QColor(colours::kFaintBorder));
  painter.fillRect(event->rect() & full, QColor(colours::kAccent));
}

}  // namespace corvalis::desktop
