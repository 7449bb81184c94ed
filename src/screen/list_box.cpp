#include "screen/list_box.h"

#include <stdexcept>

namespace corvalis {

void ListBox::Clear() { Fill({}); }

void ListBox::Add(const std::string& entry) {
  entries_.push_back(entry);
  Redraw();
}

void ListBox::Fill(const std::vector<std::string>& entries) {
  entries_ = entries;
  index_ = kNone;
  Redraw();
}

void ListBox::Replace(int index, const std::string& entry) {
  Set(entries_.at(static_cast<std::size_t>(index)), entry);
}

const std::string& ListBox::Entry(int index) const {
  return entries_.at(static_cast<std::size_t>(index));
}

void ListBox::SetIndex(int index) {
  if (index < kNone || index >= Count()) throw std::out_of_range("ListBox " + Name());
  if (index == index_) return;
  SelectSilently(index);
  if (Click) Click();
}

void ListBox::Choose(int index) {
  if (!TakesEvents() || index < 0 || index >= Count()) return;
  SelectSilently(index);
  if (Click) Click();
}

void ListBox::Open(int index) {
  if (TakesEvents() && index != kNone && index == index_ && DoubleClick) DoubleClick();
}

void ListBox::TypeKey(int key) {
  if (TakesEvents() && KeyPress) KeyPress(key);
}

}  // namespace corvalis
