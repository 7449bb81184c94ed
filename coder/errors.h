#pragma once

namespace corvalis::coder {

/// Why a Coder refuses, 1 to 11, by the Coder's operating instructions. The number travels in the
/// error frame behind a NAK. A Coder on a pseudo-terminal never sees parity and stop bits go wrong,
/// so 4 and 5 are not used here.
enum Refusal {
  kChecksumWrong = 1,
  kIndexTooBig = 2,
  kCodeUnknown = 3,
  kParityWrong = 4,
  kStopBitsWrong = 5,
  kByteCountWrong = 6,
  kReadNotAllowed = 7,
  kNotAddressed = 8,
  kStartUnknown = 9,
  /// The command is not written at all, or not with this body: a digit out of place, a number
  /// beyond its range, a date that does not exist.
  kWriteNotAllowed = 10,
  kAddressWrong = 11,
};

}  // namespace corvalis::coder
