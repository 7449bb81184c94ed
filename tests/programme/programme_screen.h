#pragma once

#include <string>
#include <vector>

#include "app/single_instance.h"
#include "programme/af_a_data.h"
#include "programme/af_b_data.h"
#include "programme/pin_data.h"
#include "programme/psn_data.h"
#include "programme/psn_page_data.h"
#include "programme/psn_rt_pin_af_form.h"
#include "programme/ptyn_data.h"
#include "programme/rt_data.h"
#include "support/station_screen.h"

namespace corvalis::test {

/// The screen of the programme on lists of `sizes`, whoever tells them: the Coder or the file.
class ProgrammeTest : public StationScreenTest<PsnRtPinAfForm> {
 protected:
  using Lists = SingleInstances<afAData, afBData, psnData, psnPageData, rtData, pinData, ptynData>;

  ~ProgrammeTest() override {
    form.reset();
    Lists::Release();
  }
  void LoadLists() override {
    the_coder->SetSizes(sizes);
    Lists::Create();
  }
  /// `file`, and in it the sizes.
  [[nodiscard]] std::string Sized(std::string file) const {
    const auto put = [&file](const std::string& section, const char* key, int size) {
      const std::string head = "[" + section + "]\n";
      if (file.find(head) == std::string::npos) file += head;
      file.insert(file.find(head) + head.size(),
                  std::string(key) + "=" + std::to_string(size) + "\n");
    };
    put("PSN Pages", "MaxPsnNum", sizes.psn);
    put("PSN Pages", "MaxPsnPagesNum", sizes.page);
    put("PSN Plan", "MaxPsnPlanNum", sizes.plan);
    put("RT", "MaxRtNum", sizes.rt);
    put("PIN", "MaxPinNum", sizes.pin);
    return file;
  }
  /// Keys into a grid's cell, as from the hand of an operator who has just come to it.
  static void Strike(Grid& grid, int row, int column, const std::string& keys) {
    grid.ParentWindow().MoveFocus(&grid);
    grid.MoveTo(row, column);
    grid.Type(keys);
  }

  coder::Counts sizes{.psn = 4, .page = 3, .plan = 4, .rt = 4, .pin = 4};
};

inline constexpr const char* kNoPages = "[RDS Setup]\nPSN Pages Enable=Off\n";

/// A text in the places that it has.
inline std::string In(std::size_t places, std::string text) {
  text.resize(places, ' ');
  return text;
}

}  // namespace corvalis::test
