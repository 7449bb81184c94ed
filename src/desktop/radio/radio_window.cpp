#include "desktop/radio/radio_window.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QSocketNotifier>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desktop/radio/comparison_page.h"
#include "desktop/radio/face_page.h"
#include "desktop/radio/in_words.h"
#include "desktop/text.h"
#include "desktop/widgets/look/reading_order.h"
#include "desktop/widgets/look/style.h"
#include "platform/platform.h"

namespace corvalis::desktop {

namespace {

using std::chrono::milliseconds;

constexpr Length kWidth{1280};
constexpr Length kHeight{1090};
constexpr milliseconds kShow{50};
constexpr milliseconds kTick{250};
constexpr milliseconds kCompare{500};

}  // namespace

RadioWindow::RadioWindow() {
  setObjectName(QStringLiteral("RadioWindow"));
  setAcceptDrops(true);
  auto* middle = new QWidget(this);
  auto* column = new QVBoxLayout(middle);
  column->setContentsMargins(kApart, kNear, kApart, 0);
  source_ = new QLabel(middle);
  source_->setObjectName(QStringLiteral("RadioSource"));
  source_->setTextFormat(Qt::PlainText);
  source_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  SetInk(*source_, colours::kQuietText);
  column->addWidget(source_);
  tabs_ = new QTabWidget(middle);
  tabs_->setDocumentMode(true);
  face_ = new FacePage(tabs_);
  comparison_ = new ComparisonPage(form_, tabs_);
  tabs_->addTab(face_, InWords("Ra&dio"));
  tabs_->addTab(comparison_, InWords("&Comparison"));
  column->addWidget(tabs_, 1);
  setCentralWidget(middle);
  statusBar()->setSizeGripEnabled(false);
  MakeMenus();

  comparison_->OpenAsked = [this] { AskStation(); };
  comparison_->AgainAsked = [this] {
    Told(form_.ReadStationAgain());
    comparison_->ShowStation();
    Compare();
  };
  comparison_->SaveAsked = [this] { AskSave(); };
  connect(tabs_, &QTabWidget::currentChanged, this, [this] { Compare(); });
  show_.setSingleShot(true);
  show_.setInterval(kShow);
  connect(&show_, &QTimer::timeout, this, [this] { Show(); });
  more_.setSingleShot(true);
  more_.setInterval(0);
  connect(&more_, &QTimer::timeout, this, [this] { Listen(); });
  tick_.setInterval(kTick);
  connect(&tick_, &QTimer::timeout, this, [this] { Listen(); });
  tick_.start();
  compare_.setInterval(kCompare);
  connect(&compare_, &QTimer::timeout, this, [this] { Compare(); });
  compare_.start();
  Show();
  SetReadingOrder(*this);
  resize(QSize(kWidth, kHeight).boundedTo(screen()->availableSize()));
}

RadioWindow::~RadioWindow() = default;

void RadioWindow::MakeMenus() {
  QMenu* file = menuBar()->addMenu(InWords("&File"));
  const auto add = [this](QMenu* menu, const QString& word, const QKeySequence& keys, auto run) {
    QAction* action = menu->addAction(word);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, run);
  };
  add(file, InWords("&Open a source of groups..."), QKeySequence::Open, [this] { AskSource(); });
  add(file, InWords("Compare with a &station file..."), Qt::CTRL | Qt::SHIFT | Qt::Key_O,
      [this] { AskStation(); });
  add(file, InWords("Save the comparison &as..."), QKeySequence::Save, [this] { AskSave(); });
  file->addSeparator();
  add(file, InWords("&Quit"), Qt::CTRL | Qt::Key_Q, [this] { close(); });
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, [this] { close(); });
}

std::string RadioWindow::OpenSource(const std::string& path) {
  notifier_.reset();
  std::string wrong = form_.OpenSource(path);
  if (wrong.empty()) time_ = {};
  Listen();
  return wrong;
}

std::string RadioWindow::OpenStation(const std::string& path) {
  std::string wrong = form_.OpenStation(path);
  if (wrong.empty()) {
    comparison_->ShowStation();
    Compare();
    ShowLater();
  }
  return wrong;
}

void RadioWindow::ShowComparison() { tabs_->setCurrentWidget(comparison_); }

// A portion; the next one comes after what else there is to do.
void RadioWindow::Listen() {
  if (notifier_) notifier_->setEnabled(false);
  const Clock& clock = *Machine().clock;
  if (form_.Listen(clock.Steady())) {
    more_.start();
  } else {
    Watch();
  }
  time_.Set(form_.Source().Now(), clock.Now());
  ShowLater();
}

void RadioWindow::Watch() {
  const int descriptor = form_.Source().Source().Descriptor();
  if (descriptor < 0) {
    notifier_.reset();
    return;
  }
  if (!notifier_ || notifier_->socket() != descriptor) {
    notifier_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { Listen(); });
  }
  notifier_->setEnabled(true);
}

void RadioWindow::ShowLater() {
  if (!show_.isActive()) show_.start();
}

void RadioWindow::Show() {
  const std::string& path = form_.Source().Source().Path();
  QString source = QString::fromStdString(form_.SourceInWords());
  if (!path.empty()) source = Harmless(FromFileName(path)) + QStringLiteral(": ") + source;
  if (source != source_->text()) {
    source_->setText(source);
    source_->setToolTip(source.toHtmlEscaped());
  }
  const radio::Face face = radio::FaceOf(form_.Heard(), form_.Station(), time_);
  const QString name = QString::fromStdString(face.name.text).trimmed();
  const bool heard = face.name.hearing == air::Hearing::kHeard && !name.isEmpty();
  if (heard || windowTitle().isEmpty()) {
    setWindowTitle(heard ? name + QStringLiteral(" - ") + InWords("Radio") : InWords("Radio"));
  }
  face_->Show(face);
}

void RadioWindow::Compare() {
  if (tabs_->currentWidget() != comparison_ && !form_.Rows().empty()) return;
  if (form_.Compare(Machine().clock->Now())) comparison_->Show();
}

void RadioWindow::Told(const std::string& wrong) {
  if (wrong.empty()) return;
  auto* box = new QMessageBox(QMessageBox::Warning, InWords("Radio"), QString::fromStdString(wrong),
                              QMessageBox::Ok, this);
  box->setTextFormat(Qt::PlainText);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->open();
}

void RadioWindow::AskSource() {
  const QString path = QFileDialog::getOpenFileName(this, InWords("Open a source of groups"));
  if (!path.isEmpty()) Told(OpenSource(ToFileName(path)));
}

void RadioWindow::AskStation() {
  const QString path =
      QFileDialog::getOpenFileName(this, InWords("Compare with a station file"), {},
                                   InWords("Station files") + QStringLiteral(" (*.rds *.RDS)"));
  if (path.isEmpty()) return;
  const std::string wrong = OpenStation(ToFileName(path));
  Told(wrong);
  if (wrong.empty()) ShowComparison();
}

void RadioWindow::AskSave() {
  if (form_.Station() == nullptr) return Told(InWords("nothing to compare").toStdString());
  form_.Compare(Machine().clock->Now());
  comparison_->Show();
  const QString path = QFileDialog::getSaveFileName(
      this, InWords("Save the comparison as"), QStringLiteral("comparison.txt"),
      InWords("Text") + QStringLiteral(" (*.txt);;CSV (*.csv)"));
  if (!path.isEmpty()) Told(comparison_->Save(path));
}

void RadioWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void RadioWindow::dropEvent(QDropEvent* event) {
  for (const QUrl& url : event->mimeData()->urls()) {
    const QString path = url.toLocalFile();
    if (path.isEmpty()) continue;
    if (path.endsWith(QStringLiteral(".rds"), Qt::CaseInsensitive)) {
      const std::string wrong = OpenStation(ToFileName(path));
      Told(wrong);
      if (wrong.empty()) ShowComparison();
    } else {
      Told(OpenSource(ToFileName(path)));
    }
  }
}

}  // namespace corvalis::desktop
