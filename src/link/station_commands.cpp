#include "link/station_commands.h"

#include <algorithm>
#include <string_view>

#include "config/conversions.h"
#include "link/catalogue.h"

namespace corvalis {

namespace {

constexpr int kCtOffsetShift = 24;  // the offset travels shifted, so that it is never negative

void SendByte(CommandCode code, std::string_view label, std::uint8_t value) {
  SendItem(code, 0, label, [&](BodyWriter& body) { body.Hex(value, 2); });
}

void ReadByte(CommandCode code, std::string_view label, std::uint8_t& value) {
  ReadItem(code, 0, label,
           [&](BodyReader& body) { value = Narrow<std::uint8_t>(body.Hex(2)).value_or(value); });
}

void SendSwitch(CommandCode code, std::string_view label, bool on) {
  SendItem(code, 0, label, [&](BodyWriter& body) { body.Flag(on); });
}

// The on-air switches take any digit but 0 as true.
void ReadSwitch(CommandCode code, std::string_view label, bool& on) {
  ReadItem(code, 0, label, [&](BodyReader& body) { on = body.Dec1() != 0; });
}

}  // namespace

void SendPi(std::int16_t country, std::int16_t coverage, std::int16_t program_num) {
  SendItem(CommandCode::kPi, 0, "PI",
           [&](BodyWriter& body) { body.Hex(country, 1).Hex(coverage, 1).Hex(program_num, 2); });
}

void ReadPi(std::int16_t& country, std::int16_t& coverage, std::int16_t& program_num) {
  ReadItem(CommandCode::kPi, 0, "PI", [&](BodyReader& body) {
    country = Short(body.Hex(1));
    coverage = Short(body.Hex(1));
    program_num = Short(body.Hex(2));
  });
}

void SendEcc(std::uint8_t ecc) { SendByte(CommandCode::kEcc, "ECC", ecc); }
void ReadEcc(std::uint8_t& ecc) { ReadByte(CommandCode::kEcc, "ECC", ecc); }

void SendLic(std::uint8_t lic) { SendByte(CommandCode::kLic, "LIC", lic); }
void ReadLic(std::uint8_t& lic) { ReadByte(CommandCode::kLic, "LIC", lic); }

void SendLi(bool la, bool egi, bool il, std::int16_t lsn) {
  SendItem(CommandCode::kLi, 0, "LI",
           [&](BodyWriter& body) { body.Flag(la).Flag(egi).Flag(il).Hex(lsn, 3); });
}

void ReadLi(bool& la, bool& egi, bool& il, std::int16_t& lsn) {
  ReadItem(CommandCode::kLi, 0, "LI", [&](BodyReader& body) {
    la = body.Flag();
    egi = body.Flag();
    il = body.Flag();
    lsn = Short(body.Hex(3));
  });
}

void SendCt(DateTime when, std::int16_t day_of_week, std::int16_t date_psn, std::int16_t hour_psn,
            std::int16_t ct_offset) {
  const auto day = std::chrono::floor<std::chrono::days>(when);
  const std::chrono::year_month_day date{day};
  const std::chrono::hh_mm_ss time{when - day};
  SendItem(CommandCode::kCt, 0, "CT", [&](BodyWriter& body) {
    body.Dec2(static_cast<int>(date.year()) % 100)
        .Dec2(static_cast<int>(static_cast<unsigned>(date.month())))
        .Dec2(static_cast<int>(static_cast<unsigned>(date.day())))
        .Dec1(day_of_week)
        .Dec2(static_cast<int>(time.hours().count()))
        .Dec2(static_cast<int>(time.minutes().count()))
        .Dec2(date_psn)
        .Dec2(hour_psn)
        .Dec2(ct_offset + kCtOffsetShift);
  });
}

void ReadCt(DateTime& when, std::int16_t& day_of_week, std::int16_t& date_psn,
            std::int16_t& hour_psn, std::int16_t& ct_offset) {
  ReadItem(CommandCode::kCt, 0, "CT", [&](BodyReader& body) {
    const int short_year = body.Dec2();
    const int month = body.Dec2();
    const int day = body.Dec2();
    day_of_week = Short(body.Dec1());
    const int hour = body.Dec2();
    const int minute = body.Dec2();
    date_psn = Short(body.Dec2());
    hour_psn = Short(body.Dec2());
    ct_offset = Short(body.Dec2() - kCtOffsetShift);

    const auto in = [](int value, int low, int high) { return value >= low && value <= high; };
    if (!in(short_year, 0, 99) || !in(month, 1, 12) || !in(day, 1, 31) || !in(hour, 0, 23) ||
        !in(minute, 0, 59)) {
      return;
    }
    const std::chrono::year_month_day date{
        std::chrono::year(short_year + (short_year < 30 ? 2000 : 1900)),
        std::chrono::month(static_cast<unsigned>(month)),
        std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok()) return;
    when = std::chrono::local_days{date} + std::chrono::hours(hour) + std::chrono::minutes(minute);
  });
}

void SendTp(bool tp) { SendSwitch(CommandCode::kTp, "TP", tp); }
void ReadTp(bool& tp) {
  ReadItem(CommandCode::kTp, 0, "TP", [&](BodyReader& body) { tp = body.Flag(); });
}

void SendTa(bool ta) { SendSwitch(CommandCode::kTa, "TA", ta); }
void ReadTa(bool& ta) { ReadSwitch(CommandCode::kTa, "TA", ta); }

void SendMs(bool music) { SendSwitch(CommandCode::kMs, "MS", music); }
void ReadMs(bool& music) { ReadSwitch(CommandCode::kMs, "MS", music); }

void SendDi(std::int16_t di) {
  SendItem(CommandCode::kDi, 0, "DI", [&](BodyWriter& body) { body.Hex(di & 15, 1); });
}
void ReadDi(std::int16_t& di) {
  ReadItem(CommandCode::kDi, 0, "DI", [&](BodyReader& body) { di = Short(body.Hex(1)); });
}

void SendPty(std::int16_t pty) {
  SendItem(CommandCode::kPty, 0, "PTY",
           [&](BodyWriter& body) { body.Hex(pty / 16, 1).Hex(pty % 16, 1); });
}
void ReadPty(std::int16_t& pty) {
  ReadItem(CommandCode::kPty, 0, "PTY", [&](BodyReader& body) { pty = Short(body.Hex(2)); });
}

void SendEnable(std::uint8_t group, bool active, std::int16_t repetitions) {
  SendItem(CommandCode::kEnable, group, "Enable", [&](BodyWriter& body) {
    body.Byte('0').Flag(active).Hex(repetitions / 16, 1).Hex(repetitions % 16, 1);
  });
}
void ReadEnable(std::uint8_t group, bool& active, std::int16_t& repetitions) {
  ReadItem(CommandCode::kEnable, group, "Enable", [&](BodyReader& body) {
    body.Byte();
    active = body.Flag();
    repetitions = Short(body.Hex(2));
  });
}

void SendTdc(std::uint8_t number, std::span<const std::uint8_t, kTdcPayload> payload, bool active) {
  SendItem(CommandCode::kTdc, number, "TDC",
           [&](BodyWriter& body) { body.Flag(active).Raw(payload); });
}
void ReadTdc(std::uint8_t number, std::array<std::uint8_t, kTdcPayload>& payload, bool& active) {
  ReadItem(CommandCode::kTdc, number, "TDC", [&](BodyReader& body) {
    active = body.Flag();
    const auto bytes = body.Raw(kTdcPayload);
    std::copy(bytes.begin(), bytes.end(), payload.begin());
  });
}

}  // namespace corvalis
