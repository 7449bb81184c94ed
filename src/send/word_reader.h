#pragma once

#include <charconv>
#include <string>
#include <string_view>
#include <vector>

namespace corvalis::send {

/// Takes the words of a command one after the other. The first thing that is wrong is kept, and
/// ends the reading.
class WordReader {
 public:
  explicit WordReader(const std::vector<std::string>& words) : words_(words) {}

  [[nodiscard]] bool AtEnd() const { return at_ == words_.size(); }
  /// The next word, empty at the end; it stays the next one.
  [[nodiscard]] std::string_view Peek() const {
    return AtEnd() ? std::string_view() : std::string_view(words_[at_]);
  }
  std::string_view Next() {
    const std::string_view word = Peek();
    if (!AtEnd()) ++at_;
    return word;
  }

  /// A whole number in these limits into `number`. `what` begins the sentence that is kept else.
  bool Number(std::string_view what, int low, int high, int& number) {
    const std::string_view word = Next();
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    const bool whole = error == std::errc() && end == word.data() + word.size();
    if (!whole || value < low || value > high) {
      return Fail(std::string(what) + " is a number from " + std::to_string(low) + " to " +
                  std::to_string(high));
    }
    number = value;
    return true;
  }

  /// `yes` or `no` into `is_yes`.
  bool Either(std::string_view what, std::string_view yes, std::string_view no, bool& is_yes) {
    const std::string_view word = Next();
    if (word != yes && word != no) {
      return Fail(std::string(what) + " is " + std::string(yes) + " or " + std::string(no));
    }
    is_yes = word == yes;
    return true;
  }

  /// Keeps what is wrong; false.
  bool Fail(std::string error) {
    if (error_.empty()) error_ = std::move(error);
    return false;
  }
  [[nodiscard]] const std::string& Error() const { return error_; }

 private:
  const std::vector<std::string>& words_;
  std::size_t at_ = 0;
  std::string error_;
};

}  // namespace corvalis::send
