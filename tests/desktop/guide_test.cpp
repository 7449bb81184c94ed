// The operator's guide: its pages, and F1 in the real windows.

#include "desktop/views/guide.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <set>

#include "desktop/running_program.h"
#include "desktop/widgets/windows/front_window.h"
#include "desktop/widgets/windows/guide_window.h"
#include "link/link_error.h"

namespace corvalis::test {
namespace {

const QString kGuide = QStringLiteral("GuideWindow");

const QStringList kLanguages = {QStringLiteral("en"), QStringLiteral("de")};

desktop::GuidePages Pages(const QString& language) {
  return desktop::GuidePages(desktop::GuideFolder(), language);
}

QString PageText(const QString& path) {
  QFile page(path);
  return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

class GuideTest : public RunningProgram {
 protected:
  static QTextBrowser& Page() { return *OnScreen(kGuide)->findChild<QTextBrowser*>(); }
  // The heading that the page has been opened at.
  static std::string Heading() { return Page().textCursor().block().text().toStdString(); }
  static void PressF1(const QString& window) {
    QWidget* shown = OnScreen(window);
    ASSERT_NE(shown, nullptr) << window.toStdString();
    QWidget* focus = shown->focusWidget();
    QTest::keyClick(focus == nullptr ? shown : focus, Qt::Key_F1);
  }
};

// Each heading's depth: a page has the same parts in every language.
QString Parts(const QString& text) {
  QString depths;
  for (const QString& line : text.split(u'\n')) {
    if (line.startsWith(u'#')) depths += QString::number(line.indexOf(u' '));
  }
  return depths;
}

TEST(GuidePagesTest, EveryLinkAndPictureIsThereAndEveryPageIsReachedInEachLanguage) {
  static const QRegularExpression link(QStringLiteral("\\]\\(([^)]+)\\)"));
  for (const QString& language : kLanguages) {
    const desktop::GuidePages pages = Pages(language);
    std::set<QString> reached{QStringLiteral("index.md")};
    EXPECT_GT(pages.All().size(), 0);
    for (const QString& page : pages.All()) {
      SCOPED_TRACE(language.toStdString() + '/' + page.toStdString());
      const QString path = pages.PathOf(page);
      const QString text = PageText(path);
      EXPECT_TRUE(text.startsWith(u"# "));
      EXPECT_EQ(path.contains(u"/guide/de/"), language == u"de");
      EXPECT_EQ(Parts(text), Parts(PageText(Pages({}).PathOf(page))));
      for (auto found = link.globalMatch(text); found.hasNext();) {
        const QString to = found.next().captured(1);
        EXPECT_TRUE(QFileInfo(path).dir().exists(to)) << to.toStdString();
        reached.insert(to);
      }
    }
    for (const QString& page : pages.All())
      EXPECT_TRUE(reached.contains(page)) << page.toStdString();
  }
}

TEST(GuidePagesTest, EveryTextOfALinkErrorIsExplained) {
  for (const QString& language : kLanguages) {
    const QString text = PageText(Pages(language).PathOf(QStringLiteral("link-errors.md")));
    for (std::int16_t error = -1; error <= 27; ++error) {
      const std::string_view said = LinkErrorText(error);
      const QString words =
          QString::fromLatin1(said.data(), static_cast<int>(said.size())).simplified();
      EXPECT_TRUE(text.contains(words)) << error << words.toStdString();
    }
  }
}

TEST(GuidePagesTest, SearchFindsAllPlacesMarksThemAndGoesRound) {
  desktop::GuideWindow window(desktop::GuideFolder(), [] { return QStringLiteral("de_AT"); });
  window.Open(QStringLiteral("setup.md"), {});
  auto* search = window.findChild<QLineEdit*>(QStringLiteral("GuideSearch"));
  auto* places = window.findChild<QListWidget*>(QStringLiteral("GuidePlaces"));
  auto* page = window.findChild<QTextBrowser*>();
  search->setText(QStringLiteral("k"));  // one letter stands nearly everywhere
  EXPECT_EQ(places->count(), 0);
  search->setText(QStringLiteral("kunstKOPF"));
  ASSERT_GT(places->count(), 0);
  EXPECT_TRUE(places->isVisible());
  QTest::keyClick(search, Qt::Key_Return);
  EXPECT_EQ(window.windowTitle(), "Guide: CT - TP - DI - PI - ECC - LIC");
  EXPECT_EQ(page->textCursor().selectedText(), "Kunstkopf");
  EXPECT_EQ(page->extraSelections().size(), places->count());
  for (const auto& mark : page->extraSelections()) {
    EXPECT_EQ(mark.cursor.selectedText().toLower(), "kunstkopf");
  }
  QTest::keyClick(search, Qt::Key_Up);
  EXPECT_EQ(places->currentRow(), places->count() - 1);
  QTest::keyClick(search, Qt::Key_Escape);
  EXPECT_TRUE(search->text().isEmpty());
  EXPECT_FALSE(places->isVisible());
  EXPECT_TRUE(window.isVisible());
  EXPECT_TRUE(page->extraSelections().isEmpty());
}

TEST(GuidePagesTest, IsPrintedWholeWithItsPictures) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("guide.pdf"));
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path);
  const desktop::GuidePages pages = Pages({});
  pages.Print(printer, pages.All());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray pdf = file.readAll();
  EXPECT_GE(pdf.count("/Type /Page\n"), pages.All().size());
  EXPECT_GE(pdf.count("/Subtype /Image"), 20);
}

TEST(GuidePagesTest, AGuideThatIsNotThereIsSaidInTheWindow) {
  desktop::GuideWindow window(QStringLiteral("/nowhere"), [] { return QString(); });
  window.Open(QStringLiteral("setup.md"), {});
  const auto* page = window.findChild<QTextBrowser*>();
  EXPECT_TRUE(page->toPlainText().contains(QStringLiteral("/nowhere/setup.md can't be read")));
  EXPECT_EQ(window.windowTitle(), "Guide: This page is not there");
}

TEST(GuidePagesTest, NothingHangsOnTheGuide) {
  desktop::GuideWindow window(desktop::GuideFolder(), [] { return QString(); });
  window.Open(QStringLiteral("index.md"), {});
  EXPECT_EQ(desktop::FrontWindow(nullptr), nullptr);
  EXPECT_EQ(desktop::FrontWindow(&window), nullptr);
}

TEST_F(GuideTest, F1ShowsThePageOfEachWindowAndOfEachTab) {
  StartWithCoder({"--open"}, std::string(kLocalFile) + "[RDS Setup]\nGroups Enable=On\n");
  PressF1(kMain);
  ASSERT_NE(OnScreen(kGuide), nullptr);
  EXPECT_EQ(OnScreen(kGuide)->windowTitle(), "Guide: Main menu");
  for (const auto& [button, window] : {std::pair("TaPtyMsButton", kOnAir),
                                       {"PsnRtPinAfButton", kTexts},
                                       {"CtTpDiPiButton", kStation},
                                       {"EonLiButton", kNetworks},
                                       {"TdcIhButton", kChannels},
                                       {"EditGroupsButton", kGroups},
                                       {"ConnectionButton", kConnection},
                                       {"RS232CButton", kSetup}}) {
    SCOPED_TRACE(button);
    const QString title = QStringLiteral("Guide: ") + hand.Shown(kMain, button).remove(u'&');
    hand.Click(kMain, button);
    const auto* tabs = hand.Window(window).findChild<QTabBar*>();
    for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
      if (tabs != nullptr && !tabs->isTabVisible(tab)) continue;
      if (tabs != nullptr) hand.TurnToTab(window, tab);
      PressF1(window);
      EXPECT_EQ(OnScreen(kGuide)->windowTitle(), title);
      EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0);
      if (tabs == nullptr) continue;
      EXPECT_EQ(Heading(), tabs->tabText(tab).remove(u'&').toStdString());
    }
    hand.Close(window);
  }
}

TEST_F(GuideTest, TheScreenUnderItStaysAsItIs) {
  StartWithCoder({"--open"});
  OpenIdentity();
  auto* pi = qobject_cast<QLineEdit*>(&hand.Control(kStation, "PiText"));
  pi->setFocus();
  pi->selectAll();
  hand.Strike("12");  // too short to be left
  PressF1(kStation);
  EXPECT_EQ(Heading(), "PI-ECC-LIC");
  ASSERT_TRUE(QTest::qWaitForWindowActive(OnScreen(kGuide)));
  QTest::keyClick(&Page(), Qt::Key_Tab);
  QTest::keyClick(&Page(), Qt::Key_Escape);
  EXPECT_EQ(OnScreen(kGuide), nullptr);
  ASSERT_NE(OnScreen(kStation), nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(OnScreen(kStation)));
  EXPECT_EQ(Focus(), "PiText");
  EXPECT_EQ(pi->text(), "12");
  EXPECT_EQ(beeps, 0);
}

TEST_F(GuideTest, ABoxHelpsWithoutBeingAnswered) {
  Plug("/dev/corvalis-unplugged");
  int helped = 0;
  during_box = [&] {
    QMessageBox* box = desktop::StandingBox();
    ASSERT_NE(box, nullptr);
    QAbstractButton* help = box->button(QMessageBox::Help);
    ASSERT_NE(help, nullptr);
    if (helped % 2 == 0) {
      QTest::mouseClick(help, Qt::LeftButton);
    } else {
      QTest::keyClick(box, Qt::Key_F1);
    }
    ++helped;
    EXPECT_TRUE(box->isVisible());
    ASSERT_NE(OnScreen(kGuide), nullptr);
    EXPECT_EQ(Heading(), helped == 1 ? "No such file or directory" : "[ TX ] serial unconnected");
    // It takes input in front of the box; what comes from the window system shows it.
    auto* contents = OnScreen(kGuide)->findChild<QPushButton*>();
    QTest::mouseClick(OnScreen(kGuide)->windowHandle(), Qt::LeftButton, {},
                      contents->mapTo(OnScreen(kGuide), contents->rect().center()));
    EXPECT_EQ(OnScreen(kGuide)->windowTitle(), "Guide: The operator's guide");
    if (helped == 1) return;  // the guide stays when the box goes
    QTest::keyClick(&Page(), Qt::Key_Escape);
    EXPECT_EQ(OnScreen(kGuide), nullptr);
    EXPECT_TRUE(box->isVisible());
  };
  Start(kLocalFile);
  EXPECT_EQ(Boxes(), Lines{"COM 1 (/dev/corvalis-unplugged): No such file or directory"});
  EXPECT_NE(OnScreen(kGuide), nullptr);
  hand.Click(kMain, "TaPtyMsButton");
  hand.Click(kOnAir, "Command2");
  EXPECT_EQ(Boxes(), Lines{"TA: [ TX ] serial unconnected  "});
  EXPECT_EQ(helped, 2);
}

TEST_F(GuideTest, ATransferGoesOnWhileF1IsPressed) {
  StartWithCoder({"--open", "--late", "40"});
  OpenIdentity();
  during_transfer = [] {
    PressF1(kTransfer);
    PressF1(kStation);
    EXPECT_EQ(OnScreen(kGuide), nullptr);
  };
  hand.Click(kStation, "SendPiCommand");
  EXPECT_EQ(Held("PI 00"), "5000");
}

}  // namespace
}  // namespace corvalis::test
