// The multiplex signal, heard by a small receiver that knows no more of it than the standard says.

#include "air/modulator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <iterator>
#include <numbers>
#include <random>
#include <span>
#include <vector>

#include "air/bits.h"

namespace corvalis::air {
namespace {

using std::numbers::pi;
using Complex = std::complex<double>;

constexpr double kBitSamples = Modulator::kSampleRate / 1187.5;

struct Signal {
  std::vector<Group> groups;
  std::vector<std::int16_t> samples;
};

Signal MakeSignal(int count) {
  std::mt19937 random(57);
  Signal signal;
  Modulator modulator;
  for (int i = 0; i < count; ++i) {
    Group& group = signal.groups.emplace_back();
    for (auto& block : group.blocks) block = static_cast<std::uint16_t>(random());
    modulator.Add(group, signal.samples);
  }
  modulator.End(signal.samples);
  return signal;
}

// A carrier of 57 kHz in whatever phase, symbols that begin wherever they do, each half up and half
// down or the other way round, and bits that are the differences of neighbours.
std::vector<HeardGroup> Receive(std::span<const std::int16_t> samples) {
  std::vector<Complex> sums = {0};  // of the signal brought down to 0 Hz, up to each sample
  Complex squares = 0;
  for (std::size_t n = 0; n < samples.size(); ++n) {
    const double turns = static_cast<double>(n * 19 % 64) / 64;
    const Complex mixed = static_cast<double>(samples[n]) * std::polar(1.0, -2 * pi * turns);
    squares += mixed * mixed;
    sums.push_back(sums.back() + mixed);
  }
  const Complex phase = std::polar(1.0, -std::arg(squares) / 2);
  const auto symbol = [&](double begin) {
    const auto at = [&](double n) { return sums[static_cast<std::size_t>(std::lround(n))]; };
    const double middle = begin + kBitSamples / 2;
    const Complex value = 2.0 * at(middle) - at(begin) - at(begin + kBitSamples);
    return (value * phase).real();
  };
  const auto bits = static_cast<std::size_t>(static_cast<double>(samples.size()) / kBitSamples) - 1;
  double first = 0;
  double loudest = 0;
  for (int n = 0; n < kBitSamples; ++n) {
    double loudness = 0;
    for (std::size_t i = 0; i < std::min<std::size_t>(bits, 2000); ++i) {
      loudness += std::abs(symbol(n + static_cast<double>(i) * kBitSamples));
    }
    if (loudness > loudest) first = n;
    loudest = std::max(loudest, loudness);
  }
  std::vector<HeardGroup> groups;
  GroupFinder finder;
  bool last = false;
  for (std::size_t i = 0; i < bits; ++i) {
    const bool level = symbol(first + static_cast<double>(i) * kBitSamples) > 0;
    if (const auto group = finder.Take(level != last)) groups.push_back(*group);
    last = level;
  }
  return groups;
}

TEST(Modulator, IsUnderstoodToTheLastBitAndKeepsToItsSpeed) {
  constexpr std::size_t kListens = std::size_t{12} * Modulator::kSampleRate;
  const Signal signal = MakeSignal(2375);
  // 208 seconds exactly, and the rest of the last symbols.
  const std::size_t rest = signal.samples.size() - std::size_t{208} * Modulator::kSampleRate;
  EXPECT_LT(static_cast<double>(rest), 10 * kBitSamples);
  std::vector<HeardGroup> sent;
  std::ranges::transform(signal.groups, std::back_inserter(sent), Heard);
  const std::span<const std::int16_t> samples = signal.samples;
  const auto begin = Receive(samples.first(kListens));
  ASSERT_GE(begin.size(), 136U);
  EXPECT_TRUE(std::equal(begin.begin(), begin.end(), sent.begin()));
  const auto end = Receive(samples.last(kListens));
  ASSERT_GE(end.size(), 135U);
  // Of the first group it may have missed the beginning.
  EXPECT_TRUE(std::equal(end.rbegin(), end.rend() - 1, sent.rbegin()));
}

TEST(Modulator, BeginsAndEndsWithoutAClick) {
  const auto samples = MakeSignal(3).samples;
  constexpr auto kFirst = static_cast<std::ptrdiff_t>(kBitSamples);
  constexpr int kSoft = 100;  // 50 dB below the full scale
  const auto is_soft = [](std::int16_t sample) { return std::abs(sample) < kSoft; };
  EXPECT_TRUE(std::all_of(samples.begin(), samples.begin() + kFirst, is_soft));
  EXPECT_TRUE(std::all_of(samples.end() - kFirst, samples.end(), is_soft));
  const auto [least, most] = std::ranges::minmax(samples);
  EXPECT_GT(most, 25000);
  EXPECT_LT(most, 32000);
  EXPECT_GT(least, -32000);
}

TEST(Modulator, KeepsToItsBand) {
  const auto samples = MakeSignal(8).samples;
  constexpr std::size_t kLength = 1 << 16;
  std::vector<double> windowed(kLength);
  for (std::size_t n = 0; n < kLength; ++n) {
    windowed[n] = samples[n] * (1 - std::cos(2 * pi * static_cast<double>(n) / kLength));
  }
  const auto level = [&windowed](double frequency) {
    const Complex turn = std::polar(1.0, -2 * pi * frequency / Modulator::kSampleRate);
    Complex sum = 0;
    Complex oscillator = 1;
    for (const double sample : windowed) {
      sum += sample * oscillator;
      oscillator *= turn;
    }
    return 20 * std::log10(std::abs(sum) + 1);
  };
  double inside = 0;
  for (double offset = -2300; offset <= 2300; offset += 50) {
    inside = std::max(inside, level(57000 + offset));
  }
  EXPECT_LT(level(57000), inside - 20) << "the carrier is suppressed";
  for (double offset = 2400; offset < 57000; offset += offset < 6000 ? 25 : 1000) {
    EXPECT_LT(level(57000 - offset), inside - 57) << offset;
    if (offset < 39000) {
      EXPECT_LT(level(57000 + offset), inside - 57) << offset;
    }
  }
}

}  // namespace
}  // namespace corvalis::air
