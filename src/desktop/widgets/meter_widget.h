#pragma once

#include <QWidget>

#include "screen/meter.h"

namespace corvalis::desktop {

/// A bar that shows how much of a whole something takes.
class MeterWidget : public QWidget {
 public:
  MeterWidget(Meter& meter, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Meter& meter_;
};

}  // namespace corvalis::desktop
