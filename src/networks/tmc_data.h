#pragma once

#include <cstdint>
#include <vector>

#include "link/list_size.h"

namespace corvalis {

/// The traffic messages that the Coder broadcasts, and the system that they belong to. Messages
/// count from 0; an index outside them is `std::out_of_range`.
class TmcData {
 public:
  /// Loads itself from the file.
  TmcData();

  [[nodiscard]] std::int16_t MaxListNum() const { return size_.Count(); }

  // The system. The two numbers keep their low six bits, 0 to 63.
  [[nodiscard]] std::uint8_t Ltn() const { return ltn_; }  ///< location table number
  void SetLtn(int ltn) { ltn_ = SixBits(ltn); }
  [[nodiscard]] std::uint8_t Sid() const { return sid_; }  ///< service identifier
  void SetSid(int sid) { sid_ = SixBits(sid); }
  // The scopes of the messages.
  [[nodiscard]] bool International() const { return international_; }
  void SetInternational(bool on) { international_ = on; }
  [[nodiscard]] bool National() const { return national_; }
  void SetNational(bool on) { national_ = on; }
  [[nodiscard]] bool Regional() const { return regional_; }
  void SetRegional(bool on) { regional_ = on; }
  [[nodiscard]] bool Urban() const { return urban_; }
  void SetUrban(bool on) { urban_ = on; }

  // A message. The screen keeps to the ranges; the file and the Coder can bring more, and what is
  // sent takes the first digit or digits then.
  [[nodiscard]] std::int16_t Events(std::int16_t i) const { return At(i).events; }
  void SetEvents(std::int16_t i, std::int16_t v) { At(i).events = v; }  ///< 0 to 2047
  [[nodiscard]] std::int32_t Location(std::int16_t i) const { return At(i).location; }
  void SetLocation(std::int16_t i, std::int32_t v) { At(i).location = v; }  ///< 0 to 65535
  [[nodiscard]] std::uint8_t Duration(std::int16_t i) const { return At(i).duration; }
  void SetDuration(std::int16_t i, std::uint8_t v) { At(i).duration = v; }  ///< 0 to 7
  [[nodiscard]] bool Direction(std::int16_t i) const { return At(i).direction; }
  void SetDirection(std::int16_t i, bool v) { At(i).direction = v; }
  [[nodiscard]] std::uint8_t Extent(std::int16_t i) const { return At(i).extent; }
  void SetExtent(std::int16_t i, std::uint8_t v) { At(i).extent = v; }  ///< 0 to 7
  [[nodiscard]] bool Diversion(std::int16_t i) const { return At(i).diversion; }
  void SetDiversion(std::int16_t i, bool v) { At(i).diversion = v; }
  [[nodiscard]] std::uint8_t Repetition(std::int16_t i) const { return At(i).repetition; }
  /// 0 to 15. The Coder's A to F read as 17 to 22, and go out again as the letters they were.
  void SetRepetition(std::int16_t i, std::uint8_t v) { At(i).repetition = v; }

  /// Each reads from the Coder, or sends to it. A failed read changes nothing.
  void GetOneSystemRds();
  void SetOneSystemRds() const;
  void GetOneRds(std::int16_t i);
  void SetOneRds(std::int16_t i) const;

  /// Loads all from the file, from nothing, and as many messages as the Coder or the file says.
  void GetIni();
  void SetIni() const;

 private:
  struct TmcMessage {
    std::int16_t events = 0;
    std::int32_t location = 0;
    std::uint8_t duration = 0;
    bool direction = false;
    std::uint8_t extent = 0;
    bool diversion = false;
    std::uint8_t repetition = 0;
  };
  [[nodiscard]] const TmcMessage& At(std::int16_t i) const {
    return messages_.at(static_cast<std::size_t>(i));
  }
  [[nodiscard]] TmcMessage& At(std::int16_t i) { return messages_.at(static_cast<std::size_t>(i)); }
  static std::uint8_t SixBits(int value) { return static_cast<std::uint8_t>(value & 63); }
  void LoadSystem();

  ListSize size_;
  std::uint8_t ltn_ = 0;
  std::uint8_t sid_ = 0;
  bool international_ = false;
  bool national_ = false;
  bool regional_ = false;
  bool urban_ = false;
  std::vector<TmcMessage> messages_;
};

/// The messages; null before `MainForm` has created them.
extern TmcData* tmcData;

}  // namespace corvalis
