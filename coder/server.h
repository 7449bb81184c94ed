#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <iosfwd>
#include <memory>
#include <optional>
#include <vector>

#include "coder/coder.h"
#include "coder/line.h"
#include "coder/modem.h"
#include "coder/options.h"
#include "coder/transmitter.h"
#include "platform/pseudo_terminal.h"

namespace corvalis::coder {

/// A Coder, its line, the modem before it if there is one, and the pseudo-terminal, and the loop
/// that keeps them going. It sleeps while nothing is to be done.
class Server {
 public:
  /// `coder` is what it holds at first. Throws `std::runtime_error` if there is no terminal to be
  /// had.
  Server(Options options, Coder coder);

  /// Runs until as many groups as were asked for are on the air, until SIGINT, SIGTERM or SIGHUP
  /// comes, or the standard input closes where that was asked for. `signals` is a signal descriptor
  /// for these and SIGUSR1.
  void Run(int signals);

 private:
  using Clock = std::chrono::steady_clock;
  using Time = Clock::time_point;

  struct Departure {
    Time due;
    Bytes bytes;
    bool from_coder;
  };

  /// Where words go: the standard output, unless the air does.
  [[nodiscard]] std::ostream& Words() const;
  void Announce() const;
  void ReadTerminal(Time now);
  void RunDue(Time now);
  void Hand(std::span<const std::uint8_t> bytes, Time at);
  void FollowModem(const Modem::Outcome& outcome, Time at);
  void Schedule(const std::vector<Line::Answer>& answers, Time at);
  void Depart(Time due, const Bytes& bytes, bool from_coder);
  void PlugModem();
  void SendDue(Time now);
  void FollowPlug(Time now);
  void PrintMemory() const;
  bool HandleSignals(int signals) const;
  [[nodiscard]] bool Understands(const PseudoTerminal::Settings& settings) const;
  [[nodiscard]] Clock::duration ByteTime() const;
  [[nodiscard]] Clock::duration PauseTime() const;
  [[nodiscard]] bool PauseAwaited() const;
  [[nodiscard]] bool CoderIsHeard() const { return !modem_ || modem_->Online(); }
  [[nodiscard]] std::optional<Time> NextDue() const;

  Options options_;
  Coder coder_;
  Line line_;
  std::optional<Modem> modem_;
  std::optional<Transmitter> transmitter_;
  std::unique_ptr<PseudoTerminal> terminal_;  // null while unplugged
  std::deque<std::uint8_t> arriving_;         // on the wire, at line speed
  std::deque<Departure> leaving_;
  Time last_arrival_;  // of the last byte the Coder got
  Time last_departure_;
  std::optional<Time> dialled_;
  std::optional<Time> replug_;
};

}  // namespace corvalis::coder
