#include "config/joined_values.h"

#include <algorithm>

namespace corvalis {

JoinedWriter& JoinedWriter::Add(std::string_view field) {
  if (!first_) text_.append(kFieldSeparator);
  first_ = false;
  text_.append(field);
  return *this;
}

JoinedWriter& JoinedWriter::Text(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
  return Add(line);
}

std::string_view JoinedReader::Next() {
  if (!rest_) return {};
  const std::size_t end = rest_->find(kFieldSeparator);
  const std::string_view field = rest_->substr(0, end);
  if (end == std::string_view::npos) {
    rest_.reset();
  } else {
    rest_->remove_prefix(end + kFieldSeparator.size());
  }
  return field;
}

JoinedReader& JoinedReader::Text(std::string& target) {
  target = Next();
  return *this;
}

JoinedReader& JoinedReader::Real(float& target) {
  target = ParseFloat(WithoutBlanks(Next())).value_or(target);
  return *this;
}

JoinedReader& JoinedReader::Switch(bool& target) {
  target = IsOn(Next());
  return *this;
}

JoinedReader& JoinedReader::ExactSwitch(bool& target) {
  target = Next() == OnOff(true);
  return *this;
}

}  // namespace corvalis
