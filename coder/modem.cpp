#include "coder/modem.h"

#include <algorithm>
#include <cctype>

namespace corvalis::coder {

namespace {

constexpr std::uint8_t kReturn = '\r';
constexpr std::uint8_t kLineFeed = '\n';
constexpr int kEscapePluses = 3;
constexpr std::size_t kLongestLine = 256;

constexpr std::string_view kOk = "OK";
constexpr std::string_view kError = "ERROR";
constexpr std::string_view kNoCarrier = "NO CARRIER";
constexpr std::string_view kBusy = "BUSY";
constexpr std::string_view kConnect = "CONNECT";
constexpr std::string_view kConnectSpeed = " 9600";

// Upper case without blanks.
std::string Squeezed(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c != ' ') out += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  return out;
}

std::string Printable(std::string_view text) {
  std::string out(text);
  std::ranges::replace_if(
      out, [](char c) { return c < ' ' || c > '~'; }, '.');
  return out;
}

// Takes the figure behind a command's letter; -1 for one that is neither 0 nor 1. None is 0.
int TakeFigure(std::string_view& rest) {
  std::size_t digits = 0;
  while (digits < rest.size() && rest[digits] >= '0' && rest[digits] <= '9') ++digits;
  const std::string_view figure = rest.substr(0, digits);
  rest.remove_prefix(digits);
  if (figure.empty() || figure == "0") return 0;
  return figure == "1" ? 1 : -1;
}

}  // namespace

Modem::Outcome Modem::Take(std::span<const std::uint8_t> bytes) {
  Outcome out;
  for (const std::uint8_t byte : bytes) {
    const bool ends_return = after_return_ && byte == kLineFeed;
    after_return_ = false;
    if (ends_return) continue;
    if (state_ == State::kOnline) {
      TakeData(byte, out);
    } else if (state_ == State::kDialling) {
      state_ = State::kCommand;
      Report("dial " + number_ + ", given up for a byte -> NO CARRIER");
      Say(kNoCarrier, out);
    } else {
      TakeCommandByte(byte, out);
    }
  }
  return out;
}

Modem::Outcome Modem::LinePause() {
  Outcome out;
  if (held_pluses_ == kEscapePluses) {
    held_pluses_ = 0;
    state_ = State::kCommand;
    Report("+++ -> OK");
    Say(kOk, out);
  }
  ReleasePluses(out);
  in_data_ = false;
  return out;
}

Modem::Outcome Modem::DialTimeOver() {
  Outcome out;
  if (state_ != State::kDialling) return out;
  state_ = State::kCommand;
  const bool has_number = std::ranges::any_of(number_, [](char c) { return c >= '0' && c <= '9'; });
  if (calls_ == Calls::kAnswered && has_number) {
    call_up_ = true;
    state_ = State::kOnline;
    Report("dial " + number_ + " -> CONNECT");
    Say(std::string(kConnect).append(kConnectSpeed), out);
    return out;
  }
  const std::string_view why = calls_ == Calls::kBusy && has_number ? kBusy : kNoCarrier;
  Report("dial " + number_ + " -> " + std::string(why));
  Say(why, out);
  return out;
}

void Modem::CoderAnswered() { in_data_ = false; }

void Modem::TakeData(std::uint8_t byte, Outcome& out) {
  if (byte == '+' && !in_data_ && held_pluses_ < kEscapePluses) {
    ++held_pluses_;
    return;
  }
  ReleasePluses(out);
  in_data_ = true;
  out.to_coder.push_back(byte);
}

void Modem::TakeCommandByte(std::uint8_t byte, Outcome& out) {
  if (byte == kLineFeed) return;
  if (echo_ && calls_ != Calls::kSilent) out.to_terminal.push_back(byte);
  if (byte == kReturn) {
    after_return_ = true;
    RunLine(out);
    return;
  }
  if (line_.size() == kLongestLine) line_.erase(0, 1);
  line_ += static_cast<char>(byte);
}

void Modem::RunLine(Outcome& out) {
  const std::string line = Squeezed(line_);
  const std::string shown = Printable(line_);
  line_.clear();
  const std::size_t attention = line.find("AT");
  if (attention == std::string::npos) {
    if (!shown.empty()) Report("no command: " + shown);
    return;
  }
  if (calls_ == Calls::kSilent) {
    Report(shown + " -> silence");
    return;
  }
  std::string_view rest = std::string_view(line).substr(attention + 2);
  while (!rest.empty()) {
    if (!RunCommand(rest, out)) {
      Report(shown + " -> ERROR");
      Say(kError, out);
      return;
    }
    // These two say by themselves how they end.
    if (state_ != State::kCommand) return;
  }
  Report(shown + " -> OK");
  Say(kOk, out);
}

// Runs the first command of `rest` and takes it off. False for an error.
bool Modem::RunCommand(std::string_view& rest, Outcome& out) {
  const char letter = rest.front();
  rest.remove_prefix(1);
  if (letter == 'D') {
    if (call_up_) return false;
    Dial(rest);
    return true;
  }
  const int figure = TakeFigure(rest);
  switch (letter) {
    case 'E':
      if (figure < 0) return false;
      echo_ = figure == 1;
      return true;
    case 'H':
      if (figure != 0) return false;
      DropCall(out);
      return true;
    case 'I':
      if (figure < 0) return false;
      Say("Corvalis simulated modem", out);
      return true;
    case 'O':
      if (figure != 0 || !call_up_) return false;
      state_ = State::kOnline;
      Report("back to the call -> CONNECT");
      Say(std::string(kConnect).append(kConnectSpeed), out);
      return true;
    case 'Z':
      if (figure < 0) return false;
      echo_ = true;
      DropCall(out);
      return true;
    default:
      return false;
  }
}

void Modem::Dial(std::string_view rest) {
  const bool says_how = !rest.empty() && (rest.front() == 'T' || rest.front() == 'P');
  const char how = says_how ? rest.front() : 'T';
  if (says_how) rest.remove_prefix(1);
  number_ = std::string{how, ' '} + Printable(rest);
  state_ = State::kDialling;
}

void Modem::DropCall(Outcome& out) {
  if (!call_up_) return;
  call_up_ = false;
  out.dropped = true;
  Report("call ended");
}

void Modem::ReleasePluses(Outcome& out) {
  if (held_pluses_ == 0) return;
  out.to_coder.insert(out.to_coder.end(), static_cast<std::size_t>(held_pluses_), '+');
  held_pluses_ = 0;
}

void Modem::Say(std::string_view words, Outcome& out) const {
  if (calls_ == Calls::kSilent) return;
  for (const std::string_view part : {std::string_view("\r\n"), words, std::string_view("\r\n")}) {
    out.to_terminal.insert(out.to_terminal.end(), part.begin(), part.end());
  }
}

void Modem::Report(const std::string& what) const {
  if (Happened) Happened(what);
}

}  // namespace corvalis::coder
