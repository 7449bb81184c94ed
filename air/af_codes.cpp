#include "air/af_codes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvalis::air {

namespace {

constexpr std::size_t kEntries = kAfEntries;
constexpr std::size_t kLastByte = kAfCodes - 1;
constexpr std::uint8_t kLastLfCode = 15;
constexpr double kAmStep = 9;      // kHz
constexpr double kBelowLf = 144;   // kHz, one step below code 1
constexpr double kBelowMf = 522;   // the same below the first code of MF
constexpr double kFmStep = 0.1;    // MHz
constexpr double kFirstFm = 87.5;  // MHz, of code 0
constexpr double kFirstFmStep = 875;

// Frequencies between two steps of 100 kHz: a byte that says how far, and the code of the step
// below. Which offsets count as which is tested in this order.
struct Marker {
  std::uint8_t code;
  double from, to;  // MHz above the step, both included
  double first;     // MHz, of code 0
};
constexpr std::array kMarkers = {Marker{253, -0.024, 0.026, 87.525},
                                 Marker{254, -0.049, 0.051, 87.55},
                                 Marker{255, -0.074, 0.076, 87.575}};
constexpr Marker kOnRaster{0, -0.001, 0.001, kFirstFm};

auto MarkerOf(std::uint8_t code) {
  return std::find_if(kMarkers.begin(), kMarkers.end(),
                      [code](const Marker& marker) { return marker.code == code; });
}

bool Covers(const Marker& marker, float offset) {
  return offset >= marker.from && offset <= marker.to;
}

// The step of 100 kHz that a frequency stands on or above.
float StepOf(float value) {
  return static_cast<float>(std::floor(double{value} * 10 + 0.0001) / 10);
}

double AmSteps(float value, double below) { return std::floor((double{value} - below) / kAmStep); }

float FmFreq(std::uint8_t code, double first) { return static_cast<float>(code * kFmStep + first); }

}  // namespace

bool IsAfPrefix(std::uint8_t code) {
  return code == kLfOrMfNext || MarkerOf(code) != kMarkers.end();
}

float AfCodeFreq(std::uint8_t code) { return FmFreq(code, kFirstFm); }

// Rounded, as 87.6 is a little less in a float.
std::uint8_t AfFreqCode(float value) {
  return static_cast<std::uint8_t>(std::lround(double{value} * 10 - kFirstFmStep));
}

std::uint8_t AmFreqCode(float value) {
  const double code =
      IsLf(value) ? AmSteps(value, kBelowLf) : AmSteps(value, kBelowMf) + kLastLfCode;
  return static_cast<std::uint8_t>(code);
}

float AmCodeFreq(std::uint8_t code) {
  const bool lf = code >= 1 && code <= kLastLfCode;
  return static_cast<float>(lf ? code * kAmStep + kBelowLf
                               : (code - kLastLfCode) * kAmStep + kBelowMf);
}

bool FreqHasOffset(float value) { return IsLf(value) || IsMf(value) || StepOf(value) != value; }

int AfByteCount(const AfFrequencies& list) {
  return static_cast<int>(std::count_if(list.begin(), list.end(), FreqHasOffset));
}

float OnAfRaster(float value) {
  return IsLf(value) || IsMf(value) ? AmCodeFreq(AmFreqCode(value)) : value;
}

void ArrangeAfList(AfFrequencies& list) {
  for (std::size_t i = 0; i + 1 < kEntries; ++i) {
    for (std::size_t j = i + 1; j < kEntries; ++j) {
      if (list[i] == kNoFreq && list[j] != kNoFreq) std::swap(list[i], list[j]);
    }
  }
  const auto end = std::find(list.begin(), list.end(), kNoFreq);
  const auto used = static_cast<std::size_t>(end - list.begin());
  if (used == 0) return;

  const auto single = std::find_if_not(list.begin(), end, FreqHasOffset);
  if (single == end) {
    // Pairs begin at an even position behind one filler.
    if (used < kEntries) std::rotate(list.begin(), end, end + 1);
    return;
  }
  std::iter_swap(list.begin(), single);
  bool odd = false;  // an odd number of single bytes since the last pair
  for (std::size_t k = 1; k + 1 < used; ++k) {
    if (FreqHasOffset(list[k])) {
      odd = false;
      continue;
    }
    odd = !odd;
    if (odd && FreqHasOffset(list[k + 1])) {
      std::swap(list[k], list[k + 1]);
      odd = false;
    }
  }
}

AfCodes AfACodes(const AfFrequencies& list) {
  AfCodes codes;
  codes.fill(kAfFiller);
  int count = 0;
  std::size_t at = 1;
  const auto pair = [&](std::uint8_t first, std::uint8_t second) {
    codes[at] = first;
    codes[at + 1] = second;
    at += 2;
  };
  for (std::size_t i = 0; i < kEntries && at <= kLastByte;) {
    const float value = list[i];
    const float step = StepOf(value);
    const float offset = value - step;
    if (IsLf(value) || IsMf(value)) {
      if (at == kLastByte) break;  // no room for two
      pair(kLfOrMfNext, AmFreqCode(value));
      ++count;  // once: the Coder's count of these is one
      ++i;
    } else if (!IsFm(value)) {
      ++at;
      ++i;
    } else if (Covers(kOnRaster, offset)) {
      codes[at++] = AfFreqCode(step);
      ++count;
      ++i;
    } else {
      const auto marker = std::find_if(kMarkers.begin(), kMarkers.end(),
                                       [offset](const Marker& m) { return Covers(m, offset); });
      if (marker == kMarkers.end()) {
        ++i;
      } else if (at % 2 != 0) {
        ++at;  // a filler that counts, and the same entry again
        ++count;
      } else {
        pair(marker->code, AfFreqCode(step));
        count += 2;
        ++i;
      }
    }
  }
  codes[0] = static_cast<std::uint8_t>(kAfCount + count);
  return codes;
}

AfFrequencies AfAFrequencies(const AfCodes& codes) {
  AfFrequencies list{};
  std::size_t at = 1;
  for (std::size_t i = 0; i < kEntries && at <= kLastByte; ++i) {
    const std::uint8_t code = codes[at++];
    const auto marker = MarkerOf(code);
    if (!IsAfPrefix(code)) {
      list[i] = code > kLastFmCode ? kNoFreq : AfCodeFreq(code);
      continue;
    }
    if (at > kLastByte) break;  // the second byte is missing: no frequency
    const std::uint8_t next = codes[at++];
    list[i] = code == kLfOrMfNext ? AmCodeFreq(next) : FmFreq(next, marker->first);
  }
  return list;
}

}  // namespace corvalis::air
