#pragma once

#include <QLabel>

#include "screen/control.h"
#include "screen/text_box.h"

namespace corvalis::desktop {

/// A quiet line that says how things stand: as much of it as there is room for, the whole in its
/// tip.
class StateLine : public QLabel {
 public:
  StateLine(Label& label, TextBox::Content content, QWidget* parent);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Elide();

  QString whole_;
};

}  // namespace corvalis::desktop
