#include "desktop/widgets/look/language.h"

#include <QApplication>
#include <QEvent>
#include <QLocale>
#include <utility>

#include "config/words.h"
#include "desktop/widgets/look/mnemonics.h"

namespace corvalis::desktop {

namespace {

/// A window hands the event that its language has changed on to all that is in it.
class Follower : public QObject {
 public:
  Follower(QWidget& widget, std::function<void()> show) : QObject(&widget), show_(std::move(show)) {
    show_();
  }

  bool event(QEvent* event) override {
    if (event->type() == QEvent::LanguageChange) show_();
    return QObject::event(event);
  }

 private:
  std::function<void()> show_;
};

}  // namespace

void FollowLanguage(QWidget& widget, std::function<void()> show) {
  new Follower(widget, std::move(show));
}

void ShowWord(QWidget& widget, const Wording& word) {
  FollowLanguage(widget, [&widget, word] { ShowCaption(widget, word.Text()); });
}

void CallByWord(QWidget& widget, const Wording& word) {
  FollowLanguage(widget, [&widget, word] { widget.setAccessibleName(word.Text()); });
}

void LanguageRead() {
  const QLocale locale(FromBytes(LanguageCode()));
  QLocale::setDefault(locale);
  for (QWidget* window : QApplication::topLevelWidgets()) {
    window->setLocale(locale);
    QEvent changed(QEvent::LanguageChange);
    QCoreApplication::sendEvent(window, &changed);
  }
}

}  // namespace corvalis::desktop
