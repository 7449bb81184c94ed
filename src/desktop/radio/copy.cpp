#include "desktop/radio/copy.h"

#include <QApplication>
#include <QClipboard>
#include <QMainWindow>
#include <QStatusBar>

#include "desktop/radio/in_words.h"

namespace corvalis::desktop {

namespace {

constexpr int kToldMilliseconds = 3000;
constexpr int kLongest = 80;  // characters of it that are told

}  // namespace

void Copy(const QWidget& from, const QString& text) {
  if (text.isEmpty()) return;
  QApplication::clipboard()->setText(text);
  const QString told = text.size() > kLongest ? text.first(kLongest) + u'…' : text;
  if (auto* window = qobject_cast<QMainWindow*>(from.window())) {
    window->statusBar()->showMessage(InWords("Copied: %1", {told.toStdString()}),
                                     kToldMilliseconds);
  }
}

}  // namespace corvalis::desktop
