#include "desktop/widgets/look/brand_header.h"

#include <QHBoxLayout>
#include <QPainter>

#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {

constexpr double kLetterSpacing = 112;  // per cent

QFont WordMark(const QWidget& widget) {
  QFont font = Bold(widget.font());
  font.setLetterSpacing(QFont::PercentageSpacing, kLetterSpacing);
  return font;
}

/// One brand's mark.
class Mark : public QLabel {
 public:
  Mark(Label& logo, QWidget* parent) : QLabel(parent) {
    // The controls of the marks are named after their brands.
    setText(FromBytes(logo.Name().substr(logo.Name().find('_') + 1)).toUpper());
    setFont(WordMark(*this));
    setContentsMargins(kGap, kTight, kGap, kTight);
    SetInk(*this, colours::kAccent);
    Bind(*this, logo, [] {});
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(colours::kAccent), 1.5));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kTight, kTight);
    QLabel::paintEvent(event);
  }
};

}  // namespace

BrandHeader::BrandHeader(BrandMarks& marks, Label* brand_text, QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  auto* program = new QLabel(QStringLiteral("CORVALIS"), this);
  program->setFont(WordMark(*program));
  program->setMinimumHeight(program->fontMetrics().height() + 2 * kTight);
  row->addWidget(program);
  row->addStretch();
  for (Label* logo : {&marks.Logo_KOR, &marks.Logo_Varn, &marks.Logo_ZEL, &marks.Logo_Breno,
                      &marks.Logo_Tulm, &marks.Logo_Paxen, &marks.Logo_DOX}) {
    row->addWidget(new Mark(*logo, this));
  }
  if (brand_text != nullptr) row->addWidget(new LabelWidget(*brand_text, this));
}

}  // namespace corvalis::desktop
