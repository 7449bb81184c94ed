#include "desktop/widgets/windows/guide_window.h"

#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QWindow>
#include <algorithm>

#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/front_window.h"

namespace corvalis::desktop {

namespace {

constexpr Length kWidth{1000};
constexpr Length kHeight{760};

/// A page whose pictures are no wider than it is. In place of one that isn't there it says so,
/// whether a key or a link has led there.
class GuidePage : public QTextBrowser {
 public:
  explicit GuidePage(QWidget* parent) : QTextBrowser(parent) {
    setAccessibleName(QStringLiteral("Page of the guide"));
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // pictures know their room beforehand
    document()->setDocumentMargin(kApart);
    document()->setIndentWidth(2 * kGap);
  }

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    const QString path = document()->baseUrl().resolved(name).toLocalFile();
    QFile file(path);
    if (type == QTextDocument::ImageResource) {
      QPixmap picture(path);
      const qreal dots = devicePixelRatioF();
      const int room = static_cast<int>((viewport()->width() - 2 * kApart) * dots);
      if (picture.width() > room) picture = picture.scaledToWidth(room, Qt::SmoothTransformation);
      // Where the screen has more dots than places, the picture stays sharp.
      picture.setDevicePixelRatio(std::clamp(picture.width() * dots / room, 1.0, dots));
      return picture;
    }
    if (file.open(QIODevice::ReadOnly)) return file.readAll();
    return QStringLiteral(
               "# This page is not there\n\nThe file %1 can't be read.\n\n"
               "The guide comes with the program. Install the program again, or put the "
               "folder of the guide back in its place.\n")
        .arg(path);
  }
};

}  // namespace

GuideWindow::GuideWindow(const QString& folder) : folder_(folder), page_(new GuidePage(this)) {
  setObjectName(QStringLiteral("GuideWindow"));
  auto* contents = new QPushButton(QStringLiteral("&Contents"), this);
  auto* back = new QPushButton(QStringLiteral("&Back"), this);
  auto* close = new QPushButton(QStringLiteral("C&lose"), this);
  back->setEnabled(false);
  connect(contents, &QPushButton::clicked, this, [this] { Open(QStringLiteral("index.md"), {}); });
  connect(back, &QPushButton::clicked, page_, &QTextBrowser::backward);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(close, &QPushButton::clicked, this, &QWidget::close);
  connect(page_, &QTextBrowser::sourceChanged, this, [this] { Dress(); });

  auto* row = new QHBoxLayout;
  row->addWidget(contents);
  row->addWidget(back);
  row->addStretch();
  row->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->addLayout(row);
  column->addWidget(page_, 1);
  setTabOrder(page_, contents);
  setTabOrder(contents, back);
  setTabOrder(back, close);
  resize(QSize(kWidth, kHeight).boundedTo(screen()->availableSize()));
}

void GuideWindow::Open(const QString& file, const QString& about) {
  Present();  // first, so that the pictures know their room
  page_->setSource(QUrl::fromLocalFile(folder_ + u'/' + file), QTextDocument::MarkdownResource);
  GoToHeading(about);
  page_->setFocus();
}

void GuideWindow::Dress() {
  setWindowTitle(QStringLiteral("Guide: ") + page_->document()->begin().text());
  QTextBlockFormat apart;
  apart.setTopMargin(kApart);
  for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 1) QTextCursor(block).mergeBlockFormat(apart);
  }
}

void GuideWindow::GoToHeading(const QString& about) {
  const QString wanted = about.simplified();
  QTextBlock found;
  for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() < 2 || !wanted.contains(block.text())) continue;
    if (!found.isValid() || block.length() > found.length()) found = block;
  }
  if (!found.isValid()) return;
  page_->setTextCursor(QTextCursor(found));
  page_->verticalScrollBar()->setValue(page_->verticalScrollBar()->value() +
                                       page_->cursorRect().top() - kTight);
}

void GuideWindow::Present() {
  // While a modal box stands, the toolkit gives input to what stands before the box alone.
  const QWidget* box = StandingBox();
  QWindow* owner = box == nullptr ? nullptr : box->windowHandle();
  winId();  // a window of the system must be there to be tied to another
  if (windowHandle()->transientParent() != owner) {
    hide();
    windowHandle()->setTransientParent(owner);
  }
  if (isMinimized()) showNormal();
  show();
  raise();
  activateWindow();
}

void GuideWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape || event->modifiers() != Qt::NoModifier) {
    QWidget::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    close();
  }
}

// Not every window system gives the keyboard back by itself, and it can't before the window is
// gone.
void GuideWindow::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  QMetaObject::invokeMethod(
      this,
      [this] {
        QWidget* front = FrontWindow(nullptr);
        if (isHidden() && front != nullptr) front->activateWindow();
      },
      Qt::QueuedConnection);
}

}  // namespace corvalis::desktop
