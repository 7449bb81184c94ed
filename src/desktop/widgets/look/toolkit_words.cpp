#include "desktop/widgets/look/toolkit_words.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "config/words.h"
#include "desktop/text.h"

namespace corvalis::desktop {

namespace {

constexpr std::string_view kTexts[] = {
    LaterWord("&Undo"),  LaterWord("&Redo"),  LaterWord("Cu&t"),      LaterWord("&Copy"),
    LaterWord("&Paste"), LaterWord("Delete"), LaterWord("Select All")};

}  // namespace

QString ToolkitWords::translate(const char* /*context*/, const char* text, const char* /*comment*/,
                                int /*count*/) const {
  const bool known = std::find(std::begin(kTexts), std::end(kTexts), text) != std::end(kTexts);
  return known ? Wording(text).Text() : QString();
}

}  // namespace corvalis::desktop
