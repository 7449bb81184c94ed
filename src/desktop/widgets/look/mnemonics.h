#pragma once

#include <QString>

class QKeyEvent;
class QTabBar;
class QWidget;

namespace corvalis::desktop {

/// Mnemonics: Alt with a letter or digit of a caption presses the button, turns to the tab or
/// moves to the field that the caption belongs to (a label to its buddy, the title of a group to
/// those of its fields that have neither, one after the other). Each window gives them out by
/// itself, from the captions that are not hidden, so they stay where they are as long as those do.
/// They are unique among what can be seen at one time: pages of tabs may use the same letter.

/// Shows `caption` on a button, a check box, a label or a group, as it stands, and has the window
/// give out its mnemonics anew (a `MnemonicsEvent` to it) if the caption is another one.
void ShowCaption(QWidget& widget, const QString& caption);

/// The same on a tab of `bar`.
void ShowTabCaption(QTabBar& bar, int tab, const QString& caption);

/// Shows or hides `widget`, and has the window give out its mnemonics anew.
void ShowOrHide(QWidget& widget, bool visible);

/// A text that shows `caption` as it stands, without a mnemonic.
[[nodiscard]] QString EscapedCaption(const QString& caption);

/// The caption that is shown by a text in which a mnemonic may be marked.
[[nodiscard]] QString PlainCaption(const QString& text);

/// Marks the mnemonics in all captions of `window`.
void GiveMnemonics(const QWidget& window);

/// The type of the event that asks a window to call `GiveMnemonics`.
[[nodiscard]] int MnemonicsEvent();

/// True if `event` strikes a mnemonic that can be seen in `window`.
[[nodiscard]] bool IsMnemonic(const QWidget& window, const QKeyEvent& event);

/// Does what the mnemonic stands for; nothing if the control that has the focus won't be left.
void PressMnemonic(const QWidget& window, const QKeyEvent& event);

}  // namespace corvalis::desktop
