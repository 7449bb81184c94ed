#include "coder/air_format.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

#include "air/bits.h"
#include "air/hex_text.h"
#include "air/modulator.h"

namespace corvalis::coder {

namespace {

class TextFormat : public AirFormat {
 public:
  std::string Write(const air::Group& group) override { return air::HexLine(group) + "\n"; }
};

class BitFormat : public AirFormat {
 public:
  std::string Write(const air::Group& group) override { return air::BitText(group); }
};

// Appends the lowest bytes of a number, the lowest first.
void AppendLittleEndian(std::string& bytes, std::uint32_t number, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

constexpr std::uint64_t kHeaderBytes = 44;
// What stands for a length that is not known, as of a pipe, or has no room in the header.
constexpr std::uint64_t kEndless = std::numeric_limits<std::uint32_t>::max();

// Of a file of `size` bytes in all.
std::string WavHeader(std::uint64_t size) {
  constexpr std::uint32_t kSampleBytes = sizeof(std::int16_t);
  constexpr std::uint32_t kFormatBytes = 16;
  const auto behind = [size](std::uint64_t bytes) {
    return size > kEndless ? static_cast<std::uint32_t>(kEndless)
                           : static_cast<std::uint32_t>(size - std::min(size, bytes));
  };
  std::string header = "RIFF";
  AppendLittleEndian(header, behind(8), 4);
  header += "WAVEfmt ";
  AppendLittleEndian(header, kFormatBytes, 4);
  AppendLittleEndian(header, 1, 2);  // samples as they are
  AppendLittleEndian(header, 1, 2);  // channel
  AppendLittleEndian(header, air::Modulator::kSampleRate, 4);
  AppendLittleEndian(header, air::Modulator::kSampleRate * kSampleBytes, 4);
  AppendLittleEndian(header, kSampleBytes, 2);
  AppendLittleEndian(header, 8 * kSampleBytes, 2);
  header += "data";
  AppendLittleEndian(header, behind(kHeaderBytes), 4);
  return header;
}

class MpxFormat : public AirFormat {
 public:
  explicit MpxFormat(bool with_header) : with_header_(with_header) {}

  std::string Begin() override {
    modulator_ = air::Modulator();
    return with_header_ ? WavHeader(std::numeric_limits<std::uint64_t>::max()) : "";
  }
  std::string Write(const air::Group& group) override {
    samples_.clear();
    modulator_.Add(group, samples_);
    return Bytes();
  }
  std::string End() override {
    samples_.clear();
    modulator_.End(samples_);
    return Bytes();
  }
  [[nodiscard]] std::string Front(std::uint64_t size) const override {
    return with_header_ && size >= kHeaderBytes ? WavHeader(size) : "";
  }

 private:
  [[nodiscard]] std::string Bytes() const {
    std::string bytes(samples_.size() * sizeof(std::int16_t), '\0');
    for (std::size_t i = 0; i < samples_.size(); ++i) {
      bytes[2 * i] = static_cast<char>(samples_[i] & 0xFF);
      bytes[2 * i + 1] = static_cast<char>(samples_[i] >> 8);
    }
    return bytes;
  }

  bool with_header_;
  air::Modulator modulator_;
  std::vector<std::int16_t> samples_;
};

}  // namespace

std::unique_ptr<AirFormat> MakeTextFormat() { return std::make_unique<TextFormat>(); }
std::unique_ptr<AirFormat> MakeBitFormat() { return std::make_unique<BitFormat>(); }
std::unique_ptr<AirFormat> MakeMpxFormat(bool with_header) {
  return std::make_unique<MpxFormat>(with_header);
}

}  // namespace corvalis::coder
