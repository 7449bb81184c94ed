#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "air/reception.h"
#include "radio/entry.h"

namespace corvalis::radio {

/// How values are told, the same whether they were prepared or heard.

/// A text that we add, in the language of this moment, in UTF-8.
[[nodiscard]] std::string InWords(std::string_view english);
/// The same with values in it, in UTF-8, the first in place of "%1", and so on up to "%9".
[[nodiscard]] std::string InWords(std::string_view english,
                                  std::initializer_list<std::string> values);
/// "11.4".
[[nodiscard]] std::string OneDecimal(double value);
/// "24.11.2026 14:03 (+01.0)": local time, as radios show it.
[[nodiscard]] std::string ClockText(const air::ClockTime& clock);

[[nodiscard]] Value Plain(std::string shown);
/// Bytes of the air, as a radio shows them.
[[nodiscard]] Value TextValue(std::string bytes);
[[nodiscard]] Value OnOffValue(bool on);
/// "music" or "speech".
[[nodiscard]] Value MusicValue(bool music);
/// "5201": capital hexadecimal digits.
[[nodiscard]] Value HexValue(std::uint32_t value, int digits);
/// "10 Pop Music".
[[nodiscard]] Value PtyValue(int pty);
/// "E0", and "15 Italian".
[[nodiscard]] Value LanguageValue(int code);
/// "CC80 (25, 18:00)".
[[nodiscard]] Value ItemNumberValue(const air::ItemNumber& number);
/// "101.3", "101.325", "1458 kHz".
[[nodiscard]] Value FrequencyValue(const air::HeardFrequency& frequency);
/// "98.4 - 95.7": here, and there.
[[nodiscard]] Value PairValue(const air::FrequencyPair& pair);
/// "2A1, international": the set and what is said of it, but for whether the link is active.
[[nodiscard]] Value LinkageValue(const air::Linkage& linkage);
/// "+01.0": hours.
[[nodiscard]] Value OffsetValue(int half_hours);
/// "0A1 B29D1": address and command.
[[nodiscard]] Value SubchannelValue(std::uint32_t bits);
/// "national, regional".
[[nodiscard]] Value ScopesValue(const air::TrafficTable& table);
/// "event 101, location 1234, ...".
[[nodiscard]] Value MessageValue(const air::Group8A& message);

/// "Country A / Country B" that the PI and the ECC stand for; empty if none.
[[nodiscard]] std::string CountryOf(int pi, int ecc);

}  // namespace corvalis::radio
