#include "air/reception/page_receiver.h"

#include <cstddef>

#include "air/characters.h"

namespace corvalis::air {

namespace {

constexpr std::size_t kGroupBytes = 4;

// The shortest text of whole groups that the run is made of, once or several times over.
std::string Once(const std::string& run) {
  for (std::size_t length = kGroupBytes; length <= run.size() / 2; length += kGroupBytes) {
    if (run.size() % length == 0 &&
        run.compare(length, std::string::npos, run, 0, run.size() - length) == 0) {
      return run.substr(0, length);
    }
  }
  return run;
}

}  // namespace

void PageReceiver::Hear(const Group6A& group, const Moment& moment,
                        std::array<InHousePage, 32>& pages) {
  const bool lost = !started_ || moment.LostSince(moment_) > 0;
  const bool other = started_ && group.own != page_;
  const auto& [first, second] = group.bytes;
  const bool goes_on = !other && first && (*first)[0] == kLineBreak;
  if (lost || (ended_ && !other && !first)) whole_ = false;
  InHousePage& before = pages.at(static_cast<std::size_t>(page_));
  if (ended_ && goes_on) {
    before.building += static_cast<char>(kEndOfText);
  } else if (ended_ || other) {
    End(before, moment.at);
    whole_ = !lost;
  }
  started_ = true;
  ended_ = false;
  page_ = group.own;
  moment_ = moment;

  InHousePage& page = pages.at(static_cast<std::size_t>(page_));
  if (page.text.hearing == Hearing::kNot) page.text.hearing = Hearing::kBeing;
  page.text.last = moment.at;
  if (!first || !second || page.building.size() >= InHousePage::kMost) {
    page.building.clear();
    whole_ = false;
    return;
  }
  const std::string characters{static_cast<char>((*first)[0]), static_cast<char>((*first)[1]),
                               static_cast<char>((*second)[0]), static_cast<char>((*second)[1])};
  const std::size_t used = characters.find_last_not_of(static_cast<char>(kEndOfText)) + 1;
  page.building.append(characters, 0, used);
  ended_ = used < kGroupBytes;
}

void PageReceiver::End(InHousePage& page, AirSeconds at) const {
  if (whole_ && !page.building.empty()) page.text.Believe(Once(page.building), at);
  page.building.clear();
}

}  // namespace corvalis::air
