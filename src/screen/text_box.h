#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "screen/control.h"

namespace corvalis {

/// A text box with caret and selection. Positions count characters (bytes) from 0.
class TextBox : public Control {
 public:
  /// What the bytes of the text are. File names keep the file system's own bytes (UTF-8).
  enum class Content { kWindows1252, kFileName };

  TextBox(Window& window, std::string name, Content content = Content::kWindows1252)
      : Control(window, std::move(name)), content_(content) {}

  [[nodiscard]] Content TextContent() const { return content_; }

  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Raises `Change` if the text differs. The caret goes to the start, nothing is selected.
  void SetText(const std::string& text);

  [[nodiscard]] int SelStart() const { return sel_start_; }
  [[nodiscard]] int SelLength() const { return sel_length_; }
  /// Positions beyond the text are moved to its end.
  void Select(int start, int length);
  /// Cuts what is beyond so many bytes; raises `Change` then. The caret stays where it is.
  void CutTo(std::size_t length);
  void SelectAll() { Select(0, static_cast<int>(text_.size())); }

  /// Bytes that the operator's hand can bring the text to; what is struck or pasted beyond is cut.
  /// 0: no end.
  [[nodiscard]] int MaxLength() const { return max_length_; }
  void SetMaxLength(int length) { max_length_ = length; }

  /// A locked box shows and can be copied from, but not edited.
  [[nodiscard]] bool Locked() const { return locked_; }
  void SetLocked(bool locked) { Set(locked_, locked); }

  /// Raised before a struck key changes the text: the form may replace the key, or cancel it with
  /// 0. Characters, back space and control characters (Ctrl+V is 22) come here; Delete and the
  /// arrows don't.
  std::function<void(int& key)> KeyPress;
  std::function<void()> Change;

  /// The operator strikes a key: `KeyPress`, then what is left of the key edits the text.
  void TypeKey(int key);
  /// The operator strikes one key after the other.
  void Type(const std::string& keys);
  /// The operator edits in a way that raises no `KeyPress` (Delete, cut, undo).
  void Edit(const std::string& text, int caret);
  /// The operator pastes: the box gets the key 22 first, and then the text unless it was cancelled.
  void Paste(const std::string& text);

 private:
  [[nodiscard]] bool RefusedByForm(int& key) const;
  void Replace(std::string insertion);

  Content content_;
  std::string text_;
  int sel_start_ = 0;
  int sel_length_ = 0;
  int max_length_ = 0;
  bool locked_ = false;
};

}  // namespace corvalis
