#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <vector>

#include "desktop/text.h"
#include "screen/control.h"

namespace corvalis::desktop {

/// Gives a caption to controls as their accessible name, for whoever does not see that the two
/// stand together.
class Naming {
 public:
  /// `widget` is called by the caption from now on, in whatever language.
  void Name(QWidget* widget);

 protected:
  void Call(const QString& caption);

 private:
  QString caption_;
  std::vector<QPointer<QWidget>> named_;
};

/// Shows the caption of a label; a label without a caption takes no room.
class LabelWidget : public QLabel, public Naming {
 public:
  LabelWidget(Label& label, QWidget* parent);
};

/// Shows the caption of a label as the title of a group.
class LabelledGroup : public QGroupBox, public Naming {
 public:
  LabelledGroup(Label& label, QWidget* parent);
};

/// A group under a title of ours.
[[nodiscard]] QGroupBox* Group(const Wording& title, QWidget* parent);

/// A word or two that explain, beside or above what counts.
[[nodiscard]] QLabel* QuietText(const Wording& word, QWidget* parent);
/// The same with a number or a sign, which no language changes.
[[nodiscard]] QLabel* QuietText(const QString& text, QWidget* parent);

/// The same beside or above `box`, which it leads to and, if nothing else does, names.
[[nodiscard]] QLabel* Heading(const Wording& word, QWidget* box);

}  // namespace corvalis::desktop
