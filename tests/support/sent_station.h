#pragma once

#include <gtest/gtest.h>

#include <string>

#include "app/configuration.h"
#include "app/main_form.h"
#include "config/config_data.h"
#include "link/station_commands.h"
#include "networks/ih_data.h"
#include "station/groups_data.h"
#include "support/places.h"
#include "support/test_machine.h"

namespace corvalis::test {

/// The sample station, and the Coder to which the program sends it.
class SentStation : public MachineTest {
 protected:
  SentStation() { port.line = &line; }

  [[nodiscard]] static std::string SampleFile() {
    std::string file = ReadFile(std::string(kExamples) + "/station.rds");
    for (const char* item : {"Psn", "Rt", "Pin", "Af", "Tdc", "Pi", "Ct", "Tp", "Di", "Ecc", "Lic",
                             "Li", "Eon", "Ptyn", "Tmc"}) {
      file.insert(file.find("TP="), "Preset" + std::string(item) + "=On\r\n");
    }
    for (const char* page : {"Page00=30;", "Page01=15;"}) {
      file.replace(file.find(page) + 10, 11, "/;" + std::string(kExamples) + ";");
    }
    return file + "[PTYN]\r\nPtyN10=LAKESIDE;\r\n";
  }

  /// Opens a file and sends all of it, as an operator does: the whole of CONNECTION, then what the
  /// other screens have.
  void SendAll(const std::string& file) {
    WriteFile(ProgramFile(), file);
    form.Load();
    RunConfiguration(ConfigurationRun::kSend);
    SendPty(configData->Pty());
    SendTa(configData->Ta());
    SendMs(configData->Music());
    for (int group = 0; group < kGroups; ++group) {
      SendEnable(static_cast<std::uint8_t>(group), groupsData->Active(group),
                 groupsData->Repetitions(group));
    }
    for (std::int16_t page = 0; page < 2; ++page) ihData->SetOneRds(page);
  }

  coder::Coder the_coder{"?????", true};
  coder::Line line{the_coder, coder::Faults{}};
  MainForm form;
};

}  // namespace corvalis::test
