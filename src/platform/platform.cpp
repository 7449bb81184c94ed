#include "platform/platform.h"

#include <stdexcept>

namespace corvalis {

namespace {
Platform* installed = nullptr;
}  // namespace

Platform& Machine() {
  if (installed == nullptr) throw std::logic_error("no platform installed");
  return *installed;
}

void InstallPlatform(Platform* platform) { installed = platform; }

}  // namespace corvalis
