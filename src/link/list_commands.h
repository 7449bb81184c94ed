#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "air/af_codes.h"

namespace corvalis {

/// The commands of the Coder that carry an item of a list or a longer text, and those that ask how
/// many items it holds. As in station_commands.h, a `Send` reports its failure in a box and leaves
/// it in `LinkError`; a `Read` does the same and then leaves its outputs as they were. Indexes
/// count from 0. Texts are raw bytes; those of a fixed length are cut, or filled with blanks, on
/// the right. Nothing is range-checked, but a frame always has its length.

inline constexpr int kPsnCharacters = 8;
inline constexpr int kRtCharacters = 64;
inline constexpr int kPtynCharacters = 8;
inline constexpr int kPlanFields = 14;
inline constexpr int kEonPayload = 45;
inline constexpr int kTmcSystemPayload = 8;
inline constexpr int kTmcPayload = 12;
inline constexpr int kCoderIdCharacters = 5;
inline constexpr int kIhBlocks = 16;
inline constexpr int kIhBlockCharacters = 128;
inline constexpr int kIhCharacters = kIhBlocks * kIhBlockCharacters;

/// A programme service name. Rotation 0 to 99 in the Coder's own units; 0: not active.
void SendPsn(std::uint8_t index, std::uint8_t rotation, std::string_view text);
void ReadPsn(std::uint8_t index, std::uint8_t& rotation, std::string& text);

/// A radio text. Rotation 0 to 99.
void SendRt(std::uint8_t index, std::uint8_t rotation, std::string_view text);
void ReadRt(std::uint8_t index, std::uint8_t& rotation, std::string& text);

/// A name within a page, 0 to 15. The page of the answer is not looked at.
void SendPsnPage(std::uint8_t page, std::uint8_t index, std::uint8_t rotation,
                 std::string_view text);
void ReadPsnPage(std::uint8_t page, std::uint8_t index, std::uint8_t& rotation, std::string& text);

/// The page on the air, 0 to 15.
void SendPsnPageActive(std::uint8_t page);
void ReadPsnPageActive(std::int16_t& page);

/// A moment of the page plan: enable, hour, minute, day, month, year within its century, Monday to
/// Sunday, page. A page of 10 and above is written in hexadecimal and read digit by digit by the
/// low four bits, so that its letters don't come back.
using PlanFields = std::array<std::uint8_t, kPlanFields>;
void SendPsnPlan(std::uint8_t index, const PlanFields& fields);
void ReadPsnPlan(std::uint8_t index, PlanFields& fields);

/// A programme item: index 0 to 4095, day of the month 1 to 31 (0: none), time of the day. Writing
/// and reading a type of 16 and above don't mirror each other: the Coder's form has one digit for
/// its low byte. A time that doesn't exist reads as day 0, 00:00.
void SendPin(std::int16_t index, std::int16_t day, std::chrono::minutes time, std::int32_t type,
             bool issued);
void ReadPin(std::int16_t index, std::int16_t& day, std::chrono::minutes& time, std::int32_t& type,
             bool& issued);

/// A list of alternative frequencies in the Coder's code bytes.
void SendAf(std::uint8_t list, const air::AfCodes& codes);
void ReadAf(std::uint8_t list, air::AfCodes& codes);

/// A list of another network, and its announcement switch.
void SendEon(std::uint8_t list, std::string_view payload);
void ReadEon(std::uint8_t list, std::string& payload);
void SendEonTa(std::uint8_t list, bool on);
void ReadEonTa(std::uint8_t list, bool& on);

/// The name of a programme type, index 0 to 31. What is read is the name and the frame's end byte
/// behind it: 9 bytes, which the caller cuts.
void SendPtyn(std::string_view text, std::uint8_t index);
void ReadPtyn(std::string& text, std::uint8_t index);

void SendTmcSystem(std::string_view payload);
void ReadTmcSystem(std::string& payload);
void SendTmc(std::uint8_t index, std::string_view payload);
void ReadTmc(std::uint8_t index, std::string& payload);

/// The Coder ID, with which the Coder is addressed; or a new one for it. `AddressSent` then tells
/// whether it was accepted.
void SendAddress(std::string_view block, bool is_new);

/// An in-house page of 2048 characters, page 0 to 4095, rotation 0 to 9999, in several frames.
void SendIh(std::int16_t page, std::string_view text, std::int16_t rotation);
void ReadIh(std::int16_t page, std::string& text, std::int16_t& rotation);

/// How many items the Coder holds. The output keeps what it held if the Coder doesn't answer.
void ReadRtNum(std::int16_t& count);
void ReadPinNum(std::int16_t& count);
void ReadAfNum(std::int16_t& count);
void ReadIhNum(std::int16_t& count);  ///< asks once only
void ReadPsnNum(std::int16_t& count);
void ReadEonNum(std::int16_t& count);
void ReadPsnPageNumber(std::int16_t& count);
void ReadPsnPlanNumber(std::int16_t& count);
void ReadTmcNum(std::int16_t& count);

}  // namespace corvalis
