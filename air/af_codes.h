#pragma once

#include <array>
#include <cstdint>

namespace corvalis::air {

/// The arithmetic of an AF list of method A: from frequencies to the Coder's 26 code bytes and
/// back. All frequencies are 32-bit floats, FM in MHz, LF and MF in kHz, and 0 for none; what is
/// computed from them is computed in 64 bits and narrowed once.

/// The bytes of a list as a Coder holds it: the count, and 25 codes.
inline constexpr int kAfCodes = 26;
using AfCodes = std::array<std::uint8_t, kAfCodes>;

inline constexpr int kAfEntries = 25;
using AfFrequencies = std::array<float, kAfEntries>;

inline constexpr float kNoFreq = 0;
inline constexpr float kMinFreq = 87.5F;  ///< FM, MHz
inline constexpr float kMaxFreq = 107.975F;
inline constexpr float kMinLfFreq = 153;  ///< kHz
inline constexpr float kMaxLfFreq = 279;
inline constexpr float kMinMfFreq = 531;  ///< kHz
inline constexpr float kMaxMfFreq = 1602;

[[nodiscard]] constexpr bool IsFm(float value) { return value >= kMinFreq && value <= kMaxFreq; }
[[nodiscard]] constexpr bool IsLf(float value) {
  return value >= kMinLfFreq && value <= kMaxLfFreq;
}
[[nodiscard]] constexpr bool IsMf(float value) {
  return value >= kMinMfFreq && value <= kMaxMfFreq;
}

// The code bytes that both methods share. 1 to 204 are FM frequencies, 87.5 MHz + 0.1 MHz each.
inline constexpr std::uint8_t kLastFmCode = 204;
inline constexpr std::uint8_t kAfFiller = 205;
inline constexpr std::uint8_t kAfCount = 224;     ///< byte 0 of a list: this and a number
inline constexpr std::uint8_t kLfOrMfNext = 250;  ///< the next byte is a code of LF or MF
/// True for `kLfOrMfNext`, and for the bytes before a frequency between two steps of 100 kHz.
[[nodiscard]] bool IsAfPrefix(std::uint8_t code);
/// What a code byte of an FM frequency stands for, whatever its value.
[[nodiscard]] float AfCodeFreq(std::uint8_t code);
/// The code byte of an FM frequency, rounded to 0.1 MHz.
[[nodiscard]] std::uint8_t AfFreqCode(float value);
// Of LF and MF frequencies, 1 to 15 and 16 to 135, in steps of 9 kHz.
inline constexpr std::uint8_t kLastAmCode = 135;
[[nodiscard]] float AmCodeFreq(std::uint8_t code);
/// Down to the step; the frequency is one of LF or MF.
[[nodiscard]] std::uint8_t AmFreqCode(float value);

/// True if the entry takes two bytes: LF, MF, and whatever is not on the 100 kHz raster.
[[nodiscard]] bool FreqHasOffset(float value);

/// How many of the entries take two bytes.
[[nodiscard]] int AfByteCount(const AfFrequencies& list);

/// LF and MF brought down onto the 9 kHz raster; any other value as it is.
[[nodiscard]] float OnAfRaster(float value);

/// Puts the list in the order in which it takes the fewest bytes that the Coder's form allows:
/// empty entries at the end, an entry of one byte first, and pairs at even positions where a
/// neighbour of one byte can make room.
void ArrangeAfList(AfFrequencies& list);

/// The bytes that the list is sent as, in its order as it stands. What has no room is left out.
[[nodiscard]] AfCodes AfACodes(const AfFrequencies& list);

/// The list that the bytes stand for; a filler is an empty entry. The count byte is not looked at.
[[nodiscard]] AfFrequencies AfAFrequencies(const AfCodes& codes);

}  // namespace corvalis::air
