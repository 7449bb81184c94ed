#include "support/spoilt_air.h"

#include <cmath>

#include "coder/on_air.h"

namespace corvalis::test {

bool Loss::Blocks::IsNextMissing() {
  std::uniform_real_distribution<double> dice;
  const double ends = 1 / loss_.burst;
  const double begins = loss_.share * ends / (1 - loss_.share);
  if (loss_.burst <= 1) return dice(random_) < loss_.share;
  bad_ = bad_ ? dice(random_) >= ends : dice(random_) < begins;
  return bad_;
}

std::vector<air::Group> AirOf(coder::Coder& coder, int seconds,
                              const std::function<void(int minute)>& minute) {
  coder::OnAir on_air(coder);
  std::vector<air::Group> groups;
  int minutes = 0;
  for (std::uint64_t i = 0; coder::GroupStart(i) < std::chrono::seconds(seconds); ++i) {
    if (minute && coder::GroupStart(i) >= std::chrono::minutes(minutes)) minute(minutes++);
    groups.push_back(on_air.Next(coder::GroupStart(i)));
  }
  return groups;
}

void Hear(const std::vector<air::Group>& groups, const Loss& loss, unsigned seed,
          air::Receiver& radio, const std::function<bool(double at)>& second) {
  Loss::Blocks blocks(loss, seed);
  double at = 0;
  for (const air::Group& group : groups) {
    air::HeardGroup heard = air::Heard(group);
    for (auto& block : heard.blocks) {
      if (blocks.IsNextMissing()) block.reset();
    }
    radio.Hear(heard, at);
    const double next = at + 104 / 1187.5;
    if (second && std::floor(next) > std::floor(at) && !second(next)) return;
    at = next;
  }
}

}  // namespace corvalis::test
