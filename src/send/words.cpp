#include "send/words.h"

namespace corvalis::send {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool EscapedInQuotes(char c) { return c == '"' || c == '\\'; }

// Goes through a line, a word at a time.
class Splitter {
 public:
  explicit Splitter(std::string_view line) : line_(line) {}

  // False at the end of the line.
  bool FindWord() {
    while (at_ < line_.size() && IsBlank(line_[at_])) ++at_;
    return at_ < line_.size() && line_[at_] != '#';
  }

  // The word here; nullopt if it doesn't end.
  std::optional<std::string> Word() {
    std::string word;
    while (at_ < line_.size() && !IsBlank(line_[at_])) {
      const char c = line_[at_++];
      if (c == '\'' || c == '"') {
        if (!Quote(c, word)) return std::nullopt;
      } else if (c == '\\') {
        if (at_ == line_.size()) return std::nullopt;
        word += line_[at_++];
      } else {
        word += c;
      }
    }
    return word;
  }

 private:
  bool Quote(char mark, std::string& word) {
    while (at_ < line_.size()) {
      const char c = line_[at_++];
      if (c == mark) return true;
      const bool escapes =
          mark == '"' && c == '\\' && at_ < line_.size() && EscapedInQuotes(line_[at_]);
      word += escapes ? line_[at_++] : c;
    }
    return false;
  }

  std::string_view line_;
  std::size_t at_ = 0;
};

}  // namespace

std::optional<std::vector<std::string>> SplitWords(std::string_view line) {
  std::vector<std::string> words;
  Splitter splitter(line);
  while (splitter.FindWord()) {
    std::optional<std::string> word = splitter.Word();
    if (!word) return std::nullopt;
    words.push_back(*std::move(word));
  }
  return words;
}

std::string Quoted(std::string_view word) {
  std::string quoted = "\"";
  for (const char c : word) {
    if (EscapedInQuotes(c)) quoted += '\\';
    quoted += c;
  }
  return quoted + "\"";
}

}  // namespace corvalis::send
