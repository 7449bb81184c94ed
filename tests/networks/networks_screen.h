#pragma once

#include <string>

#include "app/single_instance.h"
#include "networks/eon_data.h"
#include "networks/ih_data.h"
#include "networks/li_data.h"
#include "networks/tdc0_data.h"
#include "networks/tdc_data.h"
#include "networks/tmc_data.h"
#include "support/station_screen.h"

namespace corvalis::test {

/// A screen of the other networks or the data channels, on lists of `sizes` if the Coder is asked.
template <class Form>
class NetworksTest : public StationScreenTest<Form> {
 protected:
  using Lists = SingleInstances<tdc0Data, tdcData, ihData, eonData, liData, tmcData>;

  ~NetworksTest() override {
    this->form.reset();
    Lists::Release();
  }
  void LoadLists() override {
    this->the_coder->SetSizes(sizes);
    Lists::Create();
  }

  coder::Counts sizes{.eon = 3, .tmc = 3, .ih = 3};
};

}  // namespace corvalis::test
