#pragma once

#include <string>
#include <vector>

#include "air/reception.h"
#include "radio/comparison.h"

namespace corvalis::radio {

/// What a comparison came to, for people: a line each, texts in quotes, and below one that differs
/// a line of "^" under what does. UTF-8.
[[nodiscard]] std::string ReportText(const std::vector<Row>& rows);
/// The same as a table for other programs: a line of headings, values with commas between them.
[[nodiscard]] std::string ReportCsv(const std::vector<Row>& rows);
/// "41 agree, 1 differs, 3 not heard yet".
[[nodiscard]] std::string Summary(const std::vector<Row>& rows);

/// All that was heard, a line each: texts as radios show them, codes in capital hexadecimal digits,
/// frequencies as "101.3".
[[nodiscard]] std::string HeardText(const air::Reception& heard);
/// "2,731 groups, 0.4 % of the blocks missing".
[[nodiscard]] std::string HeardSummary(const air::Reception& heard);

/// Writes a report; a name that ends in ".csv" gets it as a table for other programs. Returns an
/// empty text, or why that can't be done in one sentence for people.
[[nodiscard]] std::string SaveReport(const std::vector<Row>& rows, const std::string& path);

}  // namespace corvalis::radio
