#include "desktop/views/ct_page.h"

#include <QGroupBox>
#include <QLineEdit>

#include "desktop/widgets/lists/calendar_widget.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/layout.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/presses/spinner_widget.h"
#include "desktop/widgets/texts/label_widget.h"
#include "desktop/widgets/texts/text_box_widget.h"

namespace corvalis::desktop {

namespace {

constexpr int kTimeColumns = 5;
constexpr int kOffsetColumns = 5;
constexpr int kPsnColumns = 3;

// The hour's arrows before the time, the minute's behind it.
QWidget* Time(CtTab& tab, QWidget* parent) {
  auto* group = new QWidget(parent);
  group->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  QLineEdit* time = CodeBox(tab.Text1, kTimeColumns, group);
  group->setFocusProxy(time);
  auto* hours = new SpinnerWidget(tab.VScroll2, group);
  CallByWord(*hours, Wording("Hours"));
  auto* minutes = new SpinnerWidget(tab.VScroll1, group);
  CallByWord(*minutes, Wording("Minutes"));
  QHBoxLayout* row = Row(group);
  row->setSpacing(kTight);
  row->addWidget(hours);
  row->addWidget(QuietText(Wording("h"), group));
  row->addWidget(time);
  row->addWidget(QuietText(Wording("min"), group));
  row->addWidget(minutes);
  for (SpinnerWidget* spinner : {hours, minutes}) spinner->Moves(*time);
  return group;
}

}  // namespace

CtPage::CtPage(CtTab& tab, QWidget* parent) : QWidget(parent) {
  auto* date = new QGroupBox(this);
  auto* calendar = new CalendarWidget(tab.Calendar1, date);
  auto* day = new QVBoxLayout(date);
  day->addWidget(Heading(Wording("Date"), calendar));
  day->addWidget(calendar, 1);

  auto* time = new QGroupBox(this);
  QGridLayout* fields = Fields(time);
  AddField(*fields, tab.HourMinLabel, Time(tab, time));
  AddField(*fields, tab.CtOffsetLabel,
           new SpinField(tab.Text9, tab.VScroll6, kOffsetColumns, time));
  AddField(*fields, tab.DatePsnLabel, FixedBox(tab.Text7, kPsnColumns, time));
  AddField(*fields, tab.HourPsnLabel, FixedBox(tab.Text8, kPsnColumns, time));
  AddLine(*fields, ButtonRow({&tab.Command1, &tab.Command2}, time));

  auto* row = new QHBoxLayout;
  row->setSpacing(kApart);
  row->addWidget(date);
  row->addWidget(time, 1);
  QVBoxLayout* column = Column(this);
  column->setContentsMargins(0, kApart, 0, 0);
  column->addLayout(row);
  column->addStretch(1);
}

}  // namespace corvalis::desktop
