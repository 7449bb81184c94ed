#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace corvalis::radio {

/// A part of a text, in characters.
struct Span {
  std::size_t begin = 0;
  std::size_t length = 0;

  bool operator==(const Span&) const = default;
};

/// What differs in each of two texts.
struct Marks {
  std::vector<Span> first;
  std::vector<Span> second;
};

/// Of a text in UTF-8.
[[nodiscard]] std::size_t Characters(std::string_view utf8);

/// By bytes, each of which is a character. Of texts that are as long as each other it is every
/// place where they differ; of others what lies between a common beginning and a common end.
[[nodiscard]] Marks MarksOfBytes(std::string_view first, std::string_view second);
/// The same of texts in UTF-8.
[[nodiscard]] Marks MarksOf(std::string_view first, std::string_view second);

/// How alike two texts are, byte by byte: 1 if they are the same, 0 if they have nothing in common.
[[nodiscard]] double Likeness(std::string_view first, std::string_view second);

}  // namespace corvalis::radio
