#pragma once

#include <QString>
#include <QStringList>
#include <vector>

class QPrinter;

namespace corvalis::desktop {

/// A place of the guide where what was searched for stands.
struct GuidePlace {
  QString file;    ///< the page, as `GuidePages::All` names it
  QString title;   ///< of the page
  QString around;  ///< the line, or what of it stands next to the place
  int position;    ///< of the first character, in the page as a document
};

/// The pages of the guide in a language. A page that has not been translated is the English one.
class GuidePages {
 public:
  /// `folder` holds the English pages, "index.md" among them, and a folder for each other language,
  /// as "de". `language` is a code as "de" or "de_AT".
  GuidePages(QString folder, const QString& language);

  /// The path of a page; that of the English one if there is no other.
  [[nodiscard]] QString PathOf(const QString& file) const;
  /// The names of all pages, "index.md" first.
  [[nodiscard]] QStringList All() const;
  /// Where `words` stand, without regard to capitals, page by page; nothing for blanks.
  [[nodiscard]] std::vector<GuidePlace> Find(const QString& words) const;

  /// Prints pages one behind the other, each from the top of a sheet.
  void Print(QPrinter& printer, const QStringList& files) const;

 private:
  struct Line {
    QString text;
    int position;
  };
  struct Page {
    QString file;
    QString title;
    std::vector<Line> lines;
  };

  const std::vector<Page>& Read() const;

  QString folder_;
  QString language_;
  mutable std::vector<Page> read_;  // at the first search
};

/// The text of a page whose file is not there.
[[nodiscard]] QString PageThatIsNotThere(const QString& path);

}  // namespace corvalis::desktop
