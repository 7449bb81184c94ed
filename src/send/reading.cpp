#include "send/reading.h"

#include <string>
#include <string_view>

#include "config/conversions.h"
#include "config/windows_1252.h"
#include "link/list_commands.h"
#include "link/serial_management.h"
#include "link/station_commands.h"
#include "platform/platform.h"
#include "send/station.h"
#include "send/words.h"

namespace corvalis::send {

namespace {

std::uint8_t Byte(int value) { return static_cast<std::uint8_t>(value); }

// Puts a value into the line that is read and under its name.
class Telling {
 public:
  Telling(Outcome& outcome, const Command& command) : outcome_(outcome) {
    outcome_.read = command.Named();
  }
  Telling& Word(const char* name, std::string_view word) {
    outcome_.read += " " + std::string(word);
    outcome_.values.emplace_back(name, std::string(word));
    return *this;
  }
  Telling& Number(const char* name, int number) {
    outcome_.read += " " + std::to_string(number);
    outcome_.values.emplace_back(name, number);
    return *this;
  }
  Telling& Switch(const char* name, bool on) {
    outcome_.read += on ? " on" : " off";
    outcome_.values.emplace_back(name, on);
    return *this;
  }
  // The blanks that fill an item are none of its text.
  Telling& Text(std::string_view bytes, std::size_t width) {
    bytes = bytes.substr(0, width);
    const std::string text = Utf8From1252(bytes.substr(0, bytes.find_last_not_of(' ') + 1));
    outcome_.read += " " + Quoted(text);
    outcome_.values.emplace_back("text", text);
    return *this;
  }
  void Time(int time) {
    outcome_.read += " --time";
    Number("time", time);
  }

 private:
  Outcome& outcome_;
};

void ReadText(const Command& command, Outcome& outcome) {
  std::uint8_t time = 0;
  std::string text;
  const bool radio = command.item == Item::kRt;
  if (radio) {
    ReadRt(Byte(command.number), time, text);
  } else if (command.item == Item::kPsPage || configData->PsnPagesEnable()) {
    ReadPsnPage(Byte(command.page), Byte(command.number), time, text);
  } else {
    ReadPsn(Byte(command.number), time, text);
  }
  Telling(outcome, command).Text(text, radio ? kRtCharacters : kPsnCharacters).Time(time);
}

void ReadClock(const Command& command, Outcome& outcome) {
  DateTime when = Machine().clock->Now();
  std::int16_t day = 0;
  std::int16_t date_psn = 0;
  std::int16_t hour_psn = 0;
  std::int16_t offset = 0;
  ReadCt(when, day, date_psn, hour_psn, offset);
  const auto date = std::chrono::floor<std::chrono::days>(when);
  const std::chrono::year_month_day calendar{date};
  Telling(outcome, command)
      .Word("date", Digits(static_cast<int>(calendar.year()), 4) + "-" +
                        Digits(static_cast<int>(static_cast<unsigned>(calendar.month())), 2) + "-" +
                        Digits(static_cast<int>(static_cast<unsigned>(calendar.day())), 2))
      .Word("time", TimeText(std::chrono::floor<std::chrono::minutes>(when - date)))
      .Word("offset", SignedHours(offset));
}

void ReadMessage(const Command& command, Outcome& outcome) {
  const auto number = static_cast<std::int16_t>(command.number);
  TmcData read = Station::Messages();
  read.GetOneRds(number);
  Telling(outcome, command)
      .Number("location", read.Location(number))
      .Number("event", read.Events(number))
      .Number("duration", read.Duration(number))
      .Switch("direction", read.Direction(number))
      .Number("extent", read.Extent(number))
      .Switch("diversion", read.Diversion(number))
      .Number("repetition", read.Repetition(number));
}

}  // namespace

void ReadOne(const Command& command, Outcome& outcome) {
  bool on = false;
  std::int16_t value = 0;
  std::string text;
  switch (command.item) {
    case Item::kRt:
    case Item::kPs:
    case Item::kPsPage:
      return ReadText(command, outcome);
    case Item::kPage:
      ReadPsnPageActive(value);
      Telling(outcome, command).Number("page", value);
      return;
    case Item::kTa:
      ReadTa(on);
      Telling(outcome, command).Switch("on", on);
      return;
    case Item::kTp:
      ReadTp(on);
      Telling(outcome, command).Switch("on", on);
      return;
    case Item::kEonTa:
      ReadEonTa(Byte(command.number), on);
      Telling(outcome, command).Switch("on", on);
      return;
    case Item::kMs:
      ReadMs(on);
      Telling(outcome, command).Word("programme", on ? "music" : "speech");
      return;
    case Item::kPty:
      ReadPty(value);
      Telling(outcome, command).Number("type", value);
      return;
    case Item::kPtyn:
      ReadPtyn(text, Byte(command.number));
      Telling(outcome, command).Text(text, kPtynCharacters);
      return;
    case Item::kCt:
      return ReadClock(command, outcome);
    case Item::kTmc:
      return ReadMessage(command, outcome);
    case Item::kRaw:
    case Item::kList:
      return;
  }
}

}  // namespace corvalis::send
