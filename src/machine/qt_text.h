#pragma once

#include <QString>
#include <string>

namespace corvalis::machine {

/// A text of the program, Windows-1252, as the desktop shows it. The five bytes that the code page
/// leaves undefined become the control characters of the same number, so every byte comes back.
[[nodiscard]] QString FromBytes(const std::string& bytes);
/// The way back. A character that the code page lacks becomes one "?".
[[nodiscard]] std::string ToBytes(const QString& text);

/// A file name, which is the file system's own bytes, read as UTF-8. A byte that is no part of
/// valid UTF-8 becomes a lone surrogate (U+DC80 to U+DCFF), so every name comes back.
[[nodiscard]] QString FromFileName(const std::string& name);
/// The way back.
[[nodiscard]] std::string ToFileName(const QString& text);

/// `name` as it can be shown beside others without doing harm: a character that controls, or that
/// turns the direction of what follows, becomes U+FFFD. There is no way back.
[[nodiscard]] QString Harmless(QString name);

/// The byte of Windows-1252 of a character; -1 if the code page lacks it.
[[nodiscard]] int ByteOf(QChar character);

}  // namespace corvalis::machine
