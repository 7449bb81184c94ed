#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace corvalis {

/// How far a run of frames is, as a line under the bar of the transfer screen tells it: "RT: 5 of
/// 10". To tell it costs no byte and no wait. A single frame tells nothing.

/// One loop of a run, for as long as it lives. The innermost goes through items, and one around it
/// through passes; one that has a `part` goes through the parts of an item: a text of
/// ours, with the number and the count in it.
class RunLoop {
 public:
  explicit RunLoop(int count, const char* part = nullptr);
  ~RunLoop();
  RunLoop(const RunLoop&) = delete;
  RunLoop& operator=(const RunLoop&) = delete;

  /// What is under way is number `item`, counted from 0.
  void At(int item) { item_ = item; }

 private:
  friend std::string PlaceInWords(std::string_view label);

  [[nodiscard]] std::string Words(const char* place) const;

  int item_ = 0;
  int count_;
  const char* part_;
};

/// What several loops are parts of, for as long as it lives: `words` says how far the whole is. One
/// at a time.
class RunWhole {
 public:
  explicit RunWhole(std::function<std::string()> words);
  ~RunWhole();
  RunWhole(const RunWhole&) = delete;
  RunWhole& operator=(const RunWhole&) = delete;
};

/// A frame of the kind `label` is about to go out: tells where its run is.
void TellFrame(std::string_view label);

/// The Coder wants to be addressed first: tells what is the way, and what ends the rest.
void TellAddressWanted();

}  // namespace corvalis
