#include "desktop/widgets/windows/guide_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextDocument>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "desktop/text.h"

namespace corvalis::desktop {

namespace {

constexpr int kAround = 40;  // characters before and behind a place
const QString kFirst = QStringLiteral("index.md");

QString TextOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll())
                                        : PageThatIsNotThere(path);
}

QString Around(const QString& line, qsizetype at, qsizetype length) {
  const qsizetype from = std::max<qsizetype>(at - kAround, 0);
  const qsizetype to = std::min(at + length + kAround, line.size());
  return (from > 0 ? QStringLiteral("\u2026") : QString()) + line.mid(from, to - from) +
         (to < line.size() ? QStringLiteral("\u2026") : QString());
}

// Pictures as wide as this part of the sheet at the most.
constexpr double kPictureShare = 0.8;

// Gives each picture of a page the size that it has on paper, in dots of a screen: the layout makes
// dots of the printer of them.
void SizePictures(QTextDocument& page, double sheet) {
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    for (auto part = block.begin(); !part.atEnd(); ++part) {
      QTextImageFormat format = part.fragment().charFormat().toImageFormat();
      if (!format.isValid()) continue;
      const QImage picture(page.baseUrl().resolved(QUrl(format.name())).toLocalFile());
      if (picture.isNull()) continue;
      const double width = std::min<double>(picture.width(), kPictureShare * sheet);
      format.setWidth(width);
      format.setHeight(width * picture.height() / picture.width());
      QTextCursor cursor(&page);
      cursor.setPosition(part.fragment().position());
      cursor.setPosition(part.fragment().position() + part.fragment().length(),
                         QTextCursor::KeepAnchor);
      cursor.setCharFormat(format);
      break;  // a picture stands in a line of its own
    }
  }
}

}  // namespace

QString PageThatIsNotThere(const QString& path) {
  return QStringLiteral("# %1\n\n%2\n\n%3\n")
      .arg(Wording("This page is not there").Text(),
           Wording("The file %1 can't be read.", path).Text(),
           Wording("The guide comes with the program. Install the program again, or put the "
                   "folder of the guide back in its place.")
               .Text());
}

GuidePages::GuidePages(QString folder, const QString& language)
    : folder_(std::move(folder)), language_(language.section(u'_', 0, 0)) {}

QString GuidePages::PathOf(const QString& file) const {
  const QString path = folder_ + u'/' + language_ + u'/' + file;
  return !language_.isEmpty() && QFileInfo::exists(path) ? path : folder_ + u'/' + file;
}

QStringList GuidePages::All() const {
  QStringList files = QDir(folder_).entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
  if (files.removeOne(kFirst)) files.prepend(kFirst);
  return files;
}

const std::vector<GuidePages::Page>& GuidePages::Read() const {
  if (!read_.empty()) return read_;
  for (const QString& file : All()) {
    QTextDocument document;
    document.setMarkdown(TextOf(PathOf(file)));
    Page page{.file = file, .title = document.begin().text(), .lines = {}};
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      if (!block.text().isEmpty()) page.lines.push_back({block.text(), block.position()});
    }
    read_.push_back(std::move(page));
  }
  return read_;
}

std::vector<GuidePlace> GuidePages::Find(const QString& words) const {
  std::vector<GuidePlace> found;
  const QString wanted = words.simplified();
  if (wanted.isEmpty()) return found;
  for (const Page& page : Read()) {
    for (const Line& line : page.lines) {
      for (qsizetype at = line.text.indexOf(wanted, 0, Qt::CaseInsensitive); at >= 0;
           at = line.text.indexOf(wanted, at + wanted.size(), Qt::CaseInsensitive)) {
        found.push_back({.file = page.file,
                         .title = page.title,
                         .around = Around(line.text, at, wanted.size()),
                         .position = line.position + static_cast<int>(at)});
      }
    }
  }
  return found;
}

void GuidePages::Print(QPrinter& printer, const QStringList& files) const {
  QPainter painter(&printer);
  const QSizeF sheet(printer.width(), printer.height());
  const double scale = printer.logicalDpiX() / 96.0;  // to dots of a screen, as layouts count them
  bool first = true;
  for (const QString& file : files) {
    const QString path = PathOf(file);
    QTextDocument page;
    page.setBaseUrl(QUrl::fromLocalFile(path));
    page.setMarkdown(TextOf(path));
    SizePictures(page, sheet.width() / scale);
    page.documentLayout()->setPaintDevice(&printer);
    page.setPageSize(sheet);
    for (int number = 0; number < page.pageCount(); ++number) {
      if (!std::exchange(first, false)) printer.newPage();
      painter.save();
      painter.translate(0, -number * sheet.height());
      page.drawContents(&painter, QRectF(QPointF(0, number * sheet.height()), sheet));
      painter.restore();
    }
  }
}

}  // namespace corvalis::desktop
