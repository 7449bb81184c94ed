#include "coder/describe.h"

#include <array>
#include <charconv>
#include <string_view>

#include "coder/commands.h"
#include "coder/errors.h"
#include "link/frame.h"

namespace corvalis::coder {

namespace {

constexpr int kSixteen = 16;

constexpr std::array<std::string_view, 12> kErrorWords = {"no error",
                                                          "checksum wrong",
                                                          "index too big",
                                                          "code unknown",
                                                          "parity wrong",
                                                          "stop bits wrong",
                                                          "byte count wrong",
                                                          "reading not allowed",
                                                          "not addressed",
                                                          "start byte unknown",
                                                          "writing this not allowed",
                                                          "address wrong"};

std::string Hex2(unsigned value) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  return {kDigits[value / kSixteen % kSixteen], kDigits[value % kSixteen]};
}

std::string Printable(const Bytes& bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += byte >= ' ' && byte <= '~' ? static_cast<char>(byte) : '.';
  }
  return text;
}

int Number(std::string_view digits, int base) {
  int value = -1;
  std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  return value;
}

std::string Decimal(std::string_view hex) { return std::to_string(Number(hex, kSixteen)); }

std::string OnOff(char flag) { return flag == '1' ? "on" : "off"; }

std::string ClockWords(const std::string& t) {
  const int offset = Number(t.substr(15, 2), 10) - 24;
  return t.substr(0, 2) + "-" + t.substr(2, 2) + "-" + t.substr(4, 2) + " weekday " + t[6] + ", " +
         t.substr(7, 2) + ":" + t.substr(9, 2) + ", date on PSN " + t.substr(11, 2) +
         ", hour on PSN " + t.substr(13, 2) + ", offset " + (offset < 0 ? "" : "+") +
         std::to_string(offset) + " half hours";
}

std::string DiWords(const std::string& text) {
  const int di = Number(text, kSixteen);
  return std::string((di & 1) != 0 ? "stereo" : "mono") +
         ((di & 2) != 0 ? ", artificial head" : "") + ((di & 4) != 0 ? ", compressed" : "") +
         ((di & 8) != 0 ? ", dynamic PTY" : ", static PTY");
}

std::string GroupName(int index) {
  return std::to_string(index % kSixteen) + (index < kSixteen ? "A" : "B");
}

// What a body says, or nothing where the body speaks for itself.
std::string Meaning(std::uint8_t command, int index, const std::string& text) {
  switch (command) {
    case kPi:
      return std::string("country ") + text[0] + ", coverage " + text[1] + ", programme " +
             text.substr(2);
    case kTp:
    case kTa:
      return OnOff(text[0]);
    case kMs:
      return text == "1" ? "music" : "speech";
    case kDi:
      return DiWords(text);
    case kEnable:
      return "group " + GroupName(index) + " " + OnOff(text[1]) + ", repetitions " +
             Decimal(text.substr(2));
    case kPty:
      return "type " + Decimal(text);
    case kCt:
      return ClockWords(text);
    case kTdc:
      return OnOff(text[0]);
    case kLi:
      return "linkage " + OnOff(text[0]) + ", extended generic " + OnOff(text[1]) +
             ", international " + OnOff(text[2]) + ", set number " + text.substr(3);
    default:
      return {};
  }
}

std::string InBrackets(const std::string& words) {
  return words.empty() ? words : " (" + words + ")";
}

}  // namespace

std::string HexText(const Bytes& bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    if (!text.empty()) text += ' ';
    text += Hex2(byte);
  }
  return text;
}

std::string Describe(const Event& event) {
  if (event.kind == Event::Kind::kEnq) return "ENQ";
  if (event.kind == Event::Kind::kRefused) {
    std::string line = "refused, error ";
    line += std::to_string(event.error);
    line += " (";
    line += kErrorWords.at(static_cast<std::size_t>(event.error));
    return line + "): " + HexText(event.received);
  }
  const Command& command = *FindCommand(event.received.at(kCommandOffset));
  const int index = event.received[kIndexOffset];
  const bool read = event.kind == Event::Kind::kRead;
  const Bytes body =
      read ? event.answered : Bytes(event.received.begin() + kBodyOffset, event.received.end() - 2);
  const std::string text = Printable(body);
  if (command.code == kAddress) {
    return std::string(index == 0 ? "Address" : "Address, new identity") + " <- \"" + text + "\"";
  }
  std::string line(command.name);
  if (command.last_index > 0) line.append(" ").append(std::to_string(index));
  line += read ? " read -> " : " <- ";
  line += text;
  return line + InBrackets(Meaning(command.code, index, text));
}

std::string Dump(const Coder& coder) {
  std::string all;
  for (const Command& command : Commands()) {
    for (int index = 0; index <= command.last_index; ++index) {
      const auto body = coder.Item(command.code, static_cast<std::uint8_t>(index));
      if (!body) continue;
      const std::string text = Printable(*body);
      all += std::string(command.name) + " " + Hex2(static_cast<unsigned>(index)) + ": " +
             HexText(*body) + InBrackets(Meaning(command.code, index, text)) + "  \"" + text +
             "\"\n";
    }
  }
  return all;
}

}  // namespace corvalis::coder
