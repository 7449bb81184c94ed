#include "coder/commands.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "coder/errors.h"

namespace corvalis::coder {

namespace {

using Body = std::span<const std::uint8_t>;

bool IsDigitTo(char last, std::uint8_t byte) { return byte >= '0' && byte <= last; }

bool Fits(char place, std::uint8_t byte) {
  switch (place) {
    case 'B':
      return IsDigitTo('1', byte);
    case 'Q':
      return IsDigitTo('3', byte);
    case 'O':
      return IsDigitTo('7', byte);
    case 'D':
      return IsDigitTo('9', byte);
    case 'P':
      return IsDigitTo('?', byte);
    case 'H':
      return IsDigitTo('9', byte) || (byte >= 'A' && byte <= 'F');
    case '*':
      return true;
    default:
      return byte == static_cast<std::uint8_t>(place);
  }
}

// Of a place that fits. A page digit goes on behind "9" as the characters do.
int Digit(char place, std::uint8_t byte) {
  return place == 'H' && byte >= 'A' ? byte - 'A' + 10 : byte - '0';
}

char DigitText(char place, int digit) {
  return static_cast<char>(place == 'H' && digit > 9 ? 'A' + digit - 10 : '0' + digit);
}

int TwoHex(Body body, std::size_t at) {
  return Digit('H', body[at]) * 16 + Digit('H', body[at + 1]);
}

int TwoDecimal(Body body, std::size_t at) {
  return Digit('D', body[at]) * 10 + Digit('D', body[at + 1]);
}

// Of two digits of a year: the leap years are the same in the last century.
bool DateExists(int year, int month, int day) {
  return std::chrono::year_month_day{std::chrono::year(2000 + year),
                                     std::chrono::month(static_cast<unsigned>(month)),
                                     std::chrono::day(static_cast<unsigned>(day))}
      .ok();
}

bool TimeExists(int hour, int minute) { return hour <= 23 && minute <= 59; }

int Unless(bool fits) { return fits ? 0 : kWriteNotAllowed; }

// Year, month, day, weekday from Monday 1, hour, minute, the numbers of the two strings that carry
// date and hour, and the local offset in half hours plus 24.
int JudgeClockTime(Body body, const Counts&) {
  return Unless(DateExists(TwoDecimal(body, 0), TwoDecimal(body, 2), TwoDecimal(body, 4)) &&
                body[6] >= '1' && body[6] <= '7' &&
                TimeExists(TwoDecimal(body, 7), TwoDecimal(body, 9)) && TwoDecimal(body, 15) <= 48);
}

int JudgeRepetitions(Body body, const Counts&) { return Unless(TwoHex(body, 2) <= 99); }

// A count byte, or the filler where the whole list is filler.
int JudgeFrequencies(Body body, const Counts&) {
  constexpr int kFiller = 205;
  constexpr int kNone = 224;
  constexpr int kMost = 25;
  const int count = TwoHex(body, 0);
  if (count >= kNone && count <= kNone + kMost) return 0;
  for (std::size_t at = 0; at < body.size(); at += 2) {
    if (TwoHex(body, at) != kFiller) return kWriteNotAllowed;
  }
  return 0;
}

int JudgePageNumber(Body body, const Counts& counts) {
  return Digit('P', body[0]) < counts.page ? 0 : kIndexTooBig;
}

// Enabled, hour, minute, day (0: by weekday), month, year, Monday to Sunday, page.
int JudgePlan(Body body, const Counts&) {
  const int day = TwoDecimal(body, 5);
  return Unless(TimeExists(TwoDecimal(body, 1), TwoDecimal(body, 3)) &&
                (day == 0 || DateExists(TwoDecimal(body, 9), TwoDecimal(body, 7), day)));
}

constexpr Command Count(std::uint8_t code, std::string_view name, std::size_t digits,
                        int Counts::*tells) {
  return {.code = code, .name = name, .body_bytes = digits, .writable = false, .tells = tells};
}

constexpr std::array kCommands = {
    Command{.code = kPi, .name = "PI", .body_bytes = 4, .pattern = "HHHH", .factory = "1000"},
    Command{.code = kTp, .name = "TP", .body_bytes = 1, .pattern = "B", .factory = "0"},
    Command{.code = kPsn,
            .name = "PSN",
            .body_bytes = 10,
            .pattern = "DD",
            .factory = "00",
            .count = &Counts::psn},
    Command{.code = kDi, .name = "DI", .body_bytes = 1, .pattern = "H", .factory = "1"},
    Command{.code = kAf,
            .name = "AF",
            .body_bytes = 52,
            .pattern = "HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH",
            .factory = "E0CDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCDCD",
            .count = &Counts::af,
            .rule = JudgeFrequencies},
    Command{.code = kPin,
            .name = "PIN",
            .body_bytes = 8,
            .pattern = "HBHHHHHH",
            .factory = "0000000",
            .count = &Counts::pin,
            .request = "H"},
    Command{.code = kRt,
            .name = "RT",
            .body_bytes = 66,
            .pattern = "DD",
            .factory = "00",
            .count = &Counts::rt},
    Command{.code = kAddress, .name = "Address", .body_bytes = 5, .items = 2, .readable = false},
    Command{.code = kEnable,
            .name = "Enable",
            .body_bytes = 4,
            .pattern = "0BHH",
            .factory = "0000",
            .items = 32,
            .rule = JudgeRepetitions},
    Count(kRtCount, "RT count", 2, &Counts::rt),
    Count(kPinCount, "PIN count", 2, &Counts::pin),
    Count(kAfCount, "AF count", 2, &Counts::af),
    Command{.code = kPty, .name = "PTY", .body_bytes = 2, .pattern = "BH", .factory = "00"},
    Command{.code = kTa, .name = "TA", .body_bytes = 1, .pattern = "B", .factory = "0"},
    Command{.code = kMs, .name = "M/S", .body_bytes = 1, .pattern = "B", .factory = "1"},
    Command{.code = kCt,
            .name = "CT",
            .body_bytes = 17,
            .pattern = "DDDDDDDDDDDDDDDDD",
            .factory = "00010160000080924",
            .rule = JudgeClockTime},
    // 0 to 30 are the channels 1 to 31, 32 to 130 the subchannels of channel 0.
    Command{.code = kTdc,
            .name = "TDC",
            .body_bytes = 9,
            .pattern = "B",
            .factory = "000000000",
            .items = 131},
    Command{.code = kIh,
            .name = "IH",
            .body_bytes = 131,
            .pattern = "HHH",
            .items = kIhEnd,
            .pages = &Counts::ih,
            .request = "HHH"},
    Command{.code = kIh,
            .name = "IH end",
            .body_bytes = 7,
            .pattern = "HHHDDDD",
            .factory = "0000",
            .pages = &Counts::ih,
            .request = "HHH    "},
    Count(kIhCount, "IH count", 3, &Counts::ih),
    Count(kPsnCount, "PSN count", 2, &Counts::psn),
    Count(kEonCount, "EON count", 2, &Counts::eon),
    // Name, TP, TA, PTY, PIN, 2 + 9 codes of FM and 1 of LF or MF frequencies, PI, enabled.
    Command{.code = kEon,
            .name = "EON",
            .body_bytes = 45,
            .pattern = "********BBHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHB",
            .factory = "        00000000CDCDCDCDCDCDCDCDCDCDCD0000000",
            .count = &Counts::eon},
    Command{.code = kPtyn, .name = "PTYN", .body_bytes = 8, .items = 32},
    Command{.code = kEonTa,
            .name = "EON TA",
            .body_bytes = 1,
            .pattern = "B",
            .count = &Counts::eon,
            .part_of = kEon,
            .part_at = 9},
    Command{.code = kEcc, .name = "ECC", .body_bytes = 2, .pattern = "HH", .factory = "E0"},
    Command{.code = kLic, .name = "LIC", .body_bytes = 2, .pattern = "HH", .factory = "00"},
    Command{.code = kLi, .name = "LI", .body_bytes = 6, .pattern = "BBBHHH", .factory = "000000"},
    Command{.code = kPsnPage,
            .name = "PSN page",
            .body_bytes = 11,
            .pattern = "PDD",
            .factory = "00",
            .count = &Counts::psn,
            .pages = &Counts::page,
            .request = "P"},
    Command{.code = kPsnPageActive,
            .name = "PSN active page",
            .body_bytes = 1,
            .pattern = "P",
            .factory = "0",
            .rule = JudgePageNumber},
    Count(kPsnPageCount, "PSN page count", 1, &Counts::page),
    Command{.code = kPsnPlan,
            .name = "PSN plan",
            .body_bytes = 20,
            .pattern = "BDDDDDDDDDDBBBBBBBHH",
            .factory = "00000000000000000000",
            .count = &Counts::plan,
            .rule = JudgePlan},
    Count(kPsnPlanCount, "PSN plan count", 2, &Counts::plan),
    // Location table and service, then the scopes international, national, regional and urban.
    Command{.code = kTmcSystem,
            .name = "TMC system",
            .body_bytes = 8,
            .pattern = "QHQHBBBB",
            .factory = "00000000"},
    // Event, location, direction, extent, diversion, duration, repetition.
    Command{.code = kTmc,
            .name = "TMC",
            .body_bytes = 12,
            .pattern = "OHHHHHHBOBOH",
            .factory = "000000000000",
            .count = &Counts::tmc},
    Count(kTmcCount, "TMC count", 2, &Counts::tmc),
};

}  // namespace

int Command::Judge(Body body, bool read, const Counts& counts) const {
  const std::string_view places = read ? request : pattern;
  const int refusal = read ? kReadNotAllowed : kWriteNotAllowed;
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (!Fits(places[i], body[i])) return refusal;
  }
  return read || rule == nullptr ? 0 : rule(body, counts);
}

std::optional<int> Command::Number(std::uint8_t index, Body body) const {
  int pages_before = 0;
  for (std::size_t i = 0; i < request.size() && request[i] != ' '; ++i) {
    if (!Fits(request[i], body[i])) return std::nullopt;
    pages_before = pages_before * 16 + Digit(request[i], body[i]);
  }
  // Of a marker, both values mean the one end of a page.
  const int place = Marked() && index > 0 ? kIhEnd + index - 1 : Marked() ? kIhEnd : index;
  return pages_before * kPageStep + place;
}

bool Command::Holds(int number, const Counts& counts) const {
  if (number < 0) return false;
  if (pages == nullptr) return number < (count == nullptr ? items : counts.*count);
  if (number / kPageStep >= counts.*pages) return false;
  const int place = number % kPageStep;
  if (Marked()) return place == kIhEnd;
  return place < (count == nullptr ? items : counts.*count);
}

std::vector<std::uint8_t> Command::Factory(int number) const {
  const std::size_t digits = std::min(request.find(' '), request.size());
  std::vector<std::uint8_t> body(digits);
  int rest = number / kPageStep;
  for (std::size_t i = digits; i-- > 0; rest /= 16) {
    body[i] = static_cast<std::uint8_t>(DigitText(request[i], rest % 16));
  }
  body.insert(body.end(), factory.begin(), factory.end());
  // Group 0A carries the basics of every station, so a Coder leaves the factory sending it.
  if (code == kEnable && number == 0) body[1] = body[3] = '1';
  body.resize(body_bytes, ' ');
  return body;
}

std::span<const Command> Commands() { return kCommands; }

const Command* FindItem(std::uint8_t code, int number, const Counts& counts) {
  const auto* const found = std::ranges::find_if(kCommands, [&](const Command& command) {
    return command.code == code && command.Holds(number, counts);
  });
  return found == kCommands.end() ? nullptr : found;
}

}  // namespace corvalis::coder
