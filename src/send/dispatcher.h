#pragma once

#include <functional>
#include <string>

#include "send/sender.h"
#include "send/waiting.h"

namespace corvalis::send {

/// Gives the one line to many: one command at a time, TA before everything, also between the frames
/// of a longer run. While the line or the Coder fails, the newest of each item waits and is tried
/// again after 1, 2, 4 ... 60 seconds.
class Dispatcher {
 public:
  /// All of them have to outlive this.
  Dispatcher(Station& station, LineOwner& line, Sender& sender);
  ~Dispatcher();
  Dispatcher(const Dispatcher&) = delete;
  Dispatcher& operator=(const Dispatcher&) = delete;

  /// Takes a command; may be called at any time, inside a pump too. Exactly one answer comes: at
  /// once while the line is known to fail, and then the value waits all the same; a read doesn't.
  void Submit(Command command, Answered answered);

  /// Opens the line and loads what commands need of the file, so that the first one is as fast as
  /// the others.
  void Begin();
  /// Carries out all that is due. Returns when something is due again, on the steady clock;
  /// infinity if not before somebody submits.
  double Work();

  /// The service ends: what is under way is broken off, unless it is a TA, and nothing but a TA is
  /// begun any more. May be called inside a pump.
  void Stop();
  [[nodiscard]] bool Stopping() const { return stopping_; }

  /// Hears what a person who looks after the service should know; may be empty.
  std::function<void(const std::string& words)> Note;

 private:
  void Execute(Job job);
  void TaBetween();
  void Settle(Job job, Outcome outcome);
  void Fails(Outcome outcome);
  void Works();
  [[nodiscard]] bool Failing() const;

  Station& station_;
  LineOwner& line_;
  Sender& sender_;
  Waiting waiting_;
  bool under_way_ = false;
  bool ta_under_way_ = false;
  bool stopping_ = false;
  double delay_ = 0;  // seconds; 0: the line does its work
  double due_ = 0;    // of the next try, on the steady clock
  Outcome failure_;   // the last one
};

}  // namespace corvalis::send
