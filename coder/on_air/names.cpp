#include "coder/on_air/names.h"

#include <algorithm>
#include <chrono>
#include <string>

#include "coder/digits.h"

namespace corvalis::coder {

namespace {

void PutTwoDigits(std::uint8_t* at, int value) {
  at[0] = static_cast<std::uint8_t>('0' + value / 10 % 10);
  at[1] = static_cast<std::uint8_t>('0' + value % 10);
}

}  // namespace

std::optional<int> PageInUse(const Coder& coder) {
  const Counts& sizes = coder.Sizes();
  bool in_use = coder.Written(kPsnPageActive);
  for (int row = 0; row < sizes.plan && !in_use; ++row) {
    in_use = FlagAt(*coder.Item(kPsnPlan, row), 0);
  }
  for (int page = 0; page < sizes.page && !in_use; ++page) {
    for (int row = 0; row < sizes.psn && !in_use; ++row) {
      const int number = page * kPageStep + row;
      in_use =
          coder.Written(kPsnPage, number) && DecimalAt(*coder.Item(kPsnPage, number), 1, 2) > 0;
    }
  }
  // The digits of a page go on behind "9" as the characters do.
  return in_use ? std::optional(coder.Item(kPsnPageActive)->front() - '0') : std::nullopt;
}

void NameRotation::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  const auto page = PageInUse(coder);
  if (page != page_) turn_.Restart();
  page_ = page;

  const auto name = [&](int row) {
    // A page's row begins with the digit of the page.
    const std::uint8_t command = page ? kPsnPage : kPsn;
    const std::size_t at = page ? 1 : 0;
    const int number = page ? *page * kPageStep + row : row;
    Name found{.number = row, .seconds = 0, .text = {}};
    found.text.fill(' ');
    const auto body = coder.Item(command, number);
    if (!body) return found;
    found.seconds = DecimalAt(*body, at, 2);
    std::copy_n(body->begin() + static_cast<std::ptrdiff_t>(at) + 2, kLength, found.text.begin());
    return found;
  };
  names_.clear();
  for (int row = 0; row < coder.Sizes().psn; ++row) {
    const Name candidate = name(row);
    if (candidate.seconds > 0) names_.push_back(candidate);
  }
  if (names_.empty()) names_.push_back(name(0));

  const Bytes clock_time = *coder.Item(kCt);
  date_name_ = DecimalAt(clock_time, 11, 2);
  hour_name_ = DecimalAt(clock_time, 13, 2);
}

NameRotation::Segment NameRotation::Next(AirTime now, std::optional<LocalMinute> local) {
  if (segment_ == 0) text_ = Shown(turn_.At(names_, now), local);
  const auto at = 2 * static_cast<std::size_t>(segment_);
  const Segment next{.number = segment_, .characters = {text_[at], text_[at + 1]}};
  segment_ = (segment_ + 1) % 4;
  return next;
}

NameRotation::Text NameRotation::Shown(const Name& name, std::optional<LocalMinute> local) const {
  if (!local || (name.number != date_name_ && name.number != hour_name_)) return name.text;
  const auto day = std::chrono::floor<std::chrono::days>(*local);
  if (name.number == date_name_) {
    const std::chrono::year_month_day date{day};
    Text text = {0, 0, '.', 0, 0, '.', 0, 0};
    PutTwoDigits(&text[0], static_cast<int>(static_cast<unsigned>(date.day())));
    PutTwoDigits(&text[3], static_cast<int>(static_cast<unsigned>(date.month())));
    PutTwoDigits(&text[6], static_cast<int>(date.year()));
    return text;
  }
  const auto minutes = static_cast<int>((*local - day).count());
  Text text = {0, 0, ':', 0, 0, ' ', ' ', ' '};
  PutTwoDigits(&text[0], minutes / 60);
  PutTwoDigits(&text[3], minutes % 60);
  return text;
}

}  // namespace corvalis::coder
