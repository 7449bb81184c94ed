#include "air/reception/text_receiver.h"

#include <algorithm>

#include "air/characters.h"

namespace corvalis::air {

namespace {

// A text that is on for a shorter time has no reader.
constexpr AirSeconds kShortestText = 1;

constexpr std::uint32_t FirstPairs(std::size_t count) {
  return count >= 32 ? UINT32_MAX : (std::uint32_t{1} << count) - 1;
}

}  // namespace

void TextReceiver::Hear(bool flag, std::size_t segment,
                        std::span<const std::optional<BytePair>> characters, const Moment& moment,
                        TextOfStation& text) {
  const std::size_t first_pair = segment * in_segment_;
  const bool turned = started_ && flag != flag_;
  const bool lost = !started_ || moment.LostSince(moment_) > 0;
  if (segment == 0 && !turned && !lost) EndPass(text, moment.at);
  if (turned) {
    Forget();
    pass_ = 0;
    if (text.now.IsHeard()) text.now.hearing = Hearing::kBeing;
  } else if (started_ && (IsUncertain(segment, moment) || Contradicts(first_pair, characters))) {
    Forget();
  }
  started_ = true;
  flag_ = flag;
  last_ = segment;
  moment_ = moment;
  segments_ = std::max(segments_, segment + 1);
  bool complete = true;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    complete = complete && characters[i];
    if (!characters[i]) continue;
    std::copy(characters[i]->begin(), characters[i]->end(), CharactersOf(first_pair + i));
    pairs_ |= std::uint32_t{1} << (first_pair + i);
  }
  if (text.now.hearing == Hearing::kNot) text.now.hearing = Hearing::kBeing;
  FollowPass(segment, complete, lost);
  text.building = bytes_;
  text.pairs = pairs_;
  text.flag = flag;

  const auto end = static_cast<std::size_t>(std::find(bytes_.begin(), bytes_.end(), kEndOfText) -
                                            bytes_.begin());
  const std::size_t all = kSegments * in_segment_;
  const std::uint32_t needed = FirstPairs(std::min(end / 2 + 1, all));
  if ((pairs_ & needed) != needed) return;
  Whole(std::min(end, 2 * all), text, moment.at);
  pass_ = 0;
}

bool TextReceiver::IsUncertain(std::size_t segment, const Moment& moment) const {
  const std::uint64_t lost = moment.LostSince(moment_);
  const std::size_t length = std::max(segments_, segment + 1);
  const std::size_t hidden = length - last_ + segment;
  if (lost >= hidden && moment.SecondsSince(moment_) >= kShortestText) return true;
  const std::size_t left_out = segment == last_  ? 0
                               : segment > last_ ? segment - last_ - 1
                                                 : hidden - 1;
  return lost < left_out;
}

bool TextReceiver::Contradicts(std::size_t first_pair,
                               std::span<const std::optional<BytePair>> characters) {
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const std::size_t pair = first_pair + i;
    if (characters[i] && (pairs_ >> pair & 1U) != 0 &&
        !std::equal(characters[i]->begin(), characters[i]->end(), CharactersOf(pair))) {
      return true;
    }
  }
  return false;
}

void TextReceiver::Forget() {
  bytes_.fill(' ');
  pairs_ = 0;
  segments_ = 0;
}

TextReceiver::Bytes::iterator TextReceiver::CharactersOf(std::size_t pair) {
  return bytes_.begin() + static_cast<std::ptrdiff_t>(2 * pair);
}

void TextReceiver::FollowPass(std::size_t segment, bool complete, bool lost) {
  if (segment == 0 && (pass_ == 0 || lost)) pass_before_.clear();
  const bool follows = segment == 0 || (pass_ == segment && !lost);
  pass_ = complete && follows ? segment + 1 : 0;
}

void TextReceiver::EndPass(TextOfStation& text, AirSeconds at) {
  if (pass_ < 2) return;
  const std::size_t length = 2 * in_segment_ * pass_;
  std::vector<std::uint8_t> pass(bytes_.begin(), CharactersOf(length / 2));
  if (pass == pass_before_) Whole(length, text, at);
  pass_before_ = std::move(pass);
}

void TextReceiver::Whole(std::size_t length, TextOfStation& text, AirSeconds at) {
  WholeText whole{.bytes = {bytes_.begin(), bytes_.begin() + static_cast<std::ptrdiff_t>(length)},
                  .flag = flag_,
                  .since = at};
  pairs_ = 0;
  bytes_.fill(' ');
  text.texts.Hear(whole.bytes, at);
  text.now.Believe(whole.bytes, at);
  if (told_ && told_->bytes == whole.bytes && told_->flag == whole.flag) return;
  text.remembered.push_front(whole);
  if (text.remembered.size() > TextOfStation::kRemembered) text.remembered.pop_back();
  told_ = std::move(whole);
}

}  // namespace corvalis::air
