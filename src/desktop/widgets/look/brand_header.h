#pragma once

#include <QWidget>

#include "busy/brand_marks.h"

namespace corvalis::desktop {

/// The head of a window: the program's name, and at its right the mark of the brand in use. Each
/// mark is the brand's name, drawn as a badge. Every window that shows the brands has it on top.
class BrandHeader : public QWidget {
 public:
  /// `brand_text` is a label that goes with the mark; null for none.
  BrandHeader(BrandMarks& marks, Label* brand_text, QWidget* parent);
};

}  // namespace corvalis::desktop
