#pragma once

#include <QCalendarWidget>

#include "screen/calendar.h"

class QAbstractItemView;

namespace corvalis::desktop {

/// The days of one month. The arrow keys move the date by days and weeks, the page keys by months;
/// turning the leaves with the mouse picks no date.
class CalendarWidget : public QCalendarWidget {
 public:
  CalendarWidget(Calendar& calendar, QWidget* parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;

 private:
  void Draw();
  void DressParts();

  Calendar& calendar_;
  QAbstractItemView* days_ = nullptr;
};

}  // namespace corvalis::desktop
