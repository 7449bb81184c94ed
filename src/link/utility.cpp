#include "link/utility.h"

#include "config/words.h"
#include "link/link_box.h"
#include "platform/platform.h"
#include "screen/keys.h"

namespace corvalis {

int FrequencyKeyFilter(std::string_view text, int& key, int max_length, int sel_length,
                       int sel_start, bool point_allowed) {
  if (key == kKeyBackspace) return key;
  if (key >= '0' && key <= '9') {
    if (static_cast<int>(text.size()) < max_length || sel_length != 0) return key;
  } else if ((key == '.' || key == ',') && point_allowed) {
    const std::size_t found = text.find('.');
    const int point = static_cast<int>(found) + 1;
    if (found == std::string_view::npos || (sel_start <= point && point < sel_start + sel_length)) {
      return key = '.';
    }
  }
  RefuseKey(key);
  return key;
}

void RefuseKey(int& key) {
  Machine().dialogs->Beep();
  key = kKeyCancelled;
}

void RefuseBox(TextBox& box, const std::string& shown) {
  box.SetFocus();
  Machine().dialogs->Show({.text = "WARNING! Not Allowed.",
                           .title = box.ParentWindow().Caption(),
                           .style = BoxStyle::kWarning,
                           .help_file = {}});
  box.SetText(shown);
  box.SelectAll();
}

void CommitGridRow(Grid& grid) { grid.Commit(); }

std::string WithUntaken(const Grid& grid, const std::string& name) {
  return grid.HasUntaken() ? Word("%1, not taken yet", {name}) : name;
}

std::string TypedText(Grid& grid, int column) {
  const bool typed = grid.Opened() && grid.Column() == column;
  return typed ? grid.Editor().Text() : grid.Shown(grid.Row(), column);
}

void WarnBeforeAddress() { ShowLinkBox("Before send Address", kCommunicationManagementTitle); }

}  // namespace corvalis
