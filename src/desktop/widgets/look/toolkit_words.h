#pragma once

#include <QTranslator>

namespace corvalis::desktop {

/// The toolkit's own texts that the program's windows show, as in the menu of a text box, in the
/// language of the program. Whatever else the toolkit asks for is English.
class ToolkitWords : public QTranslator {
 public:
  using QTranslator::QTranslator;

  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* text, const char* comment,
                                  int count) const override;
};

}  // namespace corvalis::desktop
