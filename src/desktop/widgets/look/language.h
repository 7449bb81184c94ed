#pragma once

#include <QWidget>
#include <functional>

#include "desktop/text.h"

namespace corvalis::desktop {

/// Runs `show` now and after each change of the language, while `widget` lives.
void FollowLanguage(QWidget& widget, std::function<void()> show);

/// Shows `word` on a button, a label or a group, in whatever language.
void ShowWord(QWidget& widget, const Wording& word);

/// Calls `widget` by `word` for whoever does not see it, in whatever language.
void CallByWord(QWidget& widget, const Wording& word);

/// The language file has been read: dates and numbers are written as its language writes them, not
/// as the machine's does, and what follows the language is shown anew.
void LanguageRead();

}  // namespace corvalis::desktop
