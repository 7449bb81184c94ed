#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "platform/clock.h"

namespace corvalis {

/// The commands of the Coder that carry one station value. A `Send` reports its failure in a box
/// and leaves it in `LinkError`; a `Read` does the same and then leaves its outputs as they were.
/// Values are not range-checked. A digit that isn't one reads as -1 where the output can hold that;
/// a narrower output keeps what it held.

/// Country and coverage 0 to 15, programme number 0 to 255.
void SendPi(std::int16_t country, std::int16_t coverage, std::int16_t program_num);
void ReadPi(std::int16_t& country, std::int16_t& coverage, std::int16_t& program_num);

void SendEcc(std::uint8_t ecc);
void ReadEcc(std::uint8_t& ecc);

void SendLic(std::uint8_t lic);
void ReadLic(std::uint8_t& lic);

/// Linkage actuator, extended generic indicator, international linkage; linkage set number 0 to
/// 0xFFF.
void SendLi(bool la, bool egi, bool il, std::int16_t lsn);
void ReadLi(bool& la, bool& egi, bool& il, std::int16_t& lsn);

/// Weekday 1 to 7 from Monday; PSN numbers 0 to 99; the offset in half hours, -24 to 24. The
/// seconds of `when` don't travel, nor does its century: 00 to 29 is 2000 to 2029, 30 to 99 is 1930
/// to 1999. An impossible date or time in the answer leaves `when` as it was.
void SendCt(DateTime when, std::int16_t day_of_week, std::int16_t date_psn, std::int16_t hour_psn,
            std::int16_t ct_offset);
void ReadCt(DateTime& when, std::int16_t& day_of_week, std::int16_t& date_psn,
            std::int16_t& hour_psn, std::int16_t& ct_offset);

void SendTp(bool tp);
void ReadTp(bool& tp);

/// Any digit but 0 reads as true, unlike `ReadTp`.
void SendTa(bool ta);
void ReadTa(bool& ta);
/// Music is true, speech false. Reads as `ReadTa` does.
void SendMs(bool music);
void ReadMs(bool& music);

/// The low four bits of `di`.
void SendDi(std::int16_t di);
void ReadDi(std::int16_t& di);

/// Programme type 0 to 31.
void SendPty(std::int16_t pty);
void ReadPty(std::int16_t& pty);

/// An entry of the group table: its position, and repetitions 0 to 255.
void SendEnable(std::uint8_t group, bool active, std::int16_t repetitions);
void ReadEnable(std::uint8_t group, bool& active, std::int16_t& repetitions);

inline constexpr int kTdcPayload = 8;
void SendTdc(std::uint8_t number, std::span<const std::uint8_t, kTdcPayload> payload, bool active);
void ReadTdc(std::uint8_t number, std::array<std::uint8_t, kTdcPayload>& payload, bool& active);

}  // namespace corvalis
