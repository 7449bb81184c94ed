#include "send/carried_text.h"

#include <QList>
#include <QString>
#include <array>
#include <cstddef>
#include <vector>

#include "machine/qt_text.h"

namespace corvalis::send {

namespace {

constexpr char16_t kEscapedByte = 0xDC00;  // as file names are read: plus the byte

// Letters without a decomposition, and punctuation that has a plain relative.
struct Plain {
  char32_t character;
  const char* letters;
};
constexpr std::array kPlain = {
    Plain{0x0110, "D"},  Plain{0x0111, "d"}, Plain{0x0126, "H"},  Plain{0x0127, "h"},
    Plain{0x0131, "i"},  Plain{0x0138, "k"}, Plain{0x0141, "L"},  Plain{0x0142, "l"},
    Plain{0x014A, "N"},  Plain{0x014B, "n"}, Plain{0x0166, "T"},  Plain{0x0167, "t"},
    Plain{0x018F, "E"},  Plain{0x0259, "e"}, Plain{0x1E9E, "SS"}, Plain{0x2010, "-"},
    Plain{0x2011, "-"},  Plain{0x2012, "-"}, Plain{0x2015, "-"},  Plain{0x201B, "'"},
    Plain{0x201F, "\""}, Plain{0x2032, "'"}, Plain{0x2033, "\""}, Plain{0x2044, "/"},
    Plain{0x2212, "-"},  Plain{0x2215, "/"}, Plain{0x2028, " "},  Plain{0x2029, " "},
    Plain{0x00AD, ""},   Plain{0x200B, ""},  Plain{0x200C, ""},   Plain{0x200D, ""},
    Plain{0x2060, ""},   Plain{0xFE0E, ""},  Plain{0xFE0F, ""},   Plain{0xFEFF, ""},
};

// The byte of a character that the line carries; -1 for one that it lacks, as for one that
// controls, and for the five bytes that the code page leaves undefined.
int CarriedByte(char32_t character) {
  if (character > 0xFFFF) return -1;
  const QChar unit(static_cast<char16_t>(character));
  return unit.category() == QChar::Other_Control ? -1 : machine::ByteOf(unit);
}

bool IsEscapedByte(char32_t character) {
  return character >= kEscapedByte + 0x80 && character <= kEscapedByte + 0xFF;
}

// What is no UTF-8 stays a character of its own, unlike with QString::toUcs4.
std::vector<char32_t> Characters(std::string_view utf8) {
  const QString text =
      machine::FromFileName(std::string(utf8)).normalized(QString::NormalizationForm_C);
  std::vector<char32_t> characters;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size();
    if (pair) {
      characters.push_back(QChar::surrogateToUcs4(text[i], text[i + 1]));
      ++i;
    } else {
      characters.push_back(text[i].unicode());
    }
  }
  return characters;
}

std::string PlainLetters(char32_t character) {
  if (IsEscapedByte(character)) return {static_cast<char>(character - kEscapedByte)};
  for (const Plain& plain : kPlain) {
    if (plain.character == character) return plain.letters;
  }
  if (QChar::category(character) == QChar::Other_Control) return " ";
  std::string letters;
  const QString parts = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD);
  for (const char32_t part : parts.toUcs4()) {
    const bool mark = QChar::category(part) == QChar::Mark_NonSpacing;
    const int byte = mark ? -1 : CarriedByte(part);
    if (byte >= 0) letters += static_cast<char>(byte);
  }
  return letters.empty() ? "?" : letters;
}

std::string Told(char32_t character, std::size_t place) {
  const QString code = QString::number(static_cast<uint>(character), 16).toUpper();
  std::string told = "character " + std::to_string(place) + " of the text, ";
  if (IsEscapedByte(character)) {
    return told + "is no UTF-8 (byte " + code.right(2).toStdString() + ")";
  }
  if (QChar::category(character) != QChar::Other_Control) {
    told += "\"" + QString::fromUcs4(&character, 1).toStdString() + "\" ";
  }
  return told + "(U+" + code.rightJustified(4, u'0').toStdString() +
         "), is none that the line carries";
}

// Before the last blank that leaves no more than `width`, or in mid word where there is none.
void CutAtWord(std::string& text, std::size_t width) {
  const std::size_t blank = text.rfind(' ', width);
  const std::size_t end = blank == std::string::npos ? width : text.find_last_not_of(' ', blank);
  text.resize(blank == std::string::npos || end == std::string::npos ? width : end + 1);
}

}  // namespace

CarriedText Carry(std::string_view utf8, int width, TextRules rules) {
  CarriedText carried;
  std::size_t place = 0;
  for (const char32_t character : Characters(utf8)) {
    ++place;
    if (const int byte = CarriedByte(character); byte >= 0) {
      carried.bytes += static_cast<char>(byte);
    } else if (rules.replace) {
      carried.bytes += PlainLetters(character);
    } else {
      return {{}, Told(character, place)};
    }
  }
  const auto room = static_cast<std::size_t>(width);
  if (carried.bytes.size() > room && rules.cut) CutAtWord(carried.bytes, room);
  if (carried.bytes.size() > room) {
    return {{},
            "the text has " + std::to_string(carried.bytes.size()) +
                " characters, and there is "
                "room for " +
                std::to_string(width)};
  }
  return carried;
}

}  // namespace corvalis::send
