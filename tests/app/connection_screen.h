#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <sstream>

#include "app/configuration.h"
#include "app/connection_form.h"
#include "app/single_instance.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "networks/li_data.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "networks/tmc_data.h"
#include "programme/af_a_data.h"
#include "programme/af_b_data.h"
#include "programme/pin_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/ptyn_data.h"
#include "programme/rt_data.h"
#include "support/station_screen.h"

namespace corvalis::test {

/// Codes of the frames.
enum Code : std::uint8_t {
  kPi = 0x01,
  kTp,
  kPsn,
  kDi,
  kAf,
  kPin,
  kRt,
  kAddress,
  kCt = 0x10,
  kTdc,
  kIh,
  kEon = 0x16,
  kPtyn,
  kEcc = 0x19,
  kLic,
  kLi,
  kPage,
  kPlan = 0x1F,
  kTmcSystem = 0x21,
  kTmc
};

/// The connection screen on lists of a few items, with the Coder on the line.
class ConnectionTest : public StationScreenTest<ConnectionForm> {
 protected:
  using Lists = SingleInstances<afAData, afBData, psnData, psnPageData, rtData, pinData, tdc0Data,
                                tdcData, ihData, eonData, liData, ptynData, tmcData>;
  ~ConnectionTest() override {
    form.reset();
    Lists::Release();
  }
  void LoadLists() override {
    the_coder->SetSizes(
        {.psn = 3, .page = 2, .plan = 2, .rt = 3, .pin = 3, .af = 3, .eon = 2, .tmc = 2, .ih = 2});
    Lists::Create();
  }
  // A file of these sizes that selects what is named: "Psn Rt".
  static std::string File(const std::string& link, const std::string& presets,
                          const std::string& setup = "") {
    std::string file = link + "Burst=2\n[RDS Setup]\n" + setup;
    std::istringstream names(presets);
    for (std::string name; names >> name;) file += "Preset" + name + "=On\n";
    return file +
           "[PSN Pages]\nMaxPsnNum=3\nMaxPsnPagesNum=2\n[PSN Plan]\nMaxPsnPlanNum=2\n"
           "[RT]\nMaxRtNum=3\n[PIN]\nMaxPinNum=3\n[AF Method B]\nMaxAfBListNum=3\n"
           "[EON]\nMaxEonNum=3\n[TMC]\nMaxListNum=3\n[Ih Pages]\nPage Count=2\n";
  }
  static constexpr const char* kAll = "Psn Rt Pin Af Tdc Ih Pi Ct Tp Di Ecc Lic Li Eon Ptyn Tmc";

  // What was written since the last call: codes, and how many frames of each in a row.
  using Runs = std::vector<std::pair<int, int>>;
  Runs Codes() {
    Runs runs;
    for (const Bytes& frame : Written()) {
      if (runs.empty() || runs.back().first != frame[1]) runs.emplace_back(frame[1], 0);
      ++runs.back().second;
    }
    return runs;
  }
  // The Coder answers, but for the frames that `bad` says: those are refused with error 3.
  void Refuse(const std::function<bool(const Bytes& frame)>& bad) {
    port.answer = [this, bad](const Bytes& frame) {
      if (bad(frame)) return Bytes{0x15, 0x02, 0x00, 0x03, 0x03, 0x02};
      Bytes all;
      for (const auto& answer : line->Take(frame)) {
        all.insert(all.end(), answer.bytes.begin(), answer.bytes.end());
      }
      return all;
    };
  }
  static Bytes Body(const Bytes& frame) { return {frame.begin() + 3, frame.end() - 2}; }
};

}  // namespace corvalis::test
