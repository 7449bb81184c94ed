#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "coder/coder.h"

namespace corvalis::coder {

/// What is wrong with a line or the Coder at its end. 0 or false is: nothing. Frames and answers
/// count from 1; an ENQ and a refused frame count too.
struct Faults {
  bool silent = false;   ///< takes everything and answers nothing
  int late_ms = 0;       ///< each answer leaves this much later, in milliseconds
  int garble_every = 0;  ///< one byte of every n-th answer is falsified
  int cut_after = 0;     ///< each answer stops after n bytes
  int unplug_after = 0;  ///< with the n-th frame the line is gone, and the answer to it with it
};

/// The line between a Coder and who talks to it. It knows no clock: it says what is to arrive, and
/// how much later.
class Line {
 public:
  /// `coder` has to outlive the line.
  explicit Line(Coder& coder, Faults faults = {});

  struct Answer {
    double delay_seconds = 0;
    Bytes bytes;
  };

  /// Bytes for the Coder; what comes back, in order. An unplugged line takes nothing.
  [[nodiscard]] std::vector<Answer> Take(std::span<const std::uint8_t> bytes);
  /// The line has been silent for a while.
  [[nodiscard]] std::vector<Answer> LinePause();

  [[nodiscard]] bool Unplugged() const { return unplugged_; }
  /// The line is back, with the Coder as it was left but for a half frame; it stays this time.
  void Replug();

 private:
  void Deliver(const std::vector<Bytes>& answers, std::vector<Answer>& out);

  Coder& coder_;
  Faults faults_;
  int answers_ = 0;  // that the Coder has given, or would have
  bool unplugged_ = false;
};

}  // namespace corvalis::coder
