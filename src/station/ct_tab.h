#pragma once

#include <cstdint>
#include <string>

#include "config/config_data.h"
#include "platform/clock.h"
#include "screen/button.h"
#include "screen/calendar.h"
#include "screen/control.h"
#include "screen/spinner.h"
#include "screen/text_box.h"
#include "screen/window.h"

namespace corvalis {

/// The clock time: date, hour and minute, the local time offset, and the PSN strings in which the
/// Coder shows date and hour.
class CtTab {
 public:
  explicit CtTab(Window& owner);

  /// The screen opens for the first time in this run. The record gets today's date without a time
  /// and keeps that until date, hour or minute is changed; the screen shows the present time.
  void FirstOpening();
  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows and hides the buttons as the link wants it, and shows the record. Hour
  /// and minute are the screen's own.
  void Open();

  Window& window;  ///< the screen's
  Label HourMinLabel{window, "HourMinLabel"};
  Label CtOffsetLabel{window, "CtOffsetLabel"};
  Label DatePsnLabel{window, "DatePsnLabel"};
  Label HourPsnLabel{window, "HourPsnLabel"};
  Calendar Calendar1{window, "Calendar1"};
  TextBox Text1{window, "Text1"};        ///< hour and minute
  Spinner VScroll2{window, "VScroll2"};  ///< hour
  Spinner VScroll1{window, "VScroll1"};  ///< minute
  TextBox Text9{window, "Text9"};        ///< the offset in hours
  Spinner VScroll6{window, "VScroll6"};  ///< the offset, in half hours
  TextBox Text7{window, "Text7"};        ///< the PSN number of the date
  TextBox Text8{window, "Text8"};        ///< the PSN number of the hour
  Button Command1{window, "Command1"};   ///< read
  Button Command2{window, "Command2"};   ///< send

 private:
  using PsnGetter = std::int16_t (ConfigData::*)() const;
  using PsnSetter = void (ConfigData::*)(std::int16_t);

  void TakeTime(DateTime when);
  void StepTime(int hours, int minutes);
  void StepOffset(int step);
  void TakeOffset();
  static void TakePsn(TextBox& box, PsnGetter own, PsnGetter other, PsnSetter set);
  // Date, hour and minute of the screen go to the record.
  void StoreDate();

  void ShowDate();
  void ShowTime();
  void ShowOffset(const std::string& text);
  void Refresh();

  void Read();
  void Send();

  int hour_ = 0;                // 0 to 23
  int minute_ = 0;              // 0 to 59
  bool offset_edited_ = false;  // a hand has edited `Text9` since it was shown or taken
};

}  // namespace corvalis
