#include "programme/psn_row.h"

#include "config/conversions.h"
#include "config/ini_management.h"
#include "config/joined_values.h"
#include "link/list_commands.h"

namespace corvalis {

namespace {

std::string Key(int page, int row) { return "Psn" + Digits(page, 2) + "." + Digits(row, 2); }

void LoadByte(const char* key, std::uint8_t preset, std::uint8_t& field) {
  const std::string text = ReadIniKey(kPsnSection, key);
  if (text.empty()) {
    field = preset;
  } else {
    JoinedReader(text).Number(field);
  }
}

void StoreByte(const char* key, std::uint8_t value) {
  WriteIniKey(kPsnSection, key, Digits(value, 1));
}

}  // namespace

PsnRow LoadPsnRow(int page, int row) {
  PsnRow value;
  const std::string text = ReadIniKey(kPsnSection, Key(page, row));
  if (text.empty()) return value;
  JoinedReader(text).Number(value.rotation_time).Switch(value.active).Text(value.data);
  value.data = Padded(value.data, kPsnCharacters);
  return value;
}

void StorePsnRow(int page, int row, const PsnRow& value) {
  WriteIniKey(
      kPsnSection, Key(page, row),
      JoinedWriter().Number(value.rotation_time, 2).Switch(value.active).Text(value.data).Ended());
}

void PsnScroll::Load() {
  const PsnScroll preset;
  LoadByte("ScrollFrom", preset.from, from);
  LoadByte("ScrollTo", preset.to, to);
  LoadByte("ScrollTime", preset.time, time);
}

void PsnScroll::Store() const {
  StoreByte("ScrollFrom", from);
  StoreByte("ScrollTo", to);
  StoreByte("ScrollTime", time);
}

}  // namespace corvalis
