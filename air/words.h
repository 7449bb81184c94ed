#pragma once

#include <array>
#include <compare>
#include <cstdint>

namespace corvalis::air {

/// What single blocks hold, field by field. `WordOf` makes the 16 bits of it, `FromWord` takes them
/// apart. Of a value that does not fit into its field the upper bits are lost.

/// Two characters, codes of frequencies or bytes; the first one goes out first.
using BytePair = std::array<std::uint8_t, 2>;

/// The programme item number (PIN): when the programme item was to begin. Day 0 is none.
struct ItemNumber {
  int day = 0;     ///< of the month, 1 to 31
  int hour = 0;    ///< local time
  int minute = 0;  ///< 6 bits, so that more than 59 can be received

  /// The later one is the greater.
  auto operator<=>(const ItemNumber&) const = default;
};

/// Block 3 of 1A.
struct SlowLabel {
  bool la = false;  ///< linked with other programmes
  int variant = 0;  ///< 3 bits, what the content is
  int content = 0;  ///< 12 bits

  bool operator==(const SlowLabel&) const = default;

  static constexpr int kCountry = 0;   ///< the content is the extended country code (ECC), 8 bits
  static constexpr int kLanguage = 3;  ///< the content is the code of the language, 8 bits
  /// Those 8 bits.
  [[nodiscard]] constexpr int Code() const { return content & 0xFF; }
};

/// Block 3 of 3A for traffic messages, as the variant in its uppermost two bits says: the location
/// table that they refer to, and their service. Any other variant is neither.
struct TrafficTable {
  static constexpr int kVariant = 0;
  int variant = kVariant;
  int table = 0;  ///< 6 bits; 0: the service is encrypted
  bool alternative_frequency = false;
  bool enhanced = false;  ///< the mode
  bool international = false;
  bool national = false;
  bool regional = false;
  bool urban = false;

  bool operator==(const TrafficTable&) const = default;
};
struct TrafficService {
  static constexpr int kVariant = 1;
  int variant = kVariant;
  int gap = 0;      ///< 2 bits
  int service = 0;  ///< 6 bits

  bool operator==(const TrafficService&) const = default;
};

/// What 14A tells in variant 12 of a network's links.
struct Linkage {
  bool la = false;             ///< the link is active
  bool extended = false;       ///< extended generic
  bool international = false;  ///< so the upper four bits of the number are a country
  int number = 0;              ///< 12 bits, of the set of linked programmes

  bool operator==(const Linkage&) const = default;
};

/// What 14A tells in variant 13 of a network.
struct TypeAndAnnouncement {
  int pty = 0;  ///< 5 bits
  bool ta = false;

  bool operator==(const TypeAndAnnouncement&) const = default;
};

/// Of any of the structures above, of a `BytePair` and of a plain number.
template <typename Word>
[[nodiscard]] std::uint16_t WordOf(const Word& word);
template <typename Word>
[[nodiscard]] Word FromWord(std::uint16_t word);

}  // namespace corvalis::air
