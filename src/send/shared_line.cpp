#include "send/shared_line.h"

#include <limits>
#include <utility>

#include "config/config_data.h"
#include "link/frame.h"
#include "link/serial_management.h"
#include "platform/platform.h"

namespace corvalis::send {

namespace {

constexpr double kPatienceSeconds = 15;  // of a program that waits for an answer
constexpr double kPauseSeconds = 1;      // nothing more comes of what is unfinished
constexpr std::size_t kEnough = 4096;
constexpr int kErrorUnaddressed = 8;
constexpr double kNever = std::numeric_limits<double>::infinity();

double Now() { return Machine().clock->Steady(); }

}  // namespace

SharedLine::SharedLine(SerialPort& port) : PortInFront(port) {
  Behind().CommEventRaised = [this] { Receive(); };
}

SharedLine::~SharedLine() { Behind().CommEventRaised = nullptr; }

bool SharedLine::Full() const { return waiting_.size() >= kEnough; }

void SharedLine::TakeFromDesktop(std::span<const std::uint8_t> bytes) {
  last_byte_ = Now();
  if (waiting_.empty()) waits_since_ = last_byte_;
  waiting_.insert(waiting_.end(), bytes.begin(), bytes.end());
  Advance();
}

void SharedLine::Advance() {
  // Writing lets events run; what they bring is seen by whoever writes.
  if (std::exchange(advancing_, true)) return;
  AdvanceDesktop();
  advancing_ = false;
  TellDue();
}

void SharedLine::AdvanceDesktop() {
  for (;;) {
    if (!Behind().PortOpen()) {
      exchange_.Break();
      actual_.reset();
    }
    if (exchange_.Look(Now())) Ended();
    if (exchange_.Running()) return;
    if (service_waits_ && favoured_ == &service_) return;
    const std::size_t size = PieceOfDesktop();
    if (size == 0) return;
    BeginForDesktop(size);
  }
}

std::size_t SharedLine::PieceOfDesktop() const {
  const std::size_t size = FirstPiece(waiting_);
  return size == 0 && Now() > last_byte_ + kPauseSeconds ? waiting_.size() : size;
}

void SharedLine::BeginForDesktop(std::size_t size) {
  if (!Behind().PortOpen() && !OpenForDesktop()) return DropWaiting();
  const auto end = waiting_.begin() + static_cast<std::ptrdiff_t>(size);
  const std::vector<std::uint8_t> piece(waiting_.begin(), end);
  if (!std::exchange(restored_, true)) {
    if (const auto before = WantedBefore(desktop_, piece); !before.empty()) {
      favoured_ = &desktop_;
      static_cast<void>(Begin(nullptr, before));
      return;
    }
  }
  restored_ = false;
  waiting_.erase(waiting_.begin(), end);
  favoured_ = &service_;
  static_cast<void>(Begin(&desktop_, piece));
}

// What brings the Coder into the addressing that a side believes in; empty if nothing has to.
std::vector<std::uint8_t> SharedLine::WantedBefore(const Side& side,
                                                   std::span<const std::uint8_t> piece) const {
  if (!side.believed || side.believed == actual_) return {};
  if (IsEnq(piece) || (IsAddress(piece) && piece[kIndexOffset] == 0)) return {};
  if (side.believed->empty()) return {kEnq};
  return *side.believed;
}

PortError SharedLine::Begin(Side* side, std::span<const std::uint8_t> piece) {
  static_cast<void>(Behind().ClearInput());
  asking_ = side;
  addressing_.clear();
  if (IsEnq(piece) || IsAddress(piece)) addressing_.assign(piece.begin(), piece.end());
  exchange_.Begin(piece, Now());
  const bool advancing = std::exchange(advancing_, true);
  PortError error = Behind().Output(piece);
  advancing_ = advancing;
  if (error) {
    exchange_.Break();
    actual_.reset();
  } else {
    exchange_.Written(Now());
  }
  return error;
}

void SharedLine::Receive() {
  if (Behind().CommEvent() != kCommEventReceive) return;
  const std::vector<std::uint8_t> bytes = Behind().Input();
  if (bytes.empty()) return;
  const bool running = exchange_.Running();
  exchange_.Take(bytes, Now());
  if (running && !exchange_.Running()) Ended();
  // Who has written more meanwhile would take this for the answer to that.
  if (asking_ == &desktop_ && waiting_.empty() && ToDesktop) ToDesktop(bytes);
  if (asking_ == &service_) {
    input_.insert(input_.end(), bytes.begin(), bytes.end());
    if (CommEventRaised) CommEventRaised();
  }
  Advance();
}

// The exchange is over.
void SharedLine::Ended() {
  using Outcome = Exchange::Outcome;
  const Outcome outcome = exchange_.HowItEnded();
  const bool lost = outcome == Outcome::kRefused && exchange_.Refusal() == kErrorUnaddressed;
  if (!addressing_.empty() || lost) TakeAddressing(outcome);
  // The desktop has given up by now, and may have told so.
  if (outcome == Outcome::kUnknown && Now() >= waits_since_ + kPatienceSeconds) DropWaiting();
}

void SharedLine::TakeAddressing(Exchange::Outcome outcome) {
  std::vector<std::uint8_t> frame = std::exchange(addressing_, {});
  const Addressing before = actual_;
  if (IsEnq(frame) || outcome == Exchange::Outcome::kRefused) {
    actual_.emplace();
  } else if (outcome == Exchange::Outcome::kAcknowledged) {
    const bool renamed = std::exchange(frame[kIndexOffset], 0) != 0;
    frame.back() = 0;
    frame.back() = FrameChecksum(frame);
    actual_ = std::move(frame);
    // A Coder with a new ID stays addressed, for both.
    for (Side* side : {&service_, &desktop_}) {
      if (renamed && side->believed && side->believed == before) side->believed = actual_;
    }
  } else {
    actual_.reset();
  }
  if (asking_ != nullptr && actual_) asking_->believed = actual_;
}

void SharedLine::DropWaiting() {
  waiting_.clear();
  restored_ = false;
}

void SharedLine::TellDue() {
  if (!Due) return;
  if (exchange_.Running()) return Due(exchange_.Due());
  Due(waiting_.empty() ? kNever : last_byte_ + kPauseSeconds);
}

bool SharedLine::OpenForDesktop() {
  return !Behind().SetCommPort(configData->CommPort()) && !Behind().SetPortOpen(true) &&
         !Behind().SetSettings(PortSettings()) && !Behind().SetInputLen(0) &&
         !Behind().SetInputMode(kInputModeBinary) && !Behind().SetRThreshold(1) &&
         !Behind().SetRTSEnable(true);
}

PortError SharedLine::SetPortOpen(bool open) {
  if (!open && Behind().PortOpen()) static_cast<void>(WaitForLine());
  PortError error = Behind().SetPortOpen(open);
  if (!open) {
    exchange_.Break();
    actual_.reset();
  }
  return error;
}

PortError SharedLine::ClearInput() {
  input_.clear();
  return {};
}

std::vector<std::uint8_t> SharedLine::Input() { return std::exchange(input_, {}); }

// The service's turn has come when this returns without an error.
PortError SharedLine::WaitForLine() {
  service_waits_ = true;
  PortError error;
  for (;;) {
    Advance();
    if (!exchange_.Running()) break;
    if (EscPressed) {
      error = {kPortNotOpen, "stopped"};
      break;
    }
    Machine().pump->RunUntil(exchange_.Due());
  }
  service_waits_ = false;
  return error;
}

PortError SharedLine::Output(std::span<const std::uint8_t> bytes) {
  if (!Behind().PortOpen()) return Behind().Output(bytes);
  if (PortError error = WaitForLine()) return error;
  if (const auto before = WantedBefore(service_, bytes); !before.empty()) {
    favoured_ = &service_;
    if (PortError error = Begin(nullptr, before)) return error;
    if (PortError error = WaitForLine()) return error;
  }
  favoured_ = &desktop_;
  PortError error = Begin(&service_, bytes);
  Advance();
  return error;
}

}  // namespace corvalis::send
