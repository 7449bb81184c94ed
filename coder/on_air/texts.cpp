#include "coder/on_air/texts.h"

#include <algorithm>

#include "air/characters.h"
#include "coder/digits.h"

namespace corvalis::coder {

void TextRotation::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  texts_.clear();
  for (int number = 0; number < coder.Sizes().rt; ++number) {
    const Bytes body = *coder.Item(kRt, number);
    const int seconds = DecimalAt(body, 0, 2);
    if (seconds == 0) continue;
    Bytes text(body.begin() + 2, body.end());
    while (!text.empty() && text.back() == ' ') text.pop_back();
    texts_.push_back({number, seconds, std::move(text)});
  }
  if (!texts_.empty()) return;
  // What comes after a silence begins at its beginning.
  turn_.Restart();
  long_.segment = short_.segment = 0;
}

void TextRotation::SetInUse(bool long_kind, bool short_kind) {
  if (!long_kind) long_.segment = 0;
  if (!short_kind) short_.segment = 0;
}

air::Group2A TextRotation::NextLong(AirTime now) {
  const Segment next = Next(long_, short_, now);
  return {
      .flag = next.flag, .segment = next.number, .characters = air::FourBytes::Of(next.characters)};
}

air::Group2B TextRotation::NextShort(AirTime now) {
  const Segment next = Next(short_, long_, now);
  return {.flag = next.flag,
          .segment = next.number,
          .characters = air::BytePair{next.characters[0], next.characters[1]}};
}

TextRotation::Segment TextRotation::Next(Pass& pass, const Pass& other, AirTime now) {
  if (pass.segment == 0 && (other.segment == 0 || other.whole)) {
    const Bytes& next = turn_.At(texts_, now).text;
    if (!begun_ || next != text_) {
      if (begun_) flag_ = !flag_;
      begun_ = true;
      text_ = next;
      for (Pass* each : {&long_, &short_}) {
        each->segment = 0;
        each->whole = false;
      }
    }
  }
  const std::size_t length = std::min(text_.size(), pass.width * kSegments);
  Segment segment{.flag = flag_, .number = static_cast<int>(pass.segment), .characters = {}};
  segment.characters.fill(air::kEndOfText);
  const std::size_t at = pass.segment * pass.width;
  const std::size_t count = at < length ? std::min(pass.width, length - at) : 0;
  std::copy_n(text_.begin() + static_cast<std::ptrdiff_t>(std::min(at, length)), count,
              segment.characters.begin());
  // A text that ends with its group needs one more for the end, unless there is none behind it.
  const std::size_t segments = std::min(length / pass.width + 1, kSegments);
  if (++pass.segment >= segments) {
    pass.segment = 0;
    pass.whole = true;
  }
  return segment;
}

}  // namespace corvalis::coder
