#include "machine/qt_text.h"

#include <algorithm>

#include "config/windows_1252.h"

namespace corvalis::machine {

namespace {

constexpr char16_t kEscapedByte = 0xDC00;  // plus the byte, 0x80 to 0xFF

/// The length of the sequence of UTF-8 that such a byte begins.
std::size_t SequenceLength(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  if (byte < 0x80) return 1;
  if (byte < 0xE0) return 2;
  return byte < 0xF0 ? 3 : 4;
}

bool IsEscapedByte(QChar character) {
  return character.unicode() >= kEscapedByte + 0x80 && character.unicode() <= kEscapedByte + 0xFF;
}

}  // namespace

int ByteOf(QChar character) {
  const char16_t code = character.unicode();
  const auto* special = std::find(kSpecial1252.begin(), kSpecial1252.end(), code);
  if (special != kSpecial1252.end())
    return kFirstSpecial1252 + static_cast<int>(special - kSpecial1252.begin());
  const bool same = code < kFirstSpecial1252 || (code > 0x9F && code <= 0xFF);
  return same ? code : -1;
}

QString FromBytes(const std::string& bytes) {
  QString text = QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
  for (QChar& character : text) {
    const auto special = static_cast<std::size_t>(character.unicode() - kFirstSpecial1252);
    if (character.unicode() >= kFirstSpecial1252 && special < kSpecial1252.size()) {
      character = QChar(kSpecial1252[special]);
    }
  }
  return text;
}

std::string ToBytes(const QString& text) {
  std::string bytes;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const int byte = ByteOf(text[i]);
    bytes += byte < 0 ? '?' : static_cast<char>(byte);
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size();
    if (pair && text[i + 1].isLowSurrogate()) ++i;
  }
  return bytes;
}

QString FromFileName(const std::string& name) {
  QString text;
  for (std::size_t at = 0; at < name.size();) {
    const std::string sequence = name.substr(at, SequenceLength(name[at]));
    const QString character = QString::fromStdString(sequence);
    if (character.toStdString() == sequence) {
      text += character;
      at += sequence.size();
    } else {
      text += QChar(static_cast<char16_t>(kEscapedByte + static_cast<unsigned char>(name[at])));
      ++at;
    }
  }
  return text;
}

std::string ToFileName(const QString& text) {
  std::string name;
  QString valid;
  for (const QChar character : text) {
    const bool second_half = !valid.isEmpty() && valid.back().isHighSurrogate();
    if (second_half || !IsEscapedByte(character)) {
      valid += character;
      continue;
    }
    name += valid.toStdString();
    valid.clear();
    name += static_cast<char>(character.unicode() - kEscapedByte);
  }
  return name + valid.toStdString();
}

QString Harmless(QString name) {
  // Letters join by some characters of the same kind, and a line breaks at one.
  constexpr char16_t kHarmless[] = {u'\u00AD', u'\u200C', u'\u200D'};
  for (QChar& character : name) {
    const QChar::Category kind = character.category();
    const bool invisible = kind == QChar::Other_Control || kind == QChar::Other_Format ||
                           kind == QChar::Separator_Line || kind == QChar::Separator_Paragraph;
    if (invisible && std::find(std::begin(kHarmless), std::end(kHarmless), character.unicode()) ==
                         std::end(kHarmless)) {
      character = QChar::ReplacementCharacter;
    }
  }
  return name;
}

}  // namespace corvalis::machine
