#include "desktop/widgets/windows/guide_window.h"

#include <QApplication>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPixmap>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "config/words.h"
#include "desktop/text.h"
#include "desktop/widgets/look/language.h"
#include "desktop/widgets/look/mnemonics.h"
#include "desktop/widgets/look/style.h"
#include "desktop/widgets/windows/front_window.h"

namespace corvalis::desktop {

namespace {

constexpr Length kWidth{1000};
constexpr Length kHeight{760};
constexpr Length kSearchWidth{180};
constexpr int kPlaceLines = 5;
const QString kContents = QStringLiteral("index.md");

/// A page whose pictures are no wider than it is. In place of one that isn't there it says so,
/// whether a key or a link has led there.
class GuidePage : public QTextBrowser {
 public:
  explicit GuidePage(QWidget* parent) : QTextBrowser(parent) {
    CallByWord(*this, Wording("Page of the guide"));
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
    return PageThatIsNotThere(path);
  }
};

}  // namespace

GuideWindow::GuideWindow(QString folder, std::function<QString()> language)
    : folder_(std::move(folder)),
      language_(std::move(language)),
      spoken_(language_()),
      pages_(folder_, spoken_),
      page_(new GuidePage(this)),
      search_(new QLineEdit(this)),
      count_(new QLabel(this)),
      list_(new QListWidget(this)) {
  setObjectName(QStringLiteral("GuideWindow"));
  auto* contents = new QPushButton(this);
  ShowWord(*contents, Wording("Contents"));
  auto* back = new QPushButton(this);
  ShowWord(*back, Wording("Back"));
  auto* label = new QLabel(this);
  ShowWord(*label, Wording("Search"));
  auto* print = new QPushButton(this);
  ShowWord(*print, Wording("Print..."));
  auto* close = new QPushButton(this);
  ShowWord(*close, Wording("Close"));
  FollowLanguage(*this, [this] { GiveMnemonics(*this); });
  back->setEnabled(false);
  label->setBuddy(search_);
  search_->setObjectName(QStringLiteral("GuideSearch"));
  CallByWord(*search_, Wording("Search in all pages"));
  search_->setClearButtonEnabled(true);
  search_->setMinimumWidth(kSearchWidth);
  search_->installEventFilter(this);
  list_->setObjectName(QStringLiteral("GuidePlaces"));
  CallByWord(*list_, Wording("Places found"));
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setVisible(false);
  list_->setFixedHeight(kPlaceLines * kControlHeight);
  connect(contents, &QPushButton::clicked, this, [this] { Open(kContents, {}); });
  connect(back, &QPushButton::clicked, page_, &QTextBrowser::backward);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
  connect(print, &QPushButton::clicked, this, [this] { Print(); });
  connect(close, &QPushButton::clicked, this, &QWidget::close);
  connect(page_, &QTextBrowser::sourceChanged, this,
          [this](const QUrl& page) { Dress(page.fileName()); });
  connect(search_, &QLineEdit::textChanged, this, [this] { Search(); });
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { ShowPlace(row); });
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, search_, [this] {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
  });
  connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
          [this] { Print(); });

  auto* row = new QHBoxLayout;
  row->addWidget(contents);
  row->addWidget(back);
  row->addSpacing(kGap);
  row->addWidget(label);
  row->addWidget(search_, 1);
  row->addWidget(count_);
  row->addSpacing(kGap);
  row->addWidget(print);
  row->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->addLayout(row);
  column->addWidget(list_);
  column->addWidget(page_, 1);
  QWidget* before = page_;
  for (QWidget* next :
       std::initializer_list<QWidget*>{contents, back, search_, list_, print, close}) {
    setTabOrder(before, next);
    before = next;
  }
  // A page keeps the colour of its links.
  FollowScheme(*page_, [this] {
    if (page_->source().isEmpty()) return;
    const int place = page_->verticalScrollBar()->value();
    page_->reload();
    Dress(file_);
    page_->verticalScrollBar()->setValue(place);
  });
  resize(QSize(kWidth, kHeight).boundedTo(screen()->availableSize()));
}

void GuideWindow::Open(const QString& file, const QString& about) {
  if (language_() != spoken_) {
    spoken_ = language_();
    pages_ = GuidePages(folder_, spoken_);
    Search();
  }
  Present();  // first, so that the pictures know their room
  ShowPage(file);
  GoToHeading(about);
  page_->setFocus();
}

void GuideWindow::ShowPage(const QString& file) {
  page_->setSource(QUrl::fromLocalFile(pages_.PathOf(file)), QTextDocument::MarkdownResource);
}

void GuideWindow::Dress(const QString& file) {
  file_ = file;
  setWindowTitle(Wording("Guide: %1", page_->document()->begin().text()).Text());
  QTextBlockFormat apart;
  apart.setTopMargin(kApart);
  for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 1) QTextCursor(block).mergeBlockFormat(apart);
  }
  MarkPlaces();
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

// One letter stands nearly everywhere.
void GuideWindow::Search() {
  const QString words = search_->text().simplified();
  places_ = words.size() < 2 ? std::vector<GuidePlace>() : pages_.Find(words);
  const QSignalBlocker quiet(list_);
  list_->clear();
  for (const GuidePlace& place : places_) {
    list_->addItem(place.title + QStringLiteral(": ") + place.around);
  }
  list_->setVisible(!places_.empty());
  count_->setText(words.size() < 2  ? QString()
                  : places_.empty() ? Wording("not found").Text()
                                    : Wording("%1 places", QString::number(places_.size())).Text());
  MarkPlaces();
}

void GuideWindow::ShowPlace(int row) {
  if (row < 0) return;
  const GuidePlace place = places_[static_cast<std::size_t>(row)];
  if (place.file != file_) ShowPage(place.file);
  count_->setText(
      FromBytes(Word("%1 of %2", {std::to_string(row + 1), std::to_string(places_.size())})));
  QTextCursor cursor(page_->document());
  cursor.setPosition(place.position);
  cursor.setPosition(place.position + static_cast<int>(search_->text().simplified().size()),
                     QTextCursor::KeepAnchor);
  page_->setTextCursor(cursor);
  // In the middle, where the eye is.
  QScrollBar* bar = page_->verticalScrollBar();
  bar->setValue(bar->value() + page_->cursorRect().top() - page_->viewport()->height() / 3);
}

void GuideWindow::MarkPlaces() {
  QList<QTextEdit::ExtraSelection> marks;
  for (const GuidePlace& place : places_) {
    if (place.file != file_) continue;
    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(page_->document());
    mark.cursor.setPosition(place.position);
    mark.cursor.setPosition(place.position + static_cast<int>(search_->text().simplified().size()),
                            QTextCursor::KeepAnchor);
    mark.format.setBackground(QColor(colours::kPressed));
    mark.format.setForeground(QColor(colours::kText));
    marks << mark;
  }
  page_->setExtraSelections(marks);
}

void GuideWindow::Step(int by) {
  const int count = list_->count();
  if (count == 0) return;
  const int row = list_->currentRow();
  list_->setCurrentRow(row < 0 ? (by > 0 ? 0 : count - 1) : (row + by + count) % count);
}

// "All" prints the whole guide, "Current page" the page on the screen.
void GuideWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(windowTitle());
  QPrintDialog dialog(&printer, this);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
  dialog.setPrintRange(QAbstractPrintDialog::CurrentPage);
  if (dialog.exec() != QDialog::Accepted) return;
  const bool all = dialog.printRange() != QAbstractPrintDialog::CurrentPage;
  pages_.Print(printer, all ? pages_.All() : QStringList{file_});
}

bool GuideWindow::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver != search_ || event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  switch (key.key()) {
    case Qt::Key_Down:
      Step(1);
      return true;
    case Qt::Key_Up:
      Step(-1);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Step(key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
      return true;
    case Qt::Key_Escape:
      if (search_->text().isEmpty()) return false;
      search_->clear();
      return true;
    default:
      return false;
  }
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
