#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "coder/coder.h"

namespace corvalis::coder {

/// A simulated AT modem between who talks to the Coder and the Coder, with the Coder's own modem at
/// the far end of the telephone line taken for granted. Like the line it knows no clock: it is told
/// of bytes, of silence and of the end of its dial time, and says what is to be passed on.
///
/// It starts in the command state, and echoes there. A command line is "AT", one command, and CR;
/// LF is passed over, and so is what stands before the "AT". It answers in words between CR LF. Its
/// commands: nothing at all, H0 (hang up), DT or DP and a number (dial). Any other is an ERROR, and
/// so is dialling with a call up.
///
/// It is set up with a guard time of 0: "+++" needs no silence before it to lead from the call back
/// to the command state. To be told from data, it has to begin what is being sent, so it stands
/// behind a pause or behind an answer of the Coder, and a pause has to follow. A "+++" inside a
/// frame is data. The call stays up when a program closes the port.
class Modem {
 public:
  /// What becomes of a call.
  enum class Calls {
    kAnswered,  ///< "CONNECT 9600"
    kBusy,      ///< "BUSY"
    kRefused,   ///< "NO CARRIER"
    kSilent,    ///< nothing; a modem without power, which says nothing to anything, with no echo
  };

  explicit Modem(Calls calls = Calls::kAnswered) : calls_(calls) {}

  /// What is to be passed on, the words before the data.
  struct Outcome {
    Bytes to_terminal = {};  ///< echo and words
    Bytes to_coder = {};     ///< data, over the call
    bool dropped = false;    ///< the call has ended: for the Coder the line is silent from here
  };

  /// Bytes from the terminal, in any portions.
  [[nodiscard]] Outcome Take(std::span<const std::uint8_t> bytes);
  /// The terminal has been silent for a while.
  [[nodiscard]] Outcome LinePause();
  /// The dial time is over.
  [[nodiscard]] Outcome DialTimeOver();
  /// The Coder has answered over the call, so what is sent next is something new.
  void CoderAnswered();

  /// True while bytes go to and from the Coder.
  [[nodiscard]] bool Online() const { return state_ == State::kOnline; }
  /// True while a number is being dialled, so while `DialTimeOver` is to come. A byte ends it.
  [[nodiscard]] bool Dialling() const { return state_ == State::kDialling; }
  /// True while `LinePause` would change something.
  [[nodiscard]] bool AwaitsPause() const { return held_pluses_ > 0 || in_data_; }

  /// Called with what happened, in words: "dial T 800,12345678 -> CONNECT".
  std::function<void(const std::string&)> Happened;

 private:
  enum class State { kCommand, kDialling, kOnline };

  void TakeData(std::uint8_t byte, Outcome& out);
  void TakeCommandByte(std::uint8_t byte, Outcome& out);
  void RunLine(Outcome& out);
  void DropCall(Outcome& out);
  void ReleasePluses(Outcome& out);
  void Say(std::string_view words, Outcome& out) const;
  void Report(const std::string& what) const;

  Calls calls_;
  State state_ = State::kCommand;
  bool call_up_ = false;
  bool after_return_ = false;  // the LF of the last command line may be still to come
  std::string line_;           // of commands, so far
  std::string number_;         // being dialled, behind "T " or "P "
  int held_pluses_ = 0;        // that may become the escape, not yet passed on
  bool in_data_ = false;       // other data has come since the last pause or answer
};

}  // namespace corvalis::coder
