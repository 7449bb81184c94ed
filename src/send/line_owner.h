#pragma once

#include <functional>
#include <string>

#include "send/port_in_front.h"

namespace corvalis::send {

/// The one owner of the serial line. What goes over it are whole exchanges: a frame and all that
/// the Coder answers to it; whoever writes begins the next one. So between two exchanges, and only
/// there, somebody else may have the line.
///
/// It is the port of the link, in front of the real one.
class LineOwner : public PortInFront {
 public:
  /// `port` is the real one, and has to outlive this.
  explicit LineOwner(SerialPort& port);
  ~LineOwner() override;
  LineOwner(const LineOwner&) = delete;
  LineOwner& operator=(const LineOwner&) = delete;

  /// How it stands with the line.
  enum class State {
    kReady,   ///< open, and the Coder is addressed
    kNoLine,  ///< it isn't there, or another program has it
    kFailed,  ///< the Coder does not answer, or refuses; `LinkError` says how
  };
  /// Opens the line and addresses the Coder, where that is not done: an ENQ, and the Coder ID of
  /// the record. A Coder on a one-way link is addressed each time. What fails has been reported
  /// when this returns. Nobody comes in between.
  [[nodiscard]] State MakeReady();
  /// The Coder ID goes out again. True if it was taken.
  [[nodiscard]] bool Address();
  /// What is believed of the Coder no longer holds: the next `MakeReady` begins from nothing.
  static void Doubt();
  void Close();

  /// Called before each exchange of others, whose turn comes when it returns; may be empty. What is
  /// exchanged within it goes straight on.
  std::function<void()> BeforeExchange;

  PortError Output(std::span<const std::uint8_t> bytes) override;

 private:
  // While one of these lives, exchanges belong together.
  class Together;

  int together_ = 0;
};

}  // namespace corvalis::send
