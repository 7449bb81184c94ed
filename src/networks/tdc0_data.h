#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace corvalis {

inline constexpr int kTdc0Bits = 20;
inline constexpr int kTdc0AddressDigits = 3;

/// The subchannels of transparent data channel 0, each with its address and a command. Subchannels
/// count from 0; an index outside them is `std::out_of_range`.
class Tdc0Data {
 public:
  /// Loads itself from the file.
  Tdc0Data();

  [[nodiscard]] static constexpr std::int16_t MaxSubChannelNum() { return kSubChannels; }

  /// -1 for letters that are no hexadecimal digits, in the file or from the Coder.
  [[nodiscard]] std::int16_t Address(std::int16_t i) const { return At(i).address; }
  void SetAddress(std::int16_t i, std::int16_t value) { At(i).address = value; }
  /// The three hexadecimal digits that go on the air, into the file and on the screen.
  [[nodiscard]] std::string AddressText(std::int16_t i) const;
  /// Always 20 characters, "0" and "1", the first bit on the left; what is set is cut, or filled
  /// with blanks.
  [[nodiscard]] const std::string& Command(std::int16_t i) const { return At(i).command; }
  void SetCommand(std::int16_t i, const std::string& text);
  [[nodiscard]] bool Active(std::int16_t i) const { return At(i).active; }
  void SetActive(std::int16_t i, bool value) { At(i).active = value; }

  /// Reads a subchannel from the Coder. A failure leaves it as it was.
  void GetOneRds(std::int16_t i);
  /// Sends a subchannel. A blank of its command goes out as "0". Subchannel 0 has the number of
  /// channel 1 of `TdcData`: the last one sent stands.
  void SendOneRds(std::int16_t i) const;

  /// Loads the subchannels from the file. A missing key gives one as it is when new; an address
  /// that has no room in 16 bits is 0.
  void GetIni();
  void SetIni() const;

 private:
  static constexpr std::int16_t kSubChannels = 100;
  struct Tdc0Record {
    std::int16_t address = 0;
    std::string command = std::string(kTdc0Bits, '0');
    bool active = false;
  };
  [[nodiscard]] const Tdc0Record& At(std::int16_t i) const {
    return records_.at(static_cast<std::size_t>(i));
  }
  [[nodiscard]] Tdc0Record& At(std::int16_t i) { return records_.at(static_cast<std::size_t>(i)); }

  std::array<Tdc0Record, kSubChannels> records_;
};

/// The subchannels; null before `MainForm` has created them.
extern Tdc0Data* tdc0Data;

}  // namespace corvalis
