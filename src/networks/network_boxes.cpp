#include "networks/network_boxes.h"

#include <string>
#include <string_view>
#include <utility>

#include "config/conversions.h"
#include "link/utility.h"
#include "screen/keys.h"

namespace corvalis {

namespace {

constexpr int kFirstCharacter = ' ';

// Drops what is none of `characters`, without a sound. What types nothing (a paste) passes.
void Filter(int& key, std::string_view characters) {
  const bool typed = key >= kFirstCharacter || key == kKeyBackspace;
  if (typed && characters.find(static_cast<char>(key)) == std::string_view::npos) {
    key = kKeyCancelled;
  }
}

}  // namespace

void HoldHex(TextBox& box, int digits, std::function<void(std::int32_t value)> store) {
  const auto length = static_cast<std::size_t>(digits);
  box.KeyPress = [](int& key) { Filter(key, "0123456789ABCDEF"); };
  box.Change = [&box, length, store = std::move(store)] {
    box.CutTo(length);
    // Other letters can be pasted.
    if (const auto value = HexToLong(box.Text()); box.Text().size() == length && value >= 0) {
      store(value);
    }
  };
  box.LostFocus = [&box, length] {
    if (box.Text().size() != length || HexToLong(box.Text()) < 0) RefuseBox(box, box.Text());
  };
}

void HoldFrequency(TextBox& box, int decimals, FrequencyRule rule,
                   std::function<void(float value)> store) {
  box.KeyPress = [](int& key) { Filter(key, "0123456789.\b"); };
  box.LostFocus = [&box, decimals, rule = std::move(rule), store = std::move(store)] {
    const auto value = static_cast<float>(LeadingNumber(box.Text()));
    const auto taken = value == 0 ? 0.F : rule(value);
    if (taken) store(*taken);
    constexpr int kDigits = 3;
    const std::string shown = FixedPoint(taken.value_or(value), kDigits, decimals);
    if (!taken || box.Text().empty()) return RefuseBox(box, shown);
    box.SetText(shown);
  };
}

}  // namespace corvalis
