#include "desktop/text.h"

#include <QApplication>
#include <QKeyEvent>
#include <algorithm>

#include "config/words.h"
#include "screen/keys.h"

namespace corvalis::desktop {

namespace {

constexpr int kControlMask = 0x1F;

}  // namespace

QString FromContent(const std::string& bytes, TextBox::Content content) {
  return content == TextBox::Content::kFileName ? FromFileName(bytes) : FromBytes(bytes);
}

std::string ToContent(const QString& text, TextBox::Content content) {
  return content == TextBox::Content::kFileName ? ToFileName(text) : ToBytes(text);
}

QString Wording::Text() const {
  const QString text = FromBytes(Word(english_));
  return value_.isNull() ? text : text.arg(value_);
}

QString OneLine(const QString& clip) {
  QString line;
  for (const QChar character : clip) {
    if (character == u'\r' || character == u'\n') break;
    if (character.unicode() >= u' ') line += character;
  }
  return line;
}

std::string KnownBytes(QString text) {
  const auto all = text.size();
  text.removeIf([](QChar character) { return machine::ByteOf(character) < 0; });
  if (text.size() < all) QApplication::beep();
  return ToBytes(text);
}

int KeyCode(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (modifiers & (Qt::AltModifier | Qt::MetaModifier)) return kKeyCancelled;
  switch (event.key()) {
    case Qt::Key_Backspace:
      return kKeyBackspace;
    case Qt::Key_Escape:
      return kKeyEscape;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return '\r';
    default:
      break;
  }
  if (modifiers.testFlag(Qt::ControlModifier)) {
    const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    return letter ? event.key() & kControlMask : kKeyCancelled;
  }
  if (event.text().size() != 1 || event.text()[0].category() == QChar::Other_Control) {
    return kKeyCancelled;
  }
  return std::max(machine::ByteOf(event.text()[0]), kKeyCancelled);
}

}  // namespace corvalis::desktop
