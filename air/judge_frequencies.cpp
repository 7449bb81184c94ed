#include "air/judge_frequencies.h"

#include <algorithm>

#include "air/af_codes.h"
#include "air/formatted.h"

namespace corvalis::air {

namespace {

// The next code is a frequency that many steps of 25 kHz above its own.
constexpr std::uint8_t kFirstOffset = 253;
constexpr std::uint8_t kSteps25[] = {1, 2, 3};

std::string Megahertz(std::uint8_t step_code, std::uint8_t offset_code) {
  const int kilohertz = 87500 + 100 * step_code + 25 * kSteps25[offset_code - kFirstOffset];
  return Formatted("%d.%03d MHz", kilohertz / 1000, kilohertz % 1000);
}

}  // namespace

ReadList Read(const StationFacts::FrequencyList& list) {
  ReadList read;
  const auto& codes = list.codes;
  if (codes.empty()) return read;
  read.counted = std::max(0, codes[0] - kAfCount);
  for (std::size_t at = 1; at < codes.size(); ++at) {
    const std::uint8_t code = codes[at];
    const bool has_next = at + 1 < codes.size();
    if (code == kAfFiller) continue;
    if (code == kLfOrMfNext && has_next) {
      ++read.frequencies;
      ++at;
    } else if (code >= kFirstOffset && has_next) {
      ++read.frequencies;
      ++at;
      if (!read.off_raster) read.off_raster = Megahertz(codes[at], code);
    } else if (code == 0) {
      ++read.frequencies;
      read.first_code = true;
    } else if (code <= kLastFmCode) {
      ++read.frequencies;
    } else if (!read.unassigned) {
      read.unassigned = code;
    }
  }
  if (codes.size() < 2 || codes[1] == kAfFiller) return read;
  for (std::size_t at = 2; at + 1 < codes.size(); at += 2) {
    // What goes with a mark stands for itself alone.
    const auto pair = {codes[at - 1], codes[at], codes[at + 1]};
    if (std::ranges::any_of(pair, [](auto code) { return code >= kLfOrMfNext; })) continue;
    if (codes[at] == kAfFiller && codes[at + 1] == kAfFiller) continue;
    (codes[at] == codes[1] || codes[at + 1] == codes[1] ? read.pairs : read.other_pairs) += 1;
  }
  return read;
}

}  // namespace corvalis::air
