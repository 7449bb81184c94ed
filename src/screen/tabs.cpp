#include "screen/tabs.h"

#include "screen/window.h"

namespace corvalis {

void Tabs::Choose(int tab) {
  if (!TakesEvents() || tab < 0 || tab >= static_cast<int>(captions_.size())) return;
  if (ParentWindow().MoveFocus(this)) SetTab(tab);
}

}  // namespace corvalis
