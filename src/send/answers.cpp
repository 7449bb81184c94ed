#include "send/answers.h"

#include <QString>

#include "config/conversions.h"

namespace corvalis::send {

namespace {

// What is no UTF-8, as a socket may bring it, would be no JSON either.
std::string JsonString(std::string_view bytes) {
  const std::string text =
      QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size())).toStdString();
  constexpr unsigned char kFirstPrintable = 0x20;
  std::string json = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json += {'\\', c};
    } else if (byte < kFirstPrintable) {
      json += "\\u" + LongToHex(byte, 4);
    } else {
      json += c;
    }
  }
  return json + "\"";
}

std::string Json(const Outcome::Value& value) {
  if (const int* number = std::get_if<int>(&value)) return std::to_string(*number);
  if (const bool* on = std::get_if<bool>(&value)) return *on ? "true" : "false";
  return JsonString(std::get<std::string>(value));
}

}  // namespace

std::string AsJson(std::string_view line, int number, const Outcome& outcome) {
  const bool done = outcome.kind == Outcome::Kind::kDone;
  std::string json = "{\"command\":" + JsonString(line);
  if (number > 0) json += ",\"line\":" + std::to_string(number);
  json += std::string(",\"ok\":") + (done ? "true" : "false");
  if (!done) {
    json += ",\"exit\":" + std::to_string(ExitCode(outcome.kind));
    if (outcome.error != 0) json += ",\"number\":" + std::to_string(outcome.error);
    json += ",\"error\":" + JsonString(outcome.words);
  }
  for (const auto& [name, value] : outcome.values) json += ",\"" + name + "\":" + Json(value);
  return json + "}";
}

std::string AsHex(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) text += (text.empty() ? "" : " ") + LongToHex(byte, 2);
  return text;
}

}  // namespace corvalis::send
