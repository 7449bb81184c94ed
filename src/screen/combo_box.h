#pragma once

#include <functional>
#include <string>

#include "screen/list_box.h"

namespace corvalis {

/// A list that drops down below a text that can also be typed. Choosing an entry makes it the text;
/// a text that is typed selects no entry, whatever it says.
class ComboBox : public ListBox {
 public:
  using ListBox::ListBox;

  /// The entry selected, also once it has been replaced, or what was typed.
  [[nodiscard]] std::string Text() const { return Index() == kNone ? typed_ : Entry(Index()); }

  /// As in any list; what was typed is gone then.
  void SetIndex(int index) {
    typed_.clear();
    ListBox::SetIndex(index);
    Redraw();
  }

  /// The operator changes the text.
  void TypeText(const std::string& text) {
    if (!TakesEvents() || text == Text()) return;
    typed_ = text;
    SelectSilently(kNone);
    Redraw();
    if (Change) Change();
  }

  /// Raised when the operator has changed the text.
  std::function<void()> Change;

 private:
  std::string typed_;
};

}  // namespace corvalis
