#pragma once

#include <QString>
#include <string>
#include <utility>

#include "machine/qt_text.h"
#include "screen/text_box.h"

class QKeyEvent;

namespace corvalis::desktop {

using machine::FromBytes;
using machine::FromFileName;
using machine::Harmless;
using machine::ToBytes;
using machine::ToFileName;

/// A text whose owner says what its bytes are.
[[nodiscard]] QString FromContent(const std::string& bytes, TextBox::Content content);
/// The way back.
[[nodiscard]] std::string ToContent(const QString& text, TextBox::Content content);

/// A text of ours, by its English words (see config/words.h); it may have one value in it, "%1".
/// It is put into the language of the moment when it is shown, so that it can follow another one.
class Wording {
 public:
  explicit Wording(const char* english, QString value = {})
      : english_(english), value_(std::move(value)) {}

  [[nodiscard]] QString Text() const;

 private:
  const char* english_;
  QString value_;
};

/// What a box of one line takes of a text: its first line, without control characters.
[[nodiscard]] QString OneLine(const QString& clip);

/// The bytes of those characters that the code page has; a beep if there were others, so that what
/// is struck, composed or pasted gets no "?" that nobody meant.
[[nodiscard]] std::string KnownBytes(QString text);

/// The key as a form gets it (see screen/keys.h): a character of Windows-1252, or the control
/// character of back space, Enter, ESC and Ctrl with a letter. `kKeyCancelled` for every other key
/// (arrows, Tab, Delete, what is struck together with Alt), and for a character that the code page
/// lacks.
[[nodiscard]] int KeyCode(const QKeyEvent& event);

}  // namespace corvalis::desktop
