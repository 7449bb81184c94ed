#include "link/link_box.h"

#include "platform/platform.h"

namespace corvalis {

void ShowLinkBox(const std::string& text, std::string_view title) {
  Machine().dialogs->Show({.text = text,
                           .title = std::string(title),
                           .style = BoxStyle::kCritical,
                           .help_file = "DEMO.HLP",
                           .help_context = 1000});
}

}  // namespace corvalis
