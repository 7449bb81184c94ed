#pragma once

#include <QString>
#include <initializer_list>
#include <string>

#include "radio/values.h"

namespace corvalis::desktop {

/// A text that the radio adds; see radio/values.h.
[[nodiscard]] inline QString InWords(std::string_view english,
                                     std::initializer_list<std::string> values = {}) {
  return QString::fromStdString(radio::InWords(english, values));
}

}  // namespace corvalis::desktop
