#include <iostream>
#include <string>

#include "desktop/radio/show_radio.h"
#include "machine/qt_time.h"
#include "platform/platform.h"
#include "radio/options.h"
#include "radio/program.h"

int main(int argc, char** argv) {
  namespace radio = corvalis::radio;

  radio::Options options;
  const std::string wrong =
      radio::ParseOptions({argv + 1, static_cast<std::size_t>(argc - 1)}, options);
  if (!wrong.empty()) {
    std::cerr << "corvalis-radio: " << wrong << "; see --help\n";
    return radio::kBadUse;
  }
  if (options.help) {
    std::cout << radio::HelpText();
    return 0;
  }

  corvalis::machine::QtTime time;
  corvalis::ProfileStore profiles;
  corvalis::Platform machine;
  machine.clock = &time;
  machine.pump = &time;
  machine.profiles = &profiles;
  corvalis::InstallPlatform(&machine);
  if (!options.judge.empty()) return radio::RunJudge(options, std::cout, std::cerr);
  if (options.report) return radio::RunReport(options, std::cout, std::cerr);
  return corvalis::desktop::ShowRadio(options, argc, argv);
}
