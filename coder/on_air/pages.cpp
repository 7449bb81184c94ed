#include "coder/on_air/pages.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "air/characters.h"
#include "coder/digits.h"

namespace corvalis::coder {

namespace {

constexpr int kPagesOnAir = 32;
constexpr std::size_t kDigits = 3;  // of the page's number, before its text or time

}  // namespace

void PageRotation::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  pages_.clear();
  const int pages = std::min(coder.Sizes().ih, kPagesOnAir);
  for (int number = 0; number < pages; ++number) {
    const int first = number * kPageStep;
    Page page{.number = number,
              .seconds = DecimalAt(*coder.Item(kIh, first + kIhEnd), kDigits, 4),
              .text = {}};
    for (int block = 0; block < kIhEnd; ++block) {
      const Bytes body = *coder.Item(kIh, first + block);
      page.text.insert(page.text.end(), body.begin() + kDigits, body.end());
    }
    while (!page.text.empty() && page.text.back() == ' ') page.text.pop_back();
    if (!page.text.empty()) pages_.push_back(std::move(page));
  }
  if (pages_.empty()) at_ = 0;
}

air::Group6A PageRotation::Next(AirTime now) {
  if (at_ == 0) sent_ = turn_.At(pages_, now);
  std::array<std::uint8_t, 4> characters{};
  for (std::uint8_t& character : characters) {
    character = at_ < sent_.text.size() ? sent_.text[at_] : air::kEndOfText;
    ++at_;
  }
  if (at_ >= sent_.text.size()) at_ = 0;
  return {.own = sent_.number, .bytes = air::FourBytes::Of(characters)};
}

}  // namespace corvalis::coder
