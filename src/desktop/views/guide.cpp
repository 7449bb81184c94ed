#include "desktop/views/guide.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTabBar>
#include <vector>

#include "desktop/widgets/windows/window_view.h"

namespace corvalis::desktop {

namespace {

struct Page {
  const char* form;
  const char* file;
  std::vector<const char*> tabs;  // the heading of each, in their order
};

const Page* PageOf(const QString& form) {
  static const Page pages[] = {
      {"MainForm", "main-menu.md", {}},
      {"RS232CForm", "setup.md", {}},
      {"ConnectionForm", "connection.md", {}},
      {"TaPtyMsForm", "on-air.md", {}},
      {"EditGroupsForm", "groups.md", {}},
      {"CtTpDiPiForm", "station.md", {"CT", "TP-DI", "PI-ECC-LIC"}},
      {"PsnRtPinAfForm",
       "programme.md",
       {"PSN", "PSN PLAN", "RT", "PIN", "AF Method A", "AF Method B", "PTYN"}},
      {"EonLiForm", "networks.md", {"EON", "LI", "TA EON"}},
      {"TdcIhForm", "channels.md", {"TDC", "IH", "TMC System", "TMC"}},
      {"RadioWindow", "radio.md", {}},
  };
  for (const Page& page : pages) {
    if (form == QLatin1String(page.form)) return &page;
  }
  return nullptr;
}

}  // namespace

QString GuideFolder() {
  const QString installed =
      QCoreApplication::applicationDirPath() + QStringLiteral("/../share/corvalis/guide");
  const QString built = QStringLiteral(CORVALIS_GUIDE);
  return QFileInfo::exists(installed) || !QFileInfo::exists(built) ? QDir::cleanPath(installed)
                                                                   : built;
}

Guide::Guide(std::function<QString()> language, const QString& folder)
    : window_(folder, std::move(language)) {
  qApp->installEventFilter(this);
}

bool Guide::OpenFor(const QWidget& window) {
  if (const auto* box = qobject_cast<const QMessageBox*>(&window)) {
    if (box->button(QMessageBox::Help) != nullptr) {
      window_.Open(QStringLiteral("link-errors.md"), box->text());
      return true;
    }
    return box->parentWidget() != nullptr && OpenFor(*box->parentWidget());
  }
  const Page* page = PageOf(window.objectName());
  if (page == nullptr) return false;
  const auto* tabs = window.findChild<QTabBar*>();
  const int tab = tabs == nullptr ? -1 : tabs->currentIndex();
  const bool known = tab >= 0 && tab < static_cast<int>(page->tabs.size());
  window_.Open(QString::fromLatin1(page->file),
               // A page names its tabs as the screen does, or in English.
               known ? tabs->tabText(tab).remove(u'&') + u'\n' +
                           QString::fromLatin1(page->tabs[static_cast<std::size_t>(tab)])
                     : QString());
  return true;
}

bool Guide::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !receiver->isWidgetType()) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
  // An open list keeps the mouse and the keyboard until it is closed.
  if (key.isAutoRepeat() || QApplication::activePopupWidget() != nullptr) return false;
  const QWidget* window = static_cast<QWidget*>(receiver)->window();
  const auto* view = dynamic_cast<const WindowView*>(window);
  return (view == nullptr || view->TakesInput()) && OpenFor(*window);
}

}  // namespace corvalis::desktop
