#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screen/control.h"

namespace corvalis {

/// A closed list, dropped down or open: the operator chooses an entry and types nothing.
class ListBox : public Control {
 public:
  using Control::Control;

  /// `Index` of a list in which nothing is selected.
  static constexpr int kNone = -1;

  /// Empties the list; nothing is selected then. Raises nothing.
  void Clear();
  void Add(const std::string& entry);
  /// Clears, and adds all of `entries`.
  void Fill(const std::vector<std::string>& entries);
  /// Puts another text in the place of an entry. The selection stays; raises nothing.
  /// `std::out_of_range` outside 0 to Count() - 1.
  void Replace(int index, const std::string& entry);
  [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }
  /// `std::out_of_range` outside 0 to Count() - 1.
  [[nodiscard]] const std::string& Entry(int index) const;
  [[nodiscard]] const std::vector<std::string>& Entries() const { return entries_; }

  [[nodiscard]] int Index() const { return index_; }
  /// Selects an entry, or none; raises `Click` if that changes the selection. `std::out_of_range`
  /// outside -1 to Count() - 1.
  void SetIndex(int index);
  /// The same for an index that may lie anywhere: none is selected if there is no such entry.
  void SetIndexOrNone(int index) { SetIndex(index >= 0 && index < Count() ? index : kNone); }

  /// Entries of such a list are chosen with the pointer alone: every key is swallowed but the one
  /// that moves on to the next control.
  [[nodiscard]] bool PointerOnly() const { return pointer_only_; }
  void SetPointerOnly(bool pointer_only) { pointer_only_ = pointer_only; }

  /// The operator chooses an entry; raises `Click` also for the entry that was selected already.
  void Choose(int index);
  /// The operator opens an entry (a double click, or the Enter key), which is selected by then.
  virtual void Open(int index);
  /// The operator strikes a key; `KeyPress` tells the form. A key never changes the selection here.
  void TypeKey(int key);

  std::function<void()> Click;
  /// The entry selected has been opened.
  std::function<void()> DoubleClick;
  /// The form may cancel the key with 0.
  std::function<void(int& key)> KeyPress;

 protected:
  void SelectSilently(int index) { Set(index_, index); }

 private:
  std::vector<std::string> entries_;
  int index_ = kNone;
  bool pointer_only_ = false;
};

}  // namespace corvalis
