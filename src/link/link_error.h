#pragma once

#include <cstdint>
#include <string_view>

namespace corvalis {

/// Values of `LinkError`. 1 to 11 are the Coder's own numbers, as its error frame brings them.
inline constexpr std::int16_t kLinkOk = 0;
inline constexpr std::int16_t kErrorBeforeAddress = 8;
inline constexpr std::int16_t kLastCoderError = 11;
inline constexpr std::int16_t kErrorTxTimeout = 12;
inline constexpr std::int16_t kErrorUnconnected = 13;
inline constexpr std::int16_t kErrorNotAcknowledged = 14;
inline constexpr std::int16_t kErrorRxTimeout = 15;
inline constexpr std::int16_t kErrorRxChecksum = 16;
inline constexpr std::int16_t kErrorRxCode = 18;
inline constexpr std::int16_t kErrorRxLength = 21;
inline constexpr std::int16_t kErrorRxStart = 24;
inline constexpr std::int16_t kErrorAborted = 28;
inline constexpr std::int16_t kErrorUnmanaged = -1;

/// The text of the box for an error, padded with blanks as the boxes show it.
[[nodiscard]] std::string_view LinkErrorText(std::int16_t error);

/// Shows the critical box `label` ":" text for the present `LinkError`, and returns when it has
/// been answered. Shows nothing for the operator's own abort. ESC on the transfer screen meanwhile
/// is that abort: nothing more is sent.
void ReportLinkError(std::string_view label);

}  // namespace corvalis
