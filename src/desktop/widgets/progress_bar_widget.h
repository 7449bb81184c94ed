#pragma once

#include <QWidget>

#include "screen/progress_bar.h"

namespace corvalis::desktop {

/// A busy bar. It is drawn anew only where a pixel changes, as it moves while the program works.
class ProgressBarWidget : public QWidget {
 public:
  ProgressBarWidget(ProgressBar& bar, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  [[nodiscard]] int Filled() const;

  int value_ = ProgressBar::kMin;
};

}  // namespace corvalis::desktop
