#include "coder/describe.h"

#include <array>
#include <string_view>

#include "coder/commands.h"
#include "coder/meaning.h"
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

// An item's place in its list, behind its name: " 10", " 2 row 10"; nothing for a single value.
std::string Place(const Command& command, int number, std::string (*digits)(int)) {
  std::string text;
  if (command.pages != nullptr) {
    text = " " + digits(number / kPageStep);
    if (command.Marked()) return text;
    text += command.code == kIh ? " block" : " row";
  } else if (!command.IsList()) {
    return text;
  }
  return text + " " + digits(number % kPageStep);
}

std::string HexPlace(int value) {
  std::string text = Hex2(static_cast<unsigned>(value));
  if (value > 0xFF) text.insert(0, 1, Hex2(static_cast<unsigned>(value) >> 8)[1]);
  return text;
}

std::string DecimalPlace(int value) { return std::to_string(value); }

std::string InBrackets(const std::string& words) {
  return words.empty() ? words : " (" + words + ")";
}

}  // namespace

std::string Printable(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    text += byte >= ' ' && byte <= '~' ? static_cast<char>(byte) : '.';
  }
  return text;
}

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
  const Command& command = *event.command;
  const std::string text = Printable(event.body);
  if (command.code == kAddress) {
    return std::string(event.number == 0 ? "Address" : "Address, new identity") + " <- \"" + text +
           "\"";
  }
  std::string line(command.name);
  line += Place(command, event.number, DecimalPlace);
  line += event.kind == Event::Kind::kRead ? " read -> " : " <- ";
  line += text;
  return line + InBrackets(Meaning(command, event.number, text));
}

std::string ItemName(const Command& command, int number) {
  const std::string place = Place(command, number, HexPlace);
  return std::string(command.name) + (place.empty() ? " 00" : place);
}

void ForEachItem(const Counts& sizes, const std::function<void(const Command&, int)>& visit) {
  for (const Command& command : Commands()) {
    if (command.code == kAddress) continue;
    const int pages = command.pages == nullptr ? 1 : sizes.*command.pages;
    for (int page = 0; page < pages; ++page) {
      for (int place = 0; place < kPageStep; ++place) {
        const int number = page * kPageStep + place;
        if (command.Holds(number, sizes)) visit(command, number);
      }
    }
  }
}

std::string Dump(const Coder& coder) {
  std::string all;
  ForEachItem(coder.Sizes(), [&](const Command& command, int number) {
    const bool written = coder.Written(command.code, number);
    if (command.IsList() && !written) return;
    const Bytes body = *coder.Item(command.code, number);
    const std::string text = Printable(body);
    std::string words = Meaning(command, number, text);
    if (!written && command.writable)
      words += (words.empty() ? "" : ", ") + std::string(kNeverWritten);
    all += ItemName(command, number) + ": " + HexText(body) + InBrackets(words) + "  \"" + text +
           "\"\n";
  });
  return all;
}

}  // namespace corvalis::coder
