#include "coder/on_air/frequencies.h"

#include <cstdint>

#include "air/af_codes.h"
#include "coder/digits.h"

namespace corvalis::coder {

namespace {

// How many bytes of a list say something.
std::size_t Length(const air::AfCodes& codes) {
  std::size_t length = 0;
  for (std::size_t at = 0; at < codes.size(); ++at) {
    // What follows the mark of LF and MF belongs to it, whatever it is.
    const bool second = at > 0 && codes[at - 1] == air::kLfOrMfNext && length == at;
    if (codes[at] != air::kAfFiller || second) length = at + 1;
  }
  return length;
}

}  // namespace

std::optional<air::AfCodes> FrequencyList(const Coder& coder, int list) {
  if (!coder.Written(kAf, list)) return std::nullopt;
  const Bytes body = *coder.Item(kAf, list);
  air::AfCodes codes{};
  for (std::size_t i = 0; i < codes.size(); ++i) {
    codes[i] = static_cast<std::uint8_t>(HexAt(body, 2 * i, 2));
  }
  if (codes[0] <= air::kAfCount || codes[0] > air::kAfCount + air::kAfEntries) return std::nullopt;
  return codes;
}

void FrequencyRotation::Follow(const Coder& coder) {
  if (!watch_.Changed(coder)) return;
  std::vector<Pair> pairs;
  for (int list = 0; list < coder.Sizes().af; ++list) {
    const auto codes = FrequencyList(coder, list);
    if (!codes) continue;
    const std::size_t length = Length(*codes);
    for (std::size_t at = 0; at < length; at += 2) {
      pairs.push_back({(*codes)[at], at + 1 < length ? (*codes)[at + 1] : air::kAfFiller});
    }
  }
  if (pairs == pairs_) return;
  pairs_ = std::move(pairs);
  at_ = 0;
}

FrequencyRotation::Pair FrequencyRotation::Next() {
  if (pairs_.empty()) return {air::kAfCount, air::kAfFiller};
  const Pair next = pairs_[at_];
  at_ = (at_ + 1) % pairs_.size();
  return next;
}

}  // namespace corvalis::coder
