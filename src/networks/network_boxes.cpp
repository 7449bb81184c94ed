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

void Refuse(TextBox& box) {
  box.SetFocus();
  WarnNotAllowed(box.ParentWindow());
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
    if (box.Text().size() != length || HexToLong(box.Text()) < 0) Refuse(box);
  };
}

void HoldFrequency(TextBox& box, int decimals, FrequencyRule rule,
                   std::function<void(float value)> store) {
  box.KeyPress = [](int& key) { Filter(key, "0123456789.\b"); };
  box.LostFocus = [&box, decimals, rule = std::move(rule), store = std::move(store)] {
    if (box.Text().empty()) Refuse(box);
    auto value = static_cast<float>(LeadingNumber(box.Text()));
    if (const auto taken = value == 0 ? 0.F : rule(value)) {
      value = *taken;
      store(value);
    } else {
      Refuse(box);
    }
    constexpr int kDigits = 3;
    box.SetText(FixedPoint(value, kDigits, decimals));
  };
}

}  // namespace corvalis
