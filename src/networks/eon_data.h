#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "link/list_size.h"

namespace corvalis {

inline constexpr int kEonAfA = 2;           ///< frequencies by method A
inline constexpr int kEonAfB = 10;          ///< frequencies by method B
inline constexpr int kEonAm = kEonAfB - 1;  ///< the place of the LF or MF one among them

/// What receivers are told of other networks, a list for each. Lists count from 0; an index outside
/// is `std::out_of_range`.
class EonData {
 public:
  /// Loads itself from the file.
  EonData();

  [[nodiscard]] std::int16_t MaxListNum() const { return size_.Count(); }
  /// The list on the screen.
  [[nodiscard]] std::int16_t CurrentList() const { return current_; }
  /// Goes around at both ends.
  void SetCurrentList(std::int32_t list);

  /// Always 8 characters; what is set is cut, or filled with blanks.
  [[nodiscard]] const std::string& Psn(std::int16_t list) const { return At(list).psn; }
  void SetPsn(const std::string& text, std::int16_t list);
  /// Four hexadecimal digits go on the air, in the file and on the screen: 0 to 0xFFFF.
  [[nodiscard]] std::int32_t Pi(std::int16_t list) const { return At(list).pi; }
  void SetPi(std::int32_t pi, std::int16_t list) { At(list).pi = pi; }
  [[nodiscard]] std::int32_t Pin(std::int16_t list) const { return At(list).pin; }
  void SetPin(std::int32_t pin, std::int16_t list) { At(list).pin = pin; }
  /// 0 to 31; the file can bring any byte.
  [[nodiscard]] std::uint8_t Pty(std::int16_t list) const { return At(list).pty; }
  void SetPty(std::uint8_t pty, std::int16_t list) { At(list).pty = pty; }
  [[nodiscard]] bool Enable(std::int16_t list) const { return At(list).enable; }
  void SetEnable(bool enable, std::int16_t list) { At(list).enable = enable; }
  [[nodiscard]] bool Tp(std::int16_t list) const { return At(list).tp; }
  void SetTp(bool tp, std::int16_t list) { At(list).tp = tp; }
  [[nodiscard]] bool Ta(std::int16_t list) const { return At(list).ta; }
  void SetTa(bool ta, std::int16_t list) { At(list).ta = ta; }

  /// MHz, 0 for none; index 0 to 1.
  [[nodiscard]] float AfA(std::int16_t list, std::int16_t index) const {
    return At(list).af_a.at(static_cast<std::size_t>(index));
  }
  void SetAfA(float value, std::int16_t list, std::int16_t index) {
    At(list).af_a.at(static_cast<std::size_t>(index)) = value;
  }
  /// Index 0 to 8 in MHz, from 0 a main frequency and its alternative in turns; 9 the alternative
  /// on LF or MF in kHz; 0 for none.
  [[nodiscard]] float AfB(std::int16_t list, std::int16_t index) const {
    return At(list).af_b.at(static_cast<std::size_t>(index));
  }
  void SetAfB(float value, std::int16_t list, std::int16_t index) {
    At(list).af_b.at(static_cast<std::size_t>(index)) = value;
  }

  /// Reads a list from the Coder. A failure leaves it as it was.
  void GetOneRds(std::int16_t list);
  void SetOneRds(std::int16_t list) const;
  /// The same for its announcement switch alone.
  void GetTaRds(std::int16_t list);
  void SetTaRds(std::int16_t list) const;

  /// Loads the lists from the file, from nothing, as many as the Coder or the file says. List 0 is
  /// the current one then.
  void GetIni();
  void SetIni() const;

 private:
  struct EonList {
    std::int32_t pi = 0;
    std::string psn = std::string(8, ' ');
    bool tp = false;
    bool ta = false;
    bool enable = false;
    std::int32_t pin = 0;
    std::array<float, kEonAfA> af_a{};
    std::array<float, kEonAfB> af_b{};
    std::uint8_t pty = 0;
  };
  [[nodiscard]] const EonList& At(std::int16_t list) const {
    return lists_.at(static_cast<std::size_t>(list));
  }
  [[nodiscard]] EonList& At(std::int16_t list) { return lists_.at(static_cast<std::size_t>(list)); }
  static void Load(EonList& list, int number);
  static void Store(const EonList& list, int number);

  ListSize size_;
  std::int16_t current_ = 0;
  std::vector<EonList> lists_;
};

/// The lists; null before `MainForm` has created them.
extern EonData* eonData;

}  // namespace corvalis
