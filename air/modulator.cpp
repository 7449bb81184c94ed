#include "air/modulator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "air/bits.h"

namespace corvalis::air {

namespace {

using std::numbers::pi;

// A bit is 3072 / 19 samples: there are 19 places between two samples where a symbol can begin.
constexpr std::size_t kFractions = 19;
constexpr std::size_t kBitFractions = 3072;
// 57 kHz goes 19 times through its period in 64 samples.
constexpr std::size_t kCarrierSamples = 64;
constexpr std::size_t kCarrierTurns = 19;
// How far a symbol reaches to both sides of its middle, in bits. Its shape is endless; what is left
// off is 60 dB below it.
constexpr std::size_t kReach = 4;
constexpr std::size_t kSymbolSamples = 2 * kReach * kBitFractions / kFractions + 2;
// Symbols add up to 1.14 at the most; a tenth of the full scale is left free.
constexpr float kScale = 0.9F * 32767 / 1.14F;

// What the shaping filter, cos(pi f t / 4) up to f = 2 / t, makes of an impulse, t being the time
// of a bit; `time` is in bits from its middle.
double Impulse(double time) {
  const double below = 1 - 64 * time * time;
  return std::abs(below) < 1e-9 ? pi / 4 : std::cos(4 * pi * time) / below;
}

// An impulse up and one down, half a bit apart, and softly down to nothing in the last bit.
double Symbol(double time) {
  const double beyond = std::abs(time) - (kReach - 1.0);
  const double fade = beyond <= 0 ? 1 : beyond < 1 ? std::pow(std::cos(pi / 2 * beyond), 2) : 0;
  return fade * (Impulse(time + 0.25) - Impulse(time - 0.25));
}

using Samples = std::array<float, kSymbolSamples>;

// The symbol of a 1 for each place where it can begin.
const std::array<Samples, kFractions>& Symbols() {
  static const auto symbols = [] {
    std::array<Samples, kFractions> made{};
    for (std::size_t fraction = 0; fraction < kFractions; ++fraction) {
      for (std::size_t n = 0; n < kSymbolSamples; ++n) {
        const double since = static_cast<double>(n * kFractions) - static_cast<double>(fraction);
        made[fraction][n] =
            kScale * static_cast<float>(Symbol(since / kBitFractions - double{kReach}));
      }
    }
    return made;
  }();
  return symbols;
}

const std::array<float, kCarrierSamples>& Carrier() {
  static const auto carrier = [] {
    std::array<float, kCarrierSamples> made{};
    for (std::size_t n = 0; n < made.size(); ++n) {
      made[n] = static_cast<float>(std::sin(2 * pi * double{kCarrierTurns} *
                                            static_cast<double>(n) / double{kCarrierSamples}));
    }
    return made;
  }();
  return carrier;
}

}  // namespace

Modulator::Modulator() : ahead_(kSymbolSamples) {}

void Modulator::Add(const Group& group, std::vector<std::int16_t>& samples) {
  for (const std::uint32_t block : BlocksOf(group)) {
    for (int bit = kBlockBits - 1; bit >= 0; --bit) AddBit((block >> bit & 1U) != 0, samples);
  }
}

void Modulator::AddBit(bool bit, std::vector<std::int16_t>& samples) {
  level_ = level_ != bit;
  const Samples& symbol = Symbols()[fraction_];
  const float sign = level_ ? 1 : -1;
  for (std::size_t n = 0; n < kSymbolSamples; ++n) ahead_[n] += sign * symbol[n];
  // What lies before the next symbol is finished.
  fraction_ += kBitFractions;
  Emit(fraction_ / kFractions, samples);
  fraction_ %= kFractions;
}

void Modulator::Emit(std::size_t count, std::vector<std::int16_t>& samples) {
  const auto& carrier = Carrier();
  for (std::size_t n = 0; n < count; ++n) {
    samples.push_back(static_cast<std::int16_t>(std::lrintf(ahead_[n] * carrier[carrier_])));
    carrier_ = (carrier_ + 1) % kCarrierSamples;
  }
  const auto rest =
      std::copy(ahead_.begin() + static_cast<std::ptrdiff_t>(count), ahead_.end(), ahead_.begin());
  std::fill(rest, ahead_.end(), 0.F);
}

void Modulator::End(std::vector<std::int16_t>& samples) { Emit(kSymbolSamples, samples); }

}  // namespace corvalis::air
