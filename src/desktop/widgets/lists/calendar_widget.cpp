#include "desktop/widgets/lists/calendar_widget.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <QToolButton>
#include <utility>

#include "desktop/text.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"

namespace corvalis::desktop {

namespace {

constexpr double kCorner = 4;

QDate ToDate(std::chrono::year_month_day date) {
  return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
          static_cast<int>(static_cast<unsigned>(date.day()))};
}

std::chrono::year_month_day FromDate(QDate date) {
  return {std::chrono::year(date.year()), std::chrono::month(static_cast<unsigned>(date.month())),
          std::chrono::day(static_cast<unsigned>(date.day()))};
}

}  // namespace

CalendarWidget::CalendarWidget(Calendar& calendar, QWidget* parent)
    : QCalendarWidget(parent), calendar_(calendar) {
  setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  setDateEditEnabled(false);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::MinimumExpanding);
  FollowScheme(*this, [this] { DressParts(); });
  connect(this, &QCalendarWidget::selectionChanged, this, [this] {
    calendar_.Pick(FromDate(selectedDate()));
    Draw();
  });
  Bind(*this, calendar, [this] { Draw(); });
}

void CalendarWidget::DressParts() {
  setContentsMargins(kTight, kTight, kTight, kTight);
  QTextCharFormat quiet;
  quiet.setForeground(QColor(colours::kQuietText));
  quiet.setBackground(Qt::transparent);
  setHeaderTextFormat(quiet);
  for (const auto day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, quiet);

  days_ = findChild<QAbstractItemView*>();
  days_->setFrameShape(QFrame::NoFrame);
  days_->installEventFilter(this);
  days_->viewport()->installEventFilter(this);
  // The cells draw the date chosen themselves.
  QPalette palette = days_->palette();
  palette.setColor(QPalette::Highlight, Qt::transparent);
  days_->setPalette(palette);

  for (auto* button : findChildren<QToolButton*>()) {
    button->setFocusPolicy(Qt::NoFocus);
    QPalette ink = button->palette();
    for (const auto role : {QPalette::ButtonText, QPalette::HighlightedText}) {
      ink.setColor(role, QColor(colours::kText));
      ink.setColor(QPalette::Disabled, role, QColor(colours::kDisabledText));
    }
    button->setPalette(ink);
    if (QWidget* bar = button->parentWidget()) bar->setBackgroundRole(QPalette::Base);
  }
  const std::pair<const char*, Qt::ArrowType> arrows[] = {
      {"qt_calendar_prevmonth", Qt::LeftArrow}, {"qt_calendar_nextmonth", Qt::RightArrow}};
  for (const auto& [name, arrow] : arrows) {
    if (auto* button = findChild<QToolButton*>(QLatin1String(name))) button->setArrowType(arrow);
  }
}

void CalendarWidget::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  DrawField(painter, rect(), {.enabled = isEnabled(), .focus = days_->hasFocus()});
}

void CalendarWidget::Draw() {
  const QSignalBlocker silent(this);
  const QDate date = ToDate(calendar_.Date());
  if (selectedDate() != date) setSelectedDate(date);
  setCurrentPage(date.year(), date.month());
  // The days alone say neither month nor year.
  const QString name = Wording("Date: %1", locale().toString(date, QLocale::LongFormat)).Text();
  for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(days_)}) {
    part->setAccessibleName(name);
  }
}

bool CalendarWidget::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      updateCells();
      update();
      break;
    case QEvent::MouseButtonPress:
      // Without the focus the press is void: the control left has taken it back.
      if (watched != days_ && !days_->hasFocus()) return true;
      break;
    case QEvent::Wheel:
      return true;
    default:
      break;
  }
  return QCalendarWidget::eventFilter(watched, event);
}

void CalendarWidget::paintCell(QPainter* painter, const QRect& rect, QDate date) const {
  const bool chosen = date == selectedDate();
  const bool this_month = date.month() == monthShown() && date.year() == yearShown();
  QRgb ink = this_month && isEnabled() ? colours::kText : colours::kDisabledText;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (chosen) {
    const bool focus = days_->hasFocus() && isEnabled();
    if (isEnabled()) ink = focus ? colours::kField : colours::kText;
    painter->setPen(focus ? Qt::NoPen
                          : QPen(QColor(isEnabled() ? colours::kAccent : colours::kBorder), 1));
    painter->setBrush(QColor(focus ? colours::kAccent : colours::kPressed));
    if (!isEnabled()) painter->setBrush(QColor(colours::kDisplay));
    painter->drawRoundedRect(QRectF(rect).adjusted(2.5, 1.5, -2.5, -1.5), kCorner, kCorner);
    painter->setFont(Bold(font()));
  }
  painter->setPen(QColor(ink));
  painter->drawText(rect, Qt::AlignCenter, QString::number(date.day()));
  painter->restore();
}

}  // namespace corvalis::desktop
