#include "link/body.h"

#include <stdexcept>

#include "config/conversions.h"

namespace corvalis {

namespace {

// The first `count` bytes of what is left of a body.
template <typename T>
std::span<T> Take(std::span<T>& rest, std::size_t count) {
  if (count > rest.size()) throw std::out_of_range("beyond the end of a frame's body");
  const std::span<T> taken = rest.first(count);
  rest = rest.subspan(count);
  return taken;
}

}  // namespace

// Bytes are what both are made of.
std::span<std::uint8_t> BytesOf(std::string& text) {
  return {reinterpret_cast<std::uint8_t*>(text.data()), text.size()};
}
std::span<const std::uint8_t> BytesOf(const std::string& text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

BodyWriter& BodyWriter::Flag(bool value) { return Byte(value ? '1' : '0'); }

BodyWriter& BodyWriter::Hex(std::int32_t value, int digits) {
  return Text(HexDigits(value, digits, digits), digits);
}

BodyWriter& BodyWriter::Dec1(std::int32_t value) {
  return Byte(static_cast<std::uint8_t>('0' + value));
}

BodyWriter& BodyWriter::Dec2(std::int32_t value) { return Dec1(value / 10).Dec1(value % 10); }

BodyWriter& BodyWriter::Raw(std::span<const std::uint8_t> bytes) {
  for (const std::uint8_t byte : bytes) Byte(byte);
  return *this;
}

BodyWriter& BodyWriter::Text(std::string_view text, int width) {
  for (const char c : Padded(text, static_cast<std::size_t>(width))) {
    Byte(static_cast<std::uint8_t>(c));
  }
  return *this;
}

BodyWriter& BodyWriter::Byte(std::uint8_t byte) {
  Take(rest_, 1).front() = byte;
  return *this;
}

std::int32_t BodyReader::Hex(int digits) { return HexToLong(Text(digits)); }

std::int32_t BodyReader::Dec2() {
  const std::int32_t tens = Dec1();
  return tens * 10 + Dec1();
}

std::string BodyReader::Text(int bytes) {
  const auto raw = Raw(bytes);
  return {raw.begin(), raw.end()};
}

std::span<const std::uint8_t> BodyReader::Raw(int bytes) {
  return Take(rest_, static_cast<std::size_t>(bytes));
}

}  // namespace corvalis
