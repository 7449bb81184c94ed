#pragma once

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "coder/air_format.h"
#include "coder/coder.h"
#include "coder/on_air.h"
#include "coder/options.h"
#include "coder/outlet.h"

namespace corvalis::coder {

/// Puts a Coder on the air: makes each group when its time has come and writes it wherever the
/// options say. It knows no loop: it says when it wants to be called next, and never waits.
///
/// As the air does, it goes on whether anyone listens or not: a group that cannot be written is
/// dropped and counted. Only as fast as it can be, with speed 0, it waits for who reads.
class Transmitter {
 public:
  using Clock = std::chrono::steady_clock;
  using Time = Clock::time_point;

  /// `coder` has to outlive it. What goes wrong is told to `complaints`. Throws
  /// `CannotWrite` if a path cannot be.
  Transmitter(Coder& coder, const AirOptions& options, std::ostream& complaints);

  /// The first group begins now.
  void Begin(Time now);
  /// When the next group begins; nullopt if that depends on `BusyDescriptor`, or all is over.
  [[nodiscard]] std::optional<Time> NextDue() const;
  /// What is to be polled for writing before it can go on; negative: nothing.
  [[nodiscard]] int BusyDescriptor() const;
  /// Sends what is due, a few groups at the most, so that others get their turn.
  void RunDue(Time now);
  /// True when as many groups as were asked for are out.
  [[nodiscard]] bool Over() const;
  /// Gives readers a moment to take the last of it, closes the files and tells what was dropped.
  void End();

 private:
  struct Output {
    Outlet outlet;
    std::unique_ptr<AirFormat> format;
    bool has_front = false;
    std::uint64_t dropped = 0;
  };

  void Add(const std::string& path, std::unique_ptr<AirFormat> format);
  void Send(const air::Group& group);
  static void Put(Output& output, const air::Group& group);
  static void Put(Output& output, const std::string& bytes);
  void Drop(Output& output);
  [[nodiscard]] Output* FirstBusy();
  [[nodiscard]] bool AllSent() const;
  [[nodiscard]] Time StartOf(std::uint64_t group) const;

  OnAir on_air_;
  AirOptions options_;
  std::ostream& complaints_;
  std::vector<Output> outputs_;
  std::uint64_t sent_ = 0;  // groups
  Time begun_;
  Output* waited_for_ = nullptr;  // with speed 0
  Time look_again_;
};

}  // namespace corvalis::coder
