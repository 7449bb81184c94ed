#include "link/command_table.h"

#include <algorithm>
#include <array>

namespace corvalis {

namespace {

using Table = std::array<Command, kCommands + 1>;

/// The Coder's command list.
constexpr Table kRows = {{{},
                          {"Pi", 0x01, 8},
                          {"Tp", 0x02, 5},
                          {"Psn", 0x03, 14},
                          {"Di", 0x04, 5},
                          {"Af", 0x05, 56},
                          {"Pin", 0x06, 12},
                          {"Rt", 0x07, 70},
                          {"Address", 0x08, 9},
                          {"Enable", 0x09, 8},
                          {"MaxRtNum", 0x0A, 6},
                          {"MaxPinNum", 0x0B, 6},
                          {"MaxAfListNum", 0x0C, 6},
                          {"Pty", 0x0D, 6},
                          {"Ta", 0x0E, 5},
                          {"M/S", 0x0F, 5},
                          {"Ct", 0x10, 21},
                          {"TDC", 0x11, 13},
                          {"IH", 0x12, 135},
                          {"MaxIHPagesNum", 0x13, 7},
                          {"MaxPsnNum", 0x14, 6},
                          {"MaxEonNum", 0x15, 6},
                          {"EON", 0x16, 49},
                          {"PTYN", 0x17, 12},
                          {"EON TA", 0x18, 5},
                          {"PI ECC", 0x19, 6},
                          {"LIC", 0x1A, 6},
                          {"LI", 0x1B, 10},
                          {"PSN Page", 0x1C, 15},
                          {"PSN Page Active", 0x1D, 5},
                          {"Max PSN Page Number", 0x1E, 5},
                          {"PSN Plan", 0x1F, 24},
                          {"Max PSN Plan Number", 0x20, 6},
                          {"TMC System", 0x21, 12},
                          {"TMC", 0x22, 16},
                          {"Max TMC Number", 0x23, 6}}};

Table table;

}  // namespace

void InitCommandTable() { table = kRows; }

std::size_t FrameSize(CommandCode code) {
  return static_cast<std::size_t>(kRows.at(static_cast<std::size_t>(code)).last_index) + 1;
}

const Command* FindCommand(std::uint8_t code) {
  const auto found = std::find_if(table.begin() + 1, table.end(),
                                  [code](const Command& row) { return row.code == code; });
  return found == table.end() ? nullptr : &*found;
}

}  // namespace corvalis
