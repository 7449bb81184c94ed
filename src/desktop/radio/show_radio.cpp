#include "desktop/radio/show_radio.h"

#include <iostream>

#include "radio/program.h"

namespace corvalis::desktop {

int ShowRadio(const radio::Options& /*options*/, int& /*argc*/, char** /*argv*/) {
  std::cerr << "corvalis-radio: this build has no window; use --report\n";
  return radio::kBadUse;
}

}  // namespace corvalis::desktop
