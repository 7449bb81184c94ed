#pragma once

#include <QWidget>
#include <vector>

#include "screen/band_strip.h"

namespace corvalis::desktop {

/// The FM band as a scale with a mark for each frequency, and a line for those of other bands. The
/// main frequency is marked by its shape and its weight too. In words, all of them are the
/// accessible description and the tip.
class BandStripWidget : public QWidget {
 public:
  BandStripWidget(BandStrip& strip, QWidget* parent);

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Draw();
  [[nodiscard]] double Place(double mhz) const;
  [[nodiscard]] int Line() const { return fontMetrics().height(); }
  void PaintScale(QPainter& painter, const QRectF& band) const;
  void PaintMarks(QPainter& painter, const QRectF& band) const;
  /// Writes a frequency over its mark, in the lower of two lines if it has room there. Where it
  /// has none, the mark speaks for itself.
  void PaintText(QPainter& painter, const BandMark& mark, double bottom,
                 std::vector<QRectF>& taken) const;
  /// The frequency as the language writes it; the boxes have the point of the files.
  [[nodiscard]] QString Written(const BandMark& mark) const;
  [[nodiscard]] QString OtherBands() const;
  [[nodiscard]] QString Words() const;

  BandStrip& strip_;
};

}  // namespace corvalis::desktop
