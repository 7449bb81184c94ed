#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "config/config_data.h"
#include "link/serial_management.h"
#include "screen/button.h"
#include "screen/spinner.h"
#include "screen/window.h"
#include "support/test_machine.h"

namespace corvalis::test {

/// A screen of the station, opened from the main menu, with the Coder in memory on its line.
template <class Form>
class StationScreenTest : public LinkTest {
 protected:
  /// Opens the screen on a file; it may be open on another.
  void OpenScreen(const std::string& file, bool open_coder = true) {
    if (form == nullptr) {
      Start(file, {}, open_coder);
      Open();
      LoadLists();
      form = std::make_unique<Form>(main_menu);
      main_menu.Show();
    } else {
      form->window.Close();
      WriteFile(ProgramFile(), file);
      configData->GetIni();
      LoadLists();
    }
    form->Load();
    port.written.clear();
  }
  /// What the screen needs from the file beside the station record.
  virtual void LoadLists() {}

  /// The frames that have left since the last call.
  std::vector<Bytes> Written() { return std::exchange(port.written, {}); }
  /// The texts of the boxes since the last call.
  std::vector<std::string> Boxes() {
    std::vector<std::string> texts;
    for (const Box& box : std::exchange(dialogs.boxes, {})) texts.push_back(box.text);
    return texts;
  }
  [[nodiscard]] std::string Held(std::uint8_t code, std::uint8_t index = 0) const {
    const Bytes item = *the_coder->Item(code, index);
    return {item.begin(), item.end()};
  }
  void Hold(std::uint8_t code, const std::string& body, std::uint8_t index = 0) const {
    ASSERT_TRUE(the_coder->SetItem(code, index, Bytes(body.begin(), body.end())));
  }
  /// Nothing goes out on a one-way link before an address has; then it may.
  void ExpectAddressRule(std::initializer_list<Button*> buttons) {
    for (Button* button : buttons) {
      button->Press();
      EXPECT_EQ(Boxes(), std::vector<std::string>{"Before send Address"}) << button->Name();
      EXPECT_TRUE(form->window.Enabled());
    }
    EXPECT_EQ(Written(), std::vector<Bytes>{});
    AddressSent = true;
  }
  /// Steps up, or down where `steps` is negative.
  static void Step(Spinner& spinner, int steps) {
    for (; steps > 0; --steps) spinner.PressUp();
    for (; steps < 0; ++steps) spinner.PressDown();
  }

  const std::vector<std::string> no_boxes{};
  Window main_menu{this, "MainForm"};
  std::unique_ptr<Form> form;
};

}  // namespace corvalis::test
