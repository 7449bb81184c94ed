#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace corvalis {

inline constexpr int kTdcBits = 32;

/// The transparent data channels 1 to 31, each with a command. They count from 0 here; an index
/// outside them is `std::out_of_range`.
class TdcData {
 public:
  /// Loads itself from the file.
  TdcData();

  [[nodiscard]] static constexpr std::int16_t MaxChannelNum() { return kChannels; }

  /// Always 32 characters, "0" and "1", the first bit on the left; what is set is cut, or filled
  /// with blanks.
  [[nodiscard]] const std::string& Command(std::int16_t i) const { return At(i).command; }
  void SetCommand(std::int16_t i, const std::string& text);
  [[nodiscard]] bool Active(std::int16_t i) const { return At(i).active; }
  void SetActive(std::int16_t i, bool value) { At(i).active = value; }

  /// Reads a channel from the Coder. A failure leaves a command of blanks that is not active.
  void GetOneRds(std::int16_t i);
  /// Sends a channel. A blank of its command goes out as "0".
  void SendOneRds(std::int16_t i) const;

  /// Loads the channels from the file. A missing key gives one as it is when new.
  void GetIni();
  void SetIni() const;

 private:
  static constexpr std::int16_t kChannels = 31;
  struct TdcRecord {
    std::string command = std::string(kTdcBits, '0');
    bool active = false;
  };
  [[nodiscard]] const TdcRecord& At(std::int16_t i) const {
    return records_.at(static_cast<std::size_t>(i));
  }
  [[nodiscard]] TdcRecord& At(std::int16_t i) { return records_.at(static_cast<std::size_t>(i)); }

  std::array<TdcRecord, kChannels> records_;
};

/// The hexadecimal digits that a command is sent as; what is no "1" counts as "0".
[[nodiscard]] std::string TdcDigits(std::string_view command);

/// The channels; null before `MainForm` has created them.
extern TdcData* tdcData;

}  // namespace corvalis
