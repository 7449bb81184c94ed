#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "air/group.h"

namespace corvalis::coder {

/// A form in which groups leave the program. What it returns is written as it is.
class AirFormat {
 public:
  virtual ~AirFormat() = default;

  /// What a new reader gets before its first group; it begins anew.
  [[nodiscard]] virtual std::string Begin() { return {}; }
  [[nodiscard]] virtual std::string Write(const air::Group& group) = 0;
  /// What is left behind the last group.
  [[nodiscard]] virtual std::string End() { return {}; }
  /// What has to stand at the front of a file that has become `size` bytes long; empty: nothing
  /// new.
  [[nodiscard]] virtual std::string Front(std::uint64_t size) const {
    static_cast<void>(size);
    return {};
  }
};

/// A line of hexadecimal text a group.
[[nodiscard]] std::unique_ptr<AirFormat> MakeTextFormat();
/// "0" and "1", and nothing else.
[[nodiscard]] std::unique_ptr<AirFormat> MakeBitFormat();
/// The multiplex signal: 16 bits signed, little-endian, one channel, 192,000 samples a second; with
/// the header of a WAV file or without.
[[nodiscard]] std::unique_ptr<AirFormat> MakeMpxFormat(bool with_header);

}  // namespace corvalis::coder
