#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "air/group.h"

namespace corvalis::radio {

/// Groups as hexadecimal text, read as they come: from a file, a FIFO or the standard input. It
/// never waits and never takes more than a portion, so whoever shows them stays quick however many
/// come at once.
class GroupSource {
 public:
  enum class State {
    kClosed,
    kWaiting,  ///< open, and nothing has come yet since it was, or since it came again
    kComing,
    kEnded,  ///< nothing more for now: whoever wrote is gone, or the file is at its end
    kFailed  ///< it can't be read any more; see `Failure`
  };

  GroupSource() = default;
  ~GroupSource() { Close(); }
  GroupSource(const GroupSource&) = delete;
  GroupSource& operator=(const GroupSource&) = delete;

  /// Opens a path; "-" is the standard input. What was open is closed. Returns an empty text, or
  /// why it can't be read in one sentence for people.
  [[nodiscard]] std::string Open(const std::string& path);
  void Close();

  /// Appends up to `most` groups that are there. True if there may be more to be had at once.
  /// An end is no end for good: whoever asks again gets what a FIFO's next writer, or a file that
  /// has grown or was written anew, brings.
  bool Read(std::vector<air::HeardGroup>& groups, std::size_t most = kPortion);

  /// To be polled for reading; negative where that says nothing, as of a file, or of a pipe that
  /// has ended: ask again after a while. It may be another after each `Read`.
  [[nodiscard]] int Descriptor() const {
    const bool quiet = state_ == State::kFailed || (state_ == State::kEnded && !fifo_);
    return pollable_ && !quiet ? file_ : -1;
  }
  [[nodiscard]] State Now() const { return state_; }
  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Why it failed, in words.
  [[nodiscard]] const std::string& Failure() const { return failure_; }
  /// Lines so far that hold no group.
  [[nodiscard]] std::size_t PassedOver() const { return passed_over_; }

  static constexpr std::size_t kPortion = 4096;

 private:
  bool Fill();
  void EndOfInput();
  void Fail(int error);
  bool TakeLine(std::vector<air::HeardGroup>& groups);
  void TakeLine(std::string_view line, std::vector<air::HeardGroup>& groups);
  void TakeLast(std::vector<air::HeardGroup>& groups);

  std::string path_;
  int file_ = -1;
  bool pollable_ = false;  // no plain file
  bool fifo_ = false;
  State state_ = State::kClosed;
  std::string failure_;
  std::string held_;    // read and not yet taken
  std::size_t at_ = 0;  // of it, the first that is not taken
  bool skips_ = false;  // the rest of a line says nothing
  std::size_t passed_over_ = 0;
};

}  // namespace corvalis::radio
