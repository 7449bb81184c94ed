#pragma once

#include "desktop/widgets/windows/window_view.h"
#include "station/edit_groups_form.h"

namespace corvalis::desktop {

/// The group table: one line a group number, with its A and B group and the share of both.
class EditGroupsView : public WindowView {
 public:
  explicit EditGroupsView(EditGroupsForm& form);
};

}  // namespace corvalis::desktop
