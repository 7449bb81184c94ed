#pragma once

#include <QProgressBar>

#include "screen/meter.h"
#include "screen/progress_bar.h"

namespace corvalis::desktop {

/// A bar: how much of a whole something takes, or that the program is busy.
class ProgressBarWidget : public QProgressBar {
 public:
  ProgressBarWidget(Meter& share, QWidget* parent);
  ProgressBarWidget(ProgressBar& busy, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 private:
  explicit ProgressBarWidget(QWidget* parent);
};

}  // namespace corvalis::desktop
