#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "config/ini_management.h"
#include "programme/programme_screen.h"

namespace corvalis::test {

inline constexpr std::uint8_t kAf = 0x05;
inline constexpr std::uint8_t kAfCountCode = 0x0C;
inline const std::string kWarning = "WARNING! Not Allowed.";
inline const std::string kA = "[AF Method A]\nFreqList=";
inline const std::string kMethodB =
    "[RDS Setup]\nAF Method A=Off\n[AF Method B]\nMaxAfBListNum=3\n";
inline const std::string kOneWay = "[Serial Setup]\nSatellite=On\nBurst=3\n";

class AfTabsTest : public ProgrammeTest {
 protected:
  [[nodiscard]] TextBox& BoxA(int i) const { return form->af_a.Text39[i]; }
  [[nodiscard]] TextBox& BoxB(int i) const { return form->af_b.Text2[i]; }
  /// Types over what stands in a box and leaves it. False if it does not let go.
  bool Enter(TextBox& box, const std::string& text) {
    EXPECT_TRUE(form->window.MoveFocus(&box));
    box.SelectAll();
    if (text.empty()) box.TypeKey(8);
    box.Type(text);
    const bool left = form->window.MoveFocus(nullptr);
    if (!left) form->window.MoveFocus(nullptr);  // as it was: that passes
    return left;
  }
  /// The first so many boxes.
  [[nodiscard]] std::string ShownA(int count) const {
    std::string shown;
    for (int i = 0; i < count; ++i) shown += BoxA(i).Text() + ' ';
    return shown;
  }
  [[nodiscard]] std::string ShownB(int count) const {
    std::string shown;
    for (int i = 0; i < count; ++i) shown += BoxB(i).Text() + ' ';
    return shown;
  }
  [[nodiscard]] int Available() const {
    return static_cast<int>(std::count_if(form->af_a.Text39.begin(), form->af_a.Text39.end(),
                                          [](const TextBox& box) { return box.Enabled(); }));
  }
  /// The AF lists of the frames that have left; -1 for the question how many there are.
  std::vector<int> SentLists() {
    std::vector<int> lists;
    for (const Bytes& frame : Written()) {
      lists.push_back(frame.at(1) == kAf ? frame.at(2) : frame.at(1) == kAfCountCode ? -1 : -2);
    }
    return lists;
  }
  static std::vector<int> UpTo(int last, bool asked) {
    std::vector<int> lists{0};
    if (asked) lists.push_back(-1);
    for (int i = 1; i <= last; ++i) lists.push_back(i);
    return lists;
  }
  void Answer(const Bytes& bytes) {
    port.line = nullptr;
    port.answer = [bytes](const Bytes&) { return bytes; };
  }
  [[nodiscard]] std::string Shown() const {
    const auto on = [this](int tab) { return form->SSTab1.TabVisible(tab); };
    return std::string(on(form->kAfA) ? "A" : "") + (on(form->kAfB) ? "B" : "");
  }
};

}  // namespace corvalis::test
