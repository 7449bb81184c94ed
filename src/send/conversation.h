#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "send/command.h"
#include "send/dispatcher.h"

namespace corvalis::send {

/// One client: bytes in, lines to the dispatcher, answers out in the order of the lines. Each line
/// that is none of blanks or a comment has one answer, which ends with "ok", "error: ..." or
/// "replaced", or "OK" or "NO" where the line was a play-out system's.
class Conversation {
 public:
  struct Manners {
    TextRules rules = {};
    bool json = false;  ///< answers are objects
    bool raw = false;   ///< frames as they stand are taken
  };
  /// `dispatcher` has to outlive this; the answers need not find it alive.
  Conversation(Dispatcher& dispatcher, Manners manners);

  /// Bytes of the client. A line that is too long is refused, and its bytes are not kept.
  void Take(std::string_view bytes);
  /// The client has said all; its last line may have no end.
  void TakeEnd();
  /// True while so many lines wait for their answers that no more should be taken.
  [[nodiscard]] bool Full() const { return state_->waiting.size() >= kMostWaiting; }
  /// True while lines wait for their answers.
  [[nodiscard]] bool Owes() const { return !state_->waiting.empty(); }
  /// The answers that can be given now; each once.
  [[nodiscard]] std::string Answers();

  /// Answers have come; called inside a pump, or from `Take`. May be empty.
  void OnAnswers(std::function<void()> ready) { state_->ready = std::move(ready); }

  static constexpr std::size_t kLongestLine = 4096;
  static constexpr std::size_t kMostWaiting = 256;

 private:
  struct Slot {
    bool answered = false;
    std::string text;
  };
  struct State {
    std::deque<std::shared_ptr<Slot>> waiting;
    std::function<void()> ready;
  };

  void TakeLines();
  void TakeLine(std::string_view line);
  void Refuse(std::string_view line, bool terse, const std::string& why);

  Dispatcher& dispatcher_;
  Manners manners_;
  std::string held_;       // of lines that have not been taken
  bool too_long_ = false;  // the rest of the present line is dropped
  bool taking_ = false;
  bool answering_ = false;
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace corvalis::send
