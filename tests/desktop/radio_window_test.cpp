// The window of the radio, at a file that a simulated Coder has radiated.

#include "desktop/radio/radio_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include "config/language_data.h"
#include "machine/qt_time.h"
#include "platform/platform.h"
#include "radio/language.h"
#include "support/places.h"

namespace corvalis::test {
namespace {

class RadioWindowTest : public testing::Test {
 protected:
  RadioWindowTest() {
    platform_.clock = &time_;
    platform_.pump = &time_;
    platform_.profiles = &profiles_;
    InstallPlatform(&platform_);
  }
  ~RadioWindowTest() override { InstallPlatform(nullptr); }

  [[nodiscard]] std::string Place(const char* name) const {
    return folder_.filePath(QString::fromLatin1(name)).toStdString();
  }
  // Six minutes of the sample's air.
  void Radiate(const char* name) const {
    const QString program = QString::fromLocal8Bit(kCoderProgram);
    const QString memory = QString::fromLocal8Bit(kTestData) + QStringLiteral("/lake-fm.memory");
    QProcess coder;
    coder.setStandardInputFile(QProcess::nullDevice());
    coder.start(program,
                {QStringLiteral("--memory"), memory, QStringLiteral("--air"),
                 QString::fromStdString(Place(name)), QStringLiteral("--air-speed"),
                 QStringLiteral("0"), QStringLiteral("--air-groups"), QStringLiteral("4200")});
    ASSERT_TRUE(coder.waitForFinished());
  }
  // The sample with another type of programme.
  void Change(const char* name) const {
    QFile sample(QString::fromLocal8Bit(kExamples) + QStringLiteral("/station.rds"));
    ASSERT_TRUE(sample.open(QIODevice::ReadOnly));
    QFile changed(QString::fromStdString(Place(name)));
    ASSERT_TRUE(changed.open(QIODevice::WriteOnly));
    changed.write(sample.readAll().replace("\r\nPTY=10\r\n", "\r\nPTY=11\r\n"));
  }

  QTemporaryDir folder_;
  machine::QtTime time_;
  ProfileStore profiles_;
  Platform platform_;
};

TEST_F(RadioWindowTest, ShowsWhatIsHeardAndNamesTheOneThingThatDiffers) {
  Radiate("air.txt");
  Change("station.rds");
  desktop::RadioWindow window;
  window.show();
  const auto* source = window.findChild<QLabel*>(QStringLiteral("RadioSource"));
  ASSERT_NE(source, nullptr);
  EXPECT_EQ(source->text(), QStringLiteral("no source"));
  EXPECT_NE(window.OpenSource(Place("missing.txt")), "");
  ASSERT_EQ(window.OpenSource(Place("air.txt")), "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return source->text().contains(u"4200 groups, "); }));

  auto* text = window.findChild<QLabel*>(QStringLiteral("RadioText1"));
  auto* name = window.findChild<QLabel*>(QStringLiteral("RadioName"));
  EXPECT_EQ(name->text().size(), 8);
  EXPECT_FALSE(text->text().isEmpty());
  EXPECT_GT(window.findChild<QTableWidget*>(QStringLiteral("RadioNetworks"))->rowCount(), 1);
  const QString shown = name->text();
  name->setFocus();
  QTest::keyClick(name, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), shown);

  ASSERT_EQ(window.OpenStation(Place("station.rds")), "");
  window.ShowComparison();
  const auto* table = window.findChild<QTableWidget*>(QStringLiteral("RadioComparison"));
  QStringList differing;
  for (int row = 0; row < table->rowCount(); ++row) {
    if (table->item(row, 1)->text() == u"differs") differing << table->item(row, 0)->text();
  }
  EXPECT_EQ(differing, QStringList(QStringLiteral("PTY")));
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(RadioWindowTest, SpeaksTheLanguageOfTheStationFileAndOnlyReadsIt) {
  const QByteArray words = "[Words]\r\nnot heard yet=noch nicht empfangen\r\n";
  const auto write = [this](const char* name, const QByteArray& text) {
    QFile file(QString::fromStdString(Place(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  };
  write("German.ini", words);
  write("station.rds",
        "[PI]\r\n[Language]\r\nDefault=0\r\nName0=Deutsch\r\nFileName0=German.ini\r\n");
  radio::TakeLanguage(Place("station.rds"));
  {
    const desktop::RadioWindow window;
    const auto* lamp = window.findChild<QLabel*>(QStringLiteral("RadioLamp2"));
    EXPECT_EQ(lamp->text(), QStringLiteral("TA\nnoch nicht empfangen"));
  }
  languageData = nullptr;
  QFile file(QString::fromStdString(Place("German.ini")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), words);
}

}  // namespace
}  // namespace corvalis::test
