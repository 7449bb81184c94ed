#include "desktop/widgets/look/mnemonics.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QVariant>
#include <algorithm>
#include <map>
#include <vector>

namespace corvalis::desktop {

namespace {

constexpr const char* kCaption = "caption";
constexpr char16_t kMark = u'&';

/// What a mnemonic can lead to, in the order in which they are served.
enum class Kind { kTab, kButton, kLabel, kGroup, kCheckBox };

struct Place {
  Kind kind;
  QWidget* widget;
  int tab;  // of the bar; else 0
  QString caption;

  [[nodiscard]] QString Text() const {
    if (auto* bar = qobject_cast<QTabBar*>(widget)) return bar->tabText(tab);
    return widget->property(kind == Kind::kGroup ? "title" : "text").toString();
  }
  void SetText(const QString& text) const {
    if (Text() == text) return;
    if (auto* bar = qobject_cast<QTabBar*>(widget)) return bar->setTabText(tab, text);
    widget->setProperty(kind == Kind::kGroup ? "title" : "text", text);
  }
  [[nodiscard]] bool CanBeSeen() const {
    if (auto* bar = qobject_cast<QTabBar*>(widget)) {
      return bar->isVisible() && bar->isEnabled() && bar->isTabVisible(tab) &&
             bar->isTabEnabled(tab);
    }
    return widget->isVisible() && widget->isEnabled();
  }
};

/// True if a label leads to `field`.
bool Labelled(const QWidget& field) {
  const auto labels = field.window()->findChildren<QLabel*>();
  return std::any_of(labels.begin(), labels.end(), [&field](const QLabel* label) {
    const QWidget* buddy = label->buddy();
    return buddy != nullptr && (buddy == &field || buddy->focusProxy() == &field);
  });
}

/// The page of tabs that `widget` stands on; null if it can be seen with all of them.
const QWidget* PageOf(const QWidget* widget) {
  for (; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
    if (qobject_cast<const QStackedWidget*>(widget->parentWidget()) != nullptr) return widget;
  }
  return nullptr;
}

/// True for a check box that stands on its page with more others than there are letters for.
bool IsOneOfMany(const QWidget& widget) {
  constexpr qsizetype kFew = 10;
  if (qobject_cast<const QCheckBox*>(&widget) == nullptr) return false;
  if (qobject_cast<const QGroupBox*>(widget.parentWidget()) == nullptr) return false;
  const QWidget* page = PageOf(&widget);
  if (page == nullptr) page = widget.window();
  return page->findChildren<QCheckBox*>().size() > kFew;
}

/// The fields of a group that its title leads to, in their order: those that have no caption of
/// their own, and check boxes of many.
std::vector<QWidget*> Fields(const QWidget& group) {
  std::vector<QWidget*> fields;
  for (auto* widget : group.findChildren<QWidget*>()) {
    if (widget->window() != group.window()) continue;  // a list that drops down
    if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->focusProxy() != nullptr) continue;
    const bool captioned =
        qobject_cast<QAbstractButton*>(widget) != nullptr && !IsOneOfMany(*widget);
    if (captioned || Labelled(*widget)) continue;
    fields.push_back(widget);
  }
  return fields;
}

QString CaptionOf(const QWidget& widget) {
  const QVariant caption = widget.property(kCaption);
  if (caption.isValid()) return caption.toString();
  const auto* group = qobject_cast<const QGroupBox*>(&widget);
  const auto* label = qobject_cast<const QLabel*>(&widget);
  return group != nullptr   ? PlainCaption(group->title())
         : label != nullptr ? PlainCaption(label->text())
                            : QString();
}

void Collect(QWidget* widget, std::vector<Place>& places) {
  if (auto* bar = qobject_cast<QTabBar*>(widget)) {
    for (int tab = 0; tab < bar->count(); ++tab) {
      if (!bar->isTabVisible(tab)) continue;
      places.push_back({Kind::kTab, widget, tab, PlainCaption(bar->tabText(tab))});
    }
    return;
  }
  const QString caption = CaptionOf(*widget);
  // One that no one has shown yet comes up with its window.
  const bool hidden = widget->isHidden() && widget->testAttribute(Qt::WA_WState_ExplicitShowHide);
  if (caption.isEmpty() || hidden) return;
  if (const auto* label = qobject_cast<QLabel*>(widget)) {
    if (label->buddy() != nullptr) places.push_back({Kind::kLabel, widget, 0, caption});
  } else if (qobject_cast<QGroupBox*>(widget) != nullptr) {
    if (!Fields(*widget).empty()) places.push_back({Kind::kGroup, widget, 0, caption});
  } else if (qobject_cast<QAbstractButton*>(widget) != nullptr) {
    if (IsOneOfMany(*widget)) return;
    const bool box = qobject_cast<QCheckBox*>(widget) != nullptr;
    places.push_back({box ? Kind::kCheckBox : Kind::kButton, widget, 0, caption});
  }
}

std::vector<Place> PlacesOf(const QWidget& window) {
  std::vector<Place> places;
  for (auto* widget : window.findChildren<QWidget*>()) {
    if (widget->window() == &window) Collect(widget, places);
  }
  std::stable_sort(places.begin(), places.end(),
                   [](const Place& a, const Place& b) { return a.kind < b.kind; });
  return places;
}

/// How many captions have a letter.
using Demand = std::map<QChar, int>;

/// Where in a caption a mnemonic may stand: the first letters of its words, then its other
/// letters, those in less demand first. A number is known by its first digit alone.
std::vector<qsizetype> Choices(const QString& caption, const Demand& demand) {
  std::vector<qsizetype> first;
  std::vector<qsizetype> other;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    const QChar letter = caption[i];
    if (letter.unicode() > u'z' || !letter.isLetterOrNumber()) continue;
    const bool begins = i == 0 || !caption[i - 1].isLetterOrNumber();
    if (letter.isDigit() && !begins) continue;
    (begins ? first : other).push_back(i);
    if (i == 0 && letter.isDigit()) return first;
  }
  const auto wanted = [&](qsizetype at) {
    const auto found = demand.find(caption[at].toUpper());
    return found == demand.end() ? 0 : found->second;
  };
  std::stable_sort(other.begin(), other.end(),
                   [&](qsizetype a, qsizetype b) { return wanted(a) < wanted(b); });
  first.insert(first.end(), other.begin(), other.end());
  return first;
}

/// Gives each caption a letter of its own: its best one that is free, and where none is, one whose
/// owner can take another.
class Deal {
 public:
  Deal(std::vector<QChar> taken, const Demand& demand)
      : taken_(std::move(taken)), demand_(demand) {}

  void Serve(const std::vector<const Place*>& places) {
    std::vector<const Place*> left;
    for (const Place* place : places) {
      const auto choices = Choices(place->caption, demand_);
      const auto free = std::find_if(choices.begin(), choices.end(), [&](qsizetype at) {
        return Free(place->caption[at]) && !owners_.contains(place->caption[at].toUpper());
      });
      if (free == choices.end()) {
        left.push_back(place);
      } else {
        owners_[place->caption[*free].toUpper()] = {place, *free};
      }
    }
    for (const Place* place : left) {
      std::vector<QChar> asked;
      Find(*place, asked);
    }
  }

  /// The letters that are given, and where in whose caption each stands.
  [[nodiscard]] const std::map<QChar, std::pair<const Place*, qsizetype>>& Owners() const {
    return owners_;
  }

 private:
  [[nodiscard]] bool Free(QChar letter) const {
    return std::find(taken_.begin(), taken_.end(), letter.toUpper()) == taken_.end();
  }

  bool Find(const Place& place, std::vector<QChar>& asked) {
    for (const qsizetype at : Choices(place.caption, demand_)) {
      const QChar letter = place.caption[at].toUpper();
      if (!Free(letter) || std::find(asked.begin(), asked.end(), letter) != asked.end()) continue;
      asked.push_back(letter);
      const auto owner = owners_.find(letter);
      if (owner != owners_.end() && !Find(*owner->second.first, asked)) continue;
      owners_[letter] = {&place, at};
      return true;
    }
    return false;
  }

  std::vector<QChar> taken_;
  const Demand& demand_;
  std::map<QChar, std::pair<const Place*, qsizetype>> owners_;
};

QString Marked(const QString& caption, qsizetype at) {
  return EscapedCaption(caption.left(at)) + kMark + EscapedCaption(caption.mid(at));
}

/// The letter marked in a text; null if none is.
QChar MarkedLetter(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != kMark) continue;
    if (text[i + 1] != kMark) return text[i + 1].toUpper();
    ++i;
  }
  return {};
}

/// What `event` leads to; null if it leads nowhere.
const Place* Struck(const std::vector<Place>& places, const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers != Qt::AltModifier || event.key() <= Qt::Key_Space || event.key() > Qt::Key_Z) {
    return nullptr;
  }
  const QChar letter(static_cast<char16_t>(event.key()));
  const auto found = std::find_if(places.begin(), places.end(), [letter](const Place& place) {
    return place.CanBeSeen() && MarkedLetter(place.Text()) == letter;
  });
  return found == places.end() ? nullptr : &*found;
}

void MoveInto(const QWidget& group) {
  std::vector<QWidget*> fields = Fields(group);
  std::erase_if(fields,
                [](const QWidget* field) { return !field->isEnabled() || !field->isVisible(); });
  if (fields.empty()) return;
  const auto has = std::find_if(fields.begin(), fields.end(),
                                [](const QWidget* field) { return field->hasFocus(); });
  const bool last = has == fields.end() || has + 1 == fields.end();
  (last ? fields.front() : *(has + 1))->setFocus(Qt::ShortcutFocusReason);
}

}  // namespace

namespace {

void AskForMnemonics(const QWidget& widget) {
  QCoreApplication::postEvent(widget.window(),
                              new QEvent(static_cast<QEvent::Type>(MnemonicsEvent())));
}

}  // namespace

int MnemonicsEvent() {
  static const int kType = QEvent::registerEventType();
  return kType;
}

void ShowCaption(QWidget& widget, const QString& caption) {
  const QVariant had = widget.property(kCaption);
  if (had.isValid() && had.toString() == caption) return;
  widget.setProperty(kCaption, caption);
  if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(label->buddy() == nullptr ? caption : EscapedCaption(caption));
  } else {
    const bool group = qobject_cast<QGroupBox*>(&widget) != nullptr;
    widget.setProperty(group ? "title" : "text", EscapedCaption(caption));
  }
  AskForMnemonics(widget);
}

void ShowTabCaption(QTabBar& bar, int tab, const QString& caption) {
  if (PlainCaption(bar.tabText(tab)) == caption) return;
  bar.setTabText(tab, EscapedCaption(caption));
  AskForMnemonics(bar);
}

void ShowOrHide(QWidget& widget, bool visible) {
  if (widget.isHidden() != visible) return;
  widget.setVisible(visible);
  AskForMnemonics(widget);
}

QString EscapedCaption(const QString& caption) {
  return QString(caption).replace(kMark, QStringLiteral("&&"));
}

QString PlainCaption(const QString& text) {
  QString plain;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == kMark && i + 1 < text.size()) ++i;
    plain += text[i];
  }
  return plain;
}

void GiveMnemonics(const QWidget& window) {
  const std::vector<Place> places = PlacesOf(window);
  std::map<const QWidget*, std::vector<const Place*>> pages;
  for (const Place& place : places) pages[PageOf(place.widget)].push_back(&place);
  std::map<const Place*, qsizetype> marks;
  std::vector<QChar> taken;  // what can be seen with every page comes first, as null does
  // What is seen with every page leaves to the pages what many of their captions could take.
  const Demand none;
  Demand demand;
  for (const Place& place : places) {
    if (PageOf(place.widget) == nullptr) continue;
    for (const qsizetype at : Choices(place.caption, none)) ++demand[place.caption[at].toUpper()];
  }
  for (const auto& [page, on_it] : pages) {
    Deal deal(taken, page == nullptr ? demand : none);
    deal.Serve(on_it);
    for (const auto& [letter, owner] : deal.Owners()) {
      marks[owner.first] = owner.second;
      if (page == nullptr) taken.push_back(letter);
    }
  }
  for (const Place& place : places) {
    const auto mark = marks.find(&place);
    place.SetText(mark == marks.end() ? EscapedCaption(place.caption)
                                      : Marked(place.caption, mark->second));
  }
}

bool IsMnemonic(const QWidget& window, const QKeyEvent& event) {
  return Struck(PlacesOf(window), event) != nullptr;
}

void PressMnemonic(const QWidget& window, const QKeyEvent& event) {
  const std::vector<Place> places = PlacesOf(window);
  const Place* place = Struck(places, event);
  if (place == nullptr) return;
  switch (place->kind) {
    case Kind::kLabel:
      if (auto* buddy = static_cast<QLabel*>(place->widget)->buddy(); buddy->isEnabled()) {
        buddy->setFocus(Qt::ShortcutFocusReason);
      }
      return;
    case Kind::kGroup:
      return MoveInto(*place->widget);
    default:
      break;
  }
  QWidget* widget = place->widget;
  widget->setFocus(Qt::ShortcutFocusReason);
  if (!widget->hasFocus()) return;
  if (auto* bar = qobject_cast<QTabBar*>(widget)) return bar->setCurrentIndex(place->tab);
  static_cast<QAbstractButton*>(widget)->click();
}

}  // namespace corvalis::desktop
