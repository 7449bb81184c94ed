#include "desktop/widgets/look/band_strip_widget.h"

#include <QLocale>
#include <QPainter>
#include <QStringList>
#include <algorithm>

#include "desktop/text.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {

constexpr Length kWidth{560};
constexpr Length kLeastWidth{420};
constexpr Length kBandHeight{18};
constexpr Length kSide{24};  // half of the longest text at either end
constexpr int kTextLines = 2;
constexpr int kFirstStep = 88;  // MHz
constexpr int kLastStep = 108;
constexpr int kNamedStep = 2;
constexpr double kMarkWidth = 2;
constexpr double kMainWidth = 4;

bool InBand(const BandMark& mark) {
  return mark.mhz >= BandStrip::kFrom && mark.mhz <= BandStrip::kTo;
}

}  // namespace

BandStripWidget::BandStripWidget(BandStrip& strip, QWidget* parent)
    : QWidget(parent), strip_(strip) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  CallByWord(*this, Wording("FM band"));
  Bind(*this, strip, [this] { Draw(); });
}

QSize BandStripWidget::sizeHint() const {
  // Texts of marks, the band, its scale, and what is beside it.
  return {kWidth, (kTextLines + 2) * Line() + kBandHeight + 3 * kTight};
}

QSize BandStripWidget::minimumSizeHint() const { return {kLeastWidth, sizeHint().height()}; }

void BandStripWidget::Draw() {
  setAccessibleDescription(Words());
  setToolTip(Words());
  update();
}

double BandStripWidget::Place(double mhz) const {
  const double share = (mhz - BandStrip::kFrom) / (BandStrip::kTo - BandStrip::kFrom);
  return kSide + share * (width() - 2 * kSide);
}

void BandStripWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double top = kTextLines * Line() + kTight;
  const QRectF band(Place(BandStrip::kFrom), top, Place(BandStrip::kTo) - Place(BandStrip::kFrom),
                    kBandHeight);
  PaintScale(painter, band);
  PaintMarks(painter, band);
  const QString others = OtherBands();
  if (others.isEmpty()) return;
  const QRect line(kSide, height() - Line(), width() - 2 * kSide, Line());
  painter.setPen(QColor(colours::kText));
  painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                   fontMetrics().elidedText(others, Qt::ElideRight, line.width()));
}

void BandStripWidget::PaintScale(QPainter& painter, const QRectF& band) const {
  painter.fillRect(band, QColor(colours::kDisplay));
  for (int mhz = kFirstStep; mhz <= kLastStep; ++mhz) {
    const double x = Place(mhz);
    const bool named = mhz % kNamedStep == 0;
    painter.setPen(QPen(QColor(colours::kBorder), 1));
    painter.drawLine(QPointF(x, named ? band.center().y() : band.bottom() - kTight),
                     QPointF(x, band.bottom()));
    if (!named) continue;
    painter.setPen(QColor(colours::kQuietText));
    const QRectF text(x - kSide, band.bottom() + kTight / 2.0, 2 * kSide, Line());
    painter.drawText(text, Qt::AlignHCenter | Qt::AlignTop, QString::number(mhz));
  }
}

void BandStripWidget::PaintMarks(QPainter& painter, const QRectF& band) const {
  // The main frequency has its text before all others.
  std::vector<BandMark> marks = strip_.Marks();
  std::stable_sort(marks.begin(), marks.end(), [](const BandMark& a, const BandMark& b) {
    return a.main != b.main ? a.main : a.mhz < b.mhz;
  });
  // One that comes twice is seen once.
  marks.erase(std::unique(marks.begin(), marks.end()), marks.end());
  std::vector<QRectF> taken;
  for (const BandMark& mark : marks) {
    if (!InBand(mark)) continue;
    const double x = Place(mark.mhz);
    const double wide = mark.main ? kMainWidth : kMarkWidth;
    const QColor colour(mark.main ? colours::kText : colours::kAccent);
    painter.fillRect(QRectF(x - wide / 2, band.top(), wide, band.height()), colour);
    if (mark.main) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(colour);
      const double head = kTight * 1.5;
      painter.drawPolygon(QPolygonF({QPointF(x - head, band.top()), QPointF(x + head, band.top()),
                                     QPointF(x, band.top() + head * 1.5)}));
    }
    painter.setPen(colour);
    PaintText(painter, mark, band.top() - kTight / 2.0, taken);
  }
}

void BandStripWidget::PaintText(QPainter& painter, const BandMark& mark, double bottom,
                                std::vector<QRectF>& taken) const {
  const QString text = Written(mark);
  const QFont used = mark.main ? Bold(font()) : font();
  const double wide = QFontMetricsF(used).horizontalAdvance(text) + kTight;
  for (int line = 1; line <= kTextLines; ++line) {
    const QRectF place(Place(mark.mhz) - wide / 2, bottom - line * Line(), wide, Line());
    const bool full = std::any_of(taken.begin(), taken.end(), [&place](const QRectF& other) {
      return other.intersects(place);
    });
    if (full) continue;
    painter.setFont(used);
    painter.drawText(place, Qt::AlignCenter, text);
    painter.setFont(font());
    taken.push_back(place);
    return;
  }
}

QString BandStripWidget::Written(const BandMark& mark) const {
  return FromBytes(mark.text).replace(u'.', locale().decimalPoint());
}

QString BandStripWidget::OtherBands() const {
  QStringList texts;
  for (const std::string& text : strip_.Beside()) texts << FromBytes(text);
  return texts.isEmpty() ? QString()
                         : Wording("LF, MF: %1", texts.join(QStringLiteral(", "))).Text();
}

QString BandStripWidget::Words() const {
  QStringList words;
  for (const BandMark& mark : strip_.Marks()) {
    const QString frequency = Written(mark) + QStringLiteral(" MHz");
    words << (mark.main ? Wording("Main frequency %1", frequency).Text() : frequency);
  }
  if (const QString others = OtherBands(); !others.isEmpty()) words << others;
  return words.isEmpty() ? Wording("No frequency").Text() : words.join(QStringLiteral(", "));
}

}  // namespace corvalis::desktop
