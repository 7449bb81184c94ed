#include "desktop/widgets/look/progress_bar_widget.h"

#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {

constexpr Length kWidth{120};
constexpr Length kBusyWidth{320};
constexpr Length kLeastWidth{56};
constexpr Length kHeight{10};

constexpr int kPerCent = 100;

}  // namespace

ProgressBarWidget::ProgressBarWidget(QWidget* parent) : QProgressBar(parent) {
  setTextVisible(false);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

ProgressBarWidget::ProgressBarWidget(Meter& share, QWidget* parent) : ProgressBarWidget(parent) {
  setRange(0, kPerCent);  // as it is told to whoever does not see it
  Bind(*this, share, [this, &share] {
    setValue(qRound(static_cast<double>(share.Value()) * kPerCent / Meter::kMax));
  });
}

ProgressBarWidget::ProgressBarWidget(ProgressBar& busy, QWidget* parent)
    : ProgressBarWidget(parent) {
  setRange(ProgressBar::kMin, ProgressBar::kMax);
  setMinimumWidth(kBusyWidth);
  CallByWord(*this, Wording("Busy"));
  Bind(*this, busy, [this, &busy] { setValue(busy.Value()); });
}

QSize ProgressBarWidget::sizeHint() const { return {kWidth, kHeight}; }

QSize ProgressBarWidget::minimumSizeHint() const { return {kLeastWidth, kHeight}; }

}  // namespace corvalis::desktop
