#pragma once

#include <string>

namespace corvalis {

enum class BoxStyle { kCritical, kWarning, kInformation };

/// A modal message box. Text and title are Windows-1252 and are shown as they stand, blanks
/// included.
struct Box {
  std::string text;
  std::string title;
  BoxStyle style = BoxStyle::kCritical;
  std::string help_file;  ///< of a box with help; empty for none
  int help_context = 0;
};

/// What the program says to the person in front of it, outside its own screens.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// Shows the box and returns when it has been answered. Events run meanwhile.
  virtual void Show(const Box& box) = 0;
  /// The operator has ended what the box that stands is about: it goes, as if it had been answered.
  virtual void Dismiss() {}

  virtual void Beep() = 0;
};

}  // namespace corvalis
