#pragma once

#include <functional>
#include <string>

#include "send/command.h"
#include "send/kept_dialogs.h"
#include "send/line_owner.h"
#include "send/outcome.h"
#include "send/station.h"

namespace corvalis::send {

/// Carries commands out, one after the other, over the same operations as the screens of the
/// program.
class Sender {
 public:
  /// All of them have to outlive this. With `dry`, nothing is to be read.
  Sender(Station& station, LineOwner& line, KeptDialogs& dialogs, bool dry)
      : station_(station), line_(line), dialogs_(dialogs), dry_(dry) {}

  /// Makes the line ready, sends or reads, and returns when all is answered. A refusal for want of
  /// an address is met with one, once. A TA that does not go off is tried three times.
  [[nodiscard]] Outcome Send(const Command& command);
  /// The same within another command's run, between two of its exchanges: once, over the line as it
  /// is.
  [[nodiscard]] Outcome SendBetween(const Command& command);

  /// Opens the line and addresses the Coder, so that the next command need not.
  [[nodiscard]] Outcome MakeReady();

  /// Hears what a person should know while a command takes long; may be empty.
  std::function<void(const std::string& words)> Note;

 private:
  [[nodiscard]] std::string Impossible(const Command& command) const;
  [[nodiscard]] Outcome Try(const Command& command);
  [[nodiscard]] Outcome Failure(Outcome::Kind kind);
  [[nodiscard]] Outcome RunAddressed(const Command& command);
  void Run(const Command& command, Outcome& outcome);
  void Write(const Command& command);
  void SendLists(const Command& command);
  void ReadLists(Outcome& outcome);

  Station& station_;
  LineOwner& line_;
  KeptDialogs& dialogs_;
  bool dry_;
};

}  // namespace corvalis::send
