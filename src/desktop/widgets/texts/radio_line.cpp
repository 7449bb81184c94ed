#include "desktop/widgets/texts/radio_line.h"

#include <QStringList>

#include "config/config_data.h"
#include "config/words.h"
#include "desktop/text.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/binding.h"
#include "link/radio_text.h"

namespace corvalis::desktop {

namespace {

// A text with the characters that differ told apart: to be seen, and in words.
struct Marked {
  QString shown;
  QString markup;
  QStringList differing;
};

Marked Mark(const std::string& text) {
  Marked marked;
  for (const RadioShown& character : ShownByRadios(text)) {
    const QString shown = QString::fromStdString(character.shown);
    marked.shown += shown;
    const QString escaped = shown.toHtmlEscaped();
    marked.markup += character.differs ? QStringLiteral("<u><b>%1</b></u>").arg(escaped) : escaped;
    if (!character.differs) continue;
    const QString becomes =
        FromBytes(Word("%1 becomes %2")).arg(QString::fromStdString(character.prepared), shown);
    if (!marked.differing.contains(becomes)) marked.differing << becomes;
  }
  return marked;
}

}  // namespace

RadioLine::RadioLine(Label& label, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::RichText);
  setWordWrap(true);
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
  SetInk(*this, colours::kQuietText);
  const auto show = [this, &label] { Show(label.Caption()); };
  Bind(*this, label, show);
  FollowLanguage(*this, show);
}

void RadioLine::Show(const std::string& text) {
  const Marked marked = Mark(text.substr(0, text.find_last_not_of(' ') + 1));
  const char* const words = configData->RadioCharacters()
                                ? LaterWord("Goes out as: %1")
                                : LaterWord("On a radio: %1 (if the Coder does not translate)");
  const bool differs = !marked.differing.isEmpty();
  const QString pattern = FromBytes(Word(words));
  const QString becomes = marked.differing.join(QStringLiteral(", "));
  // Blanks in a row count, and a line without words is as high as one with them.
  setText(QStringLiteral("<span style=\"white-space:pre-wrap\">%1</span>")
              .arg(differs ? pattern.toHtmlEscaped().arg(marked.markup) : QStringLiteral(" ")));
  setAccessibleName(differs ? pattern.arg(marked.shown) + QStringLiteral(": ") + becomes
                            : QString());
  setToolTip(becomes.toHtmlEscaped());
  setVisible(differs);
}

}  // namespace corvalis::desktop
