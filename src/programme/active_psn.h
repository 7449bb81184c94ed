#pragma once

#include <cstdint>
#include <string>

namespace corvalis {

/// The names that the operator works on: the current page where the Coder model has pages, the
/// plain list otherwise. It is chosen afresh at each call. Rows count from 0 to `Rows()` - 1.
class ActivePsn {
 public:
  [[nodiscard]] static std::int16_t Rows();
  [[nodiscard]] static std::string Data(int row);
  static void SetData(int row, const std::string& text);
  [[nodiscard]] static std::uint8_t RotationTime(int row);
  static void SetRotationTime(int row, std::int16_t value);
  [[nodiscard]] static bool Active(int row);
  static void SetActive(int row, bool active);

  [[nodiscard]] static std::uint8_t ScrollFrom();
  static void SetScrollFrom(std::uint8_t row);
  [[nodiscard]] static std::uint8_t ScrollTo();
  static void SetScrollTo(std::uint8_t row);
  [[nodiscard]] static std::uint8_t ScrollTime();
  static void SetScrollTime(std::uint8_t time);

  /// From and to the Coder; a failure stands in `LinkError`.
  static void GetOneRds(int row);
  static void SetOneRds(int row);
};

}  // namespace corvalis
