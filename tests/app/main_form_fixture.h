#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "app/main_form.h"
#include "busy/wait_form.h"
#include "config/language_data.h"
#include "link/serial_management.h"
#include "link/transfer.h"
#include "networks/eon_data.h"
#include "networks/li_data.h"
#include "programme/af_a_data.h"
#include "programme/af_b_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/ptyn_data.h"
#include "support/test_machine.h"

namespace corvalis::test {
// The sizes of the lists as they are asked at start and on Open.
inline constexpr int kEnqFrame = 0;
inline const std::vector<int> kEnqAndCounts{kEnqFrame, 0x0C, 0x14, 0x1E, 0x20, 0x14,
                                            0x0A,      0x0B, 0x13, 0x15, 0x23};
// New has another order.
inline const std::vector<int> kCountsOfNew{0x14, 0x1E, 0x20, 0x14, 0x0A,
                                           0x0B, 0x0C, 0x13, 0x15, 0x23};

/// The main menu with the Coder in memory.
class MainFormTest : public MachineTest {
 protected:
  MainFormTest() : line(the_coder, coder::Faults{}) { port.line = &line; }
  ~MainFormTest() override { form.reset(); }

  void Run(const std::string& file) {
    form.reset();
    port.SetPortOpen(false);
    WriteFile(ProgramFile(), file);
    form = std::make_unique<MainForm>();
    form->Load();
  }

  void OpenFile(const std::string& name) {
    form->Text105.SetText(name);
    form->OpenButton.Press();
  }
  std::string Elsewhere() {
    std::filesystem::create_directory(folder + "/elsewhere");
    form->Dir1.SetPath(folder + "/elsewhere");
    return folder + "/elsewhere";
  }

  coder::Coder the_coder{"?????", true};
  /// The commands of the frames that have been written.
  [[nodiscard]] std::vector<int> Codes() const {
    std::vector<int> codes;
    for (const Bytes& frame : port.written) {
      codes.push_back(frame == Bytes{kEnq} ? kEnqFrame : frame.at(kCommandOffset));
    }
    return codes;
  }

  coder::Line line;
  std::unique_ptr<MainForm> form;
};

inline constexpr const char* kLocal = "[Serial Setup]\nSatellite=Off\n";
inline constexpr const char* kModem = "[Serial Setup]\nSatellite=Off\nModem=On\n";

}  // namespace corvalis::test
