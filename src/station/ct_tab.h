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
  explicit CtTab(Window& window);

  /// The screen opens for the first time in this run. The record gets today's date without a time
  /// and keeps that until date, hour or minute is changed; the screen shows the present time.
  void FirstOpening();
  /// Takes the captions from the present language.
  void InitCaptions();
  /// The screen opens: shows and hides the buttons as the link wants it, and shows the record. Hour
  /// and minute are the screen's own.
  void Open();

  Label HourMinLabel, CtOffsetLabel, DatePsnLabel, HourPsnLabel;
  Calendar Calendar1;
  TextBox Text1;               ///< hour and minute
  Spinner VScroll2, VScroll1;  ///< hour; minute
  TextBox Text9;               ///< the offset in hours
  Spinner VScroll6;            ///< the offset, in half hours
  TextBox Text7, Text8;        ///< the PSN numbers of date and hour
  Button Command1, Command2;   ///< read; send

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

  Window& window_;
  int hour_ = 0;    // 0 to 23
  int minute_ = 0;  // 0 to 59
  std::string
      settled_offset_;  // what `Text9` said when it and the record were last brought together
};

}  // namespace corvalis
