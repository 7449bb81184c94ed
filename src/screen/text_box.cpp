#include "screen/text_box.h"

#include <algorithm>

#include "screen/keys.h"

namespace corvalis {

void TextBox::SetText(const std::string& text) {
  if (text_ == text) return;
  text_ = text;
  sel_start_ = 0;
  sel_length_ = 0;
  Redraw();
  if (Change) Change();
}

void TextBox::Select(int start, int length) {
  const int size = static_cast<int>(text_.size());
  sel_start_ = std::clamp(start, 0, size);
  sel_length_ = std::clamp(length, 0, size - sel_start_);
  Redraw();
}

void TextBox::CutTo(std::size_t length) {
  if (text_.size() <= length) return;
  const int caret = sel_start_;
  SetText(text_.substr(0, length));
  Select(caret, 0);
}

bool TextBox::RefusedByForm(int& key) const {
  if (KeyPress) KeyPress(key);
  return key == kKeyCancelled;
}

void TextBox::TypeKey(int key) {
  if (!TakesEvents() || locked_ || RefusedByForm(key)) return;
  if (key == kKeyBackspace) {
    if (sel_length_ == 0) {
      if (sel_start_ == 0) return;
      --sel_start_;
      sel_length_ = 1;
    }
    Replace("");
  } else if (key >= ' ') {
    Replace(std::string(1, static_cast<char>(key)));
  }
}

void TextBox::Type(const std::string& keys) {
  for (const char key : keys) TypeKey(static_cast<unsigned char>(key));
}

void TextBox::Edit(const std::string& text, int caret) {
  if (!TakesEvents() || locked_) return;
  if (text_ != text) {
    text_ = text;
    sel_start_ = caret;
    sel_length_ = 0;
    if (Change) Change();
    // A form that has put another text there has put the caret too.
    if (text_ != text) return Redraw();
  }
  Select(caret, 0);
}

void TextBox::Paste(const std::string& text) {
  int key = kKeyPaste;
  if (TakesEvents() && !locked_ && !RefusedByForm(key)) Replace(text);
}

void TextBox::Replace(std::string insertion) {
  std::string text = text_;
  if (max_length_ > 0) {
    const int room = max_length_ - static_cast<int>(text.size()) + sel_length_;
    insertion.resize(std::min(insertion.size(), static_cast<std::size_t>(std::max(room, 0))));
  }
  text.replace(static_cast<std::size_t>(sel_start_), static_cast<std::size_t>(sel_length_),
               insertion);
  Edit(text, sel_start_ + static_cast<int>(insertion.size()));
}

}  // namespace corvalis
