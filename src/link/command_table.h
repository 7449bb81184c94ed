#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace corvalis {

/// One command of the Coder. Row 0 of the table is empty.
struct Command {
  std::string_view name;
  std::int16_t code = 0;        ///< always the row's number
  std::int16_t last_index = 0;  ///< index of a frame's last byte
};

inline constexpr int kCommands = 35;

/// Codes of the commands, by the Coder's command list.
enum class CommandCode : std::uint8_t {
  kPi = 0x01,
  kTp = 0x02,
  kPsn = 0x03,
  kDi = 0x04,
  kAf = 0x05,
  kPin = 0x06,
  kRt = 0x07,
  kAddress = 0x08,
  kEnable = 0x09,
  kMaxRtNum = 0x0A,
  kMaxPinNum = 0x0B,
  kMaxAfListNum = 0x0C,
  kPty = 0x0D,
  kTa = 0x0E,
  kMs = 0x0F,
  kCt = 0x10,
  kTdc = 0x11,
  kIh = 0x12,
  kMaxIhPagesNum = 0x13,
  kMaxPsnNum = 0x14,
  kMaxEonNum = 0x15,
  kEon = 0x16,
  kPtyn = 0x17,
  kEonTa = 0x18,
  kEcc = 0x19,
  kLic = 0x1A,
  kLi = 0x1B,
  kPsnPage = 0x1C,
  kPsnPageActive = 0x1D,
  kMaxPsnPageNumber = 0x1E,
  kPsnPlan = 0x1F,
  kMaxPsnPlanNumber = 0x20,
  kTmcSystem = 0x21,
  kTmc = 0x22,
  kMaxTmcNumber = 0x23,
};

/// The last index of the short form of `kIh`.
inline constexpr std::int16_t kIhShortLastIndex = 11;

/// Fills the table. Before the first call every row is empty.
void InitCommandTable();

/// Bytes of a whole write frame of `code`, which is also the size of a read's answer. Known whether
/// the table has been filled or not.
[[nodiscard]] std::size_t FrameSize(CommandCode code);

/// The row of a code, searched from row 1; null if there is none.
[[nodiscard]] const Command* FindCommand(std::uint8_t code);

}  // namespace corvalis
