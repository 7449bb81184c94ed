#include "coder/modem.h"

#include <algorithm>
#include <utility>

namespace corvalis::coder {

namespace {

constexpr std::uint8_t kReturn = '\r';
constexpr std::uint8_t kLineFeed = '\n';
constexpr int kEscapePluses = 3;
constexpr std::size_t kLongestLine = 256;

constexpr std::string_view kAttention = "AT";
constexpr std::string_view kHangUp = "H0";
constexpr std::string_view kOk = "OK";
constexpr std::string_view kError = "ERROR";
constexpr std::string_view kNoCarrier = "NO CARRIER";
constexpr std::string_view kBusy = "BUSY";
constexpr std::string_view kConnect = "CONNECT 9600";

std::string Printable(std::string_view text) {
  std::string out(text);
  std::ranges::replace_if(
      out, [](char c) { return c < ' ' || c > '~'; }, '.');
  return out;
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
    Say(kConnect, out);
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
  if (calls_ != Calls::kSilent) out.to_terminal.push_back(byte);
  if (byte == kReturn) {
    after_return_ = true;
    RunLine(out);
    return;
  }
  if (line_.size() == kLongestLine) line_.erase(0, 1);
  line_ += static_cast<char>(byte);
}

void Modem::RunLine(Outcome& out) {
  const std::string line = std::exchange(line_, {});
  const std::string shown = Printable(line);
  const std::size_t attention = line.find(kAttention);
  if (attention == std::string::npos) {
    if (!shown.empty()) Report("no command: " + shown);
    return;
  }
  if (calls_ == Calls::kSilent) {
    Report(shown + " -> silence");
    return;
  }
  const std::string command = line.substr(attention + kAttention.size());
  const bool dials = command.starts_with("DT") || command.starts_with("DP");
  if (dials && !call_up_) {
    // Says by itself how it ends.
    number_ = std::string{command[1], ' '} + Printable(command.substr(2));
    state_ = State::kDialling;
    return;
  }
  const bool known = command.empty() || command == kHangUp;
  if (command == kHangUp) DropCall(out);
  const std::string_view answer = known ? kOk : kError;
  Report(shown + " -> " + std::string(answer));
  Say(answer, out);
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
