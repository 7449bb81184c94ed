#include "link/body.h"

#include <string>

#include "config/conversions.h"

namespace corvalis {

BodyWriter& BodyWriter::Flag(bool value) { return Byte(value ? '1' : '0'); }

BodyWriter& BodyWriter::Hex(std::int32_t value, int digits) {
  const std::string text = LongToHex(value, static_cast<std::int16_t>(digits));
  for (int i = 0; i < digits; ++i) {
    Byte(static_cast<std::uint8_t>(text[static_cast<std::size_t>(i)]));
  }
  return *this;
}

BodyWriter& BodyWriter::Dec1(std::int32_t value) {
  return Byte(static_cast<std::uint8_t>('0' + value));
}

BodyWriter& BodyWriter::Dec2(std::int32_t value) { return Dec1(value / 10).Dec1(value % 10); }

BodyWriter& BodyWriter::Raw(std::span<const std::uint8_t> bytes) {
  for (const std::uint8_t byte : bytes) Byte(byte);
  return *this;
}

BodyWriter& BodyWriter::Byte(std::uint8_t byte) {
  rest_.front() = byte;
  rest_ = rest_.subspan(1);
  return *this;
}

std::int32_t BodyReader::Hex(int digits) {
  const auto bytes = Raw(digits);
  return HexToLong(std::string(bytes.begin(), bytes.end()));
}

std::int32_t BodyReader::Dec2() {
  const std::int32_t tens = Dec1();
  return tens * 10 + Dec1();
}

std::span<const std::uint8_t> BodyReader::Raw(int bytes) {
  const auto taken = rest_.first(static_cast<std::size_t>(bytes));
  rest_ = rest_.subspan(taken.size());
  return taken;
}

}  // namespace corvalis
