#include "coder/server.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <iostream>
#include <utility>

#include "coder/describe.h"
#include "coder/memory_text.h"

namespace corvalis::coder {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

constexpr milliseconds kPause{50};
constexpr int kPauseBytes = 3;  // a pause is never shorter than this many bytes
constexpr int kStartAndDataBits = 9;

}  // namespace

Server::Server(Options options, Coder coder)
    : options_(std::move(options)),
      coder_(std::move(coder)),
      line_(coder_, options_.faults),
      terminal_(std::make_unique<PseudoTerminal>(options_.link)) {
  if (options_.print) {
    coder_.Happened = [this](const Event& event) { Words() << Describe(event) << std::endl; };
  }
  PlugModem();
  if (options_.air.Wanted()) transmitter_.emplace(coder_, options_.air, std::cerr);
}

void Server::Run(int signals) {
  Announce();
  if (transmitter_) transmitter_->Begin(Clock::now());
  for (bool running = true; running;) {
    // A negative descriptor is one that poll passes over.
    std::array<pollfd, 5> polled = {{
        {signals, POLLIN, 0},
        {terminal_ ? terminal_->Descriptor() : -1, POLLIN, 0},
        {terminal_ ? terminal_->CloseDescriptor() : -1, POLLIN, 0},
        {options_.with_stdin ? STDIN_FILENO : -1, POLLIN, 0},
        {transmitter_ ? transmitter_->BusyDescriptor() : -1, POLLOUT, 0},
    }};
    timespec wait{};
    const auto due = NextDue();
    if (due) {
      const nanoseconds left = std::max<nanoseconds>(*due - Clock::now(), nanoseconds::zero());
      wait.tv_sec = static_cast<time_t>(left.count() / std::nano::den);
      wait.tv_nsec = static_cast<long>(left.count() % std::nano::den);
    }
    if (ppoll(polled.data(), polled.size(), due ? &wait : nullptr, nullptr) < 0) continue;

    const auto ready = [&polled](std::size_t at) { return polled[at].revents != 0; };
    if (ready(1)) ReadTerminal(Clock::now());
    if (ready(2)) terminal_->Closed();
    RunDue(Clock::now());
    if (ready(0)) running = HandleSignals(signals);
    if (ready(3)) {
      std::array<char, 256> ignored{};
      if (read(STDIN_FILENO, ignored.data(), ignored.size()) <= 0) running = false;
    }
    if (transmitter_) {
      transmitter_->RunDue(Clock::now());
      running = running && !transmitter_->Over();
    }
  }
  if (transmitter_) transmitter_->End();
  terminal_.reset();
  if (options_.dump) PrintMemory();
}

std::ostream& Server::Words() const {
  return options_.air.ToStandardOutput() ? std::cerr : std::cout;
}

void Server::Announce() const { Words() << "ready " << terminal_->Path() << std::endl; }

void Server::ReadTerminal(Time now) {
  const Bytes bytes = terminal_->Read();
  if (bytes.empty()) return;
  const auto settings = terminal_->CurrentSettings();
  if (!Understands(settings)) {
    if (options_.print) {
      Words() << "noise at " << settings.baud << " baud, stop bits " << settings.stop_bits << ": "
              << HexText(bytes) << std::endl;
    }
  } else if (options_.pace) {
    // The first byte of a burst needs its own time too.
    if (arriving_.empty()) last_arrival_ = std::max(last_arrival_, now);
    arriving_.insert(arriving_.end(), bytes.begin(), bytes.end());
  } else {
    Hand(bytes, now);
  }
}

// Everything whose time has come, input before the silence behind it.
void Server::RunDue(Time now) {
  while (!arriving_.empty() && last_arrival_ + ByteTime() <= now) {
    const std::uint8_t byte = arriving_.front();
    arriving_.pop_front();
    Hand({&byte, 1}, last_arrival_ + ByteTime());
  }
  if (arriving_.empty() && PauseAwaited() && last_arrival_ + PauseTime() <= now) {
    if (modem_) FollowModem(modem_->LinePause(), now);
    if (coder_.InFrame()) Schedule(line_.LinePause(), now);
  }
  if (dialled_ && *dialled_ <= now) FollowModem(modem_->DialTimeOver(), now);
  SendDue(now);
  FollowPlug(now);
}

void Server::Hand(std::span<const std::uint8_t> bytes, Time at) {
  last_arrival_ = at;
  if (modem_) {
    FollowModem(modem_->Take(bytes), at);
  } else {
    Schedule(line_.Take(bytes), at);
  }
}

void Server::FollowModem(const Modem::Outcome& outcome, Time at) {
  // What the Coder was still saying does not outlive the call, nor break into the modem's words.
  if (!CoderIsHeard() && std::erase_if(leaving_, &Departure::from_coder) > 0) {
    last_departure_ = leaving_.empty() ? at : leaving_.back().due;
  }
  if (!outcome.to_terminal.empty()) Depart(at, outcome.to_terminal, false);
  if (!outcome.to_coder.empty()) Schedule(line_.Take(outcome.to_coder), at);
  if (outcome.dropped) static_cast<void>(line_.LinePause());
  if (!modem_->Dialling()) {
    dialled_.reset();
  } else if (!dialled_) {
    dialled_ = at + milliseconds(options_.dial_ms);
  }
}

void Server::Schedule(const std::vector<Line::Answer>& answers, Time at) {
  if (!CoderIsHeard()) return;
  for (const Line::Answer& answer : answers) {
    Depart(at + std::chrono::duration_cast<Clock::duration>(
                    std::chrono::duration<double>(answer.delay_seconds)),
           answer.bytes, true);
  }
}

void Server::Depart(Time due, const Bytes& bytes, bool from_coder) {
  if (!options_.pace) {
    leaving_.push_back({due, bytes, from_coder});
    return;
  }
  for (const std::uint8_t byte : bytes) {
    last_departure_ = std::max(last_departure_, due) + ByteTime();
    leaving_.push_back({last_departure_, {byte}, from_coder});
  }
}

void Server::SendDue(Time now) {
  while (terminal_ && !leaving_.empty() && leaving_.front().due <= now) {
    terminal_->Write(leaving_.front().bytes);
    if (modem_ && leaving_.front().from_coder) modem_->CoderAnswered();
    leaving_.pop_front();
  }
}

void Server::PlugModem() {
  if (!options_.modem) return;
  dialled_.reset();
  modem_.emplace(*options_.modem);
  if (options_.print) {
    modem_->Happened = [this](const std::string& what) {
      Words() << "modem: " << what << std::endl;
    };
  }
}

void Server::FollowPlug(Time now) {
  if (terminal_ && line_.Unplugged()) {
    terminal_.reset();
    arriving_.clear();
    leaving_.clear();
    PlugModem();
    Words() << "unplugged" << std::endl;
    if (options_.replug_after_ms >= 0) replug_ = now + milliseconds(options_.replug_after_ms);
  }
  if (replug_ && *replug_ <= now) {
    replug_.reset();
    terminal_ = std::make_unique<PseudoTerminal>(options_.link);
    line_.Replug();
    Announce();
  }
}

bool Server::HandleSignals(int signals) const {
  signalfd_siginfo info{};
  if (read(signals, &info, sizeof info) != sizeof info) return true;
  if (info.ssi_signo != SIGUSR1) return false;
  if (options_.dump) PrintMemory();
  return true;
}

void Server::PrintMemory() const { Words() << MemoryText(coder_) << std::flush; }

bool Server::Understands(const PseudoTerminal::Settings& settings) const {
  return (options_.baud == 0 || options_.baud == settings.baud) &&
         (options_.stop_bits == 0 || options_.stop_bits == settings.stop_bits);
}

Server::Clock::duration Server::ByteTime() const {
  if (!terminal_) return {};
  const auto settings = terminal_->CurrentSettings();
  if (settings.baud == 0) return {};
  return std::chrono::duration_cast<Clock::duration>(
      std::chrono::duration<double>(kStartAndDataBits + settings.stop_bits) / settings.baud);
}

Server::Clock::duration Server::PauseTime() const {
  return std::max<Clock::duration>(kPause, kPauseBytes * ByteTime());
}

bool Server::PauseAwaited() const { return coder_.InFrame() || (modem_ && modem_->AwaitsPause()); }

std::optional<Server::Time> Server::NextDue() const {
  std::optional<Time> next = replug_;
  const auto consider = [&next](Time time) { next = next ? std::min(*next, time) : time; };
  if (dialled_) consider(*dialled_);
  if (const auto air = transmitter_ ? transmitter_->NextDue() : std::nullopt) consider(*air);
  if (!leaving_.empty()) consider(leaving_.front().due);
  if (!arriving_.empty()) {
    consider(last_arrival_ + ByteTime());
  } else if (terminal_ && PauseAwaited()) {
    consider(last_arrival_ + PauseTime());
  }
  return next;
}

}  // namespace corvalis::coder
