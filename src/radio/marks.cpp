#include "radio/marks.h"

#include <algorithm>
#include <string>
#include <utility>

namespace corvalis::radio {

namespace {

constexpr bool Continues(char byte) { return (byte & 0xC0) == 0x80; }

std::vector<std::string_view> Split(std::string_view utf8) {
  std::vector<std::string_view> characters;
  for (std::size_t at = 0; at < utf8.size();) {
    std::size_t end = at + 1;
    while (end < utf8.size() && Continues(utf8[end])) ++end;
    characters.push_back(utf8.substr(at, end - at));
    at = end;
  }
  return characters;
}

template <class Text>
Marks Compared(const Text& first, const Text& second) {
  Marks marks;
  if (first.size() == second.size()) {
    for (std::size_t at = 0; at < first.size(); ++at) {
      if (first[at] == second[at]) continue;
      if (!marks.first.empty() && marks.first.back().begin + marks.first.back().length == at) {
        ++marks.first.back().length;
      } else {
        marks.first.push_back({at, 1});
      }
    }
    marks.second = marks.first;
    return marks;
  }
  const std::size_t shorter = std::min(first.size(), second.size());
  std::size_t begin = 0;
  while (begin < shorter && first[begin] == second[begin]) ++begin;
  std::size_t end = 0;
  while (end < shorter - begin &&
         first[first.size() - 1 - end] == second[second.size() - 1 - end]) {
    ++end;
  }
  if (first.size() > begin + end) marks.first.push_back({begin, first.size() - begin - end});
  if (second.size() > begin + end) marks.second.push_back({begin, second.size() - begin - end});
  return marks;
}

}  // namespace

std::size_t Characters(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::ranges::count_if(utf8, [](char byte) { return !Continues(byte); }));
}

Marks MarksOfBytes(std::string_view first, std::string_view second) {
  return Compared(first, second);
}

Marks MarksOf(std::string_view first, std::string_view second) {
  return Compared(Split(first), Split(second));
}

double Likeness(std::string_view first, std::string_view second) {
  const std::size_t longer = std::max(first.size(), second.size());
  if (longer == 0) return 1;
  std::size_t same = 0;
  for (std::size_t at = 0; at < std::min(first.size(), second.size()); ++at) {
    if (first[at] == second[at]) ++same;
  }
  return static_cast<double>(same) / static_cast<double>(longer);
}

}  // namespace corvalis::radio
