#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>
#include <memory>

#include "desktop/coder_process.h"
#include "machine/line_hold.h"
#include "support/places.h"

namespace corvalis::test {
namespace {

struct Ended {
  int code = -1;
  std::string out;
  std::string err;
};

Ended Start(const QStringList& words, const QByteArray& input = {}) {
  QProcess process;
  process.start(CORVALIS_SEND_PROGRAM, words);
  process.write(input);
  process.closeWriteChannel();
  if (!process.waitForFinished()) return {};
  return {process.exitCode(), process.readAllStandardOutput().toStdString(),
          process.readAllStandardError().toStdString()};
}

TEST(SendProgram, SendsOverARealLineAndEndsWithItsCodes) {
  const QTemporaryDir folder;
  const QString line = folder.filePath("line");
  const QStringList station = {"--file", QString(kExamples) + "/station.rds", "--port", line};
  EXPECT_EQ(Start(station + QStringList{"ta", "on"}).code, 3);
  auto coder = std::make_unique<CoderProcess>(QStringList{"--link", line, "--print", "--dump"});
  EXPECT_EQ(Start(station + QStringList{"ta", "on"}).out, "");
  EXPECT_EQ(coder->Arrived(),
            (std::vector<std::string>{"ENQ", "Address <- \"?????\"", "TA <- 1 (on)"}));
  const Ended lines = Start(station + QStringList{"-v", "-"}, "ta off\nread ta\nps 0 ABCDEFGHI\n");
  EXPECT_EQ(lines.code, 2);
  EXPECT_EQ(lines.out, "ok: ta off\nta off\n");
  EXPECT_EQ(Start(station + QStringList{"rt", "90", "x"}).err,
            "corvalis-send: RT: [RDS] pointer value too big\n");
  EXPECT_EQ(Start({"--file", "/nowhere.rds", "ta", "on"}).code, 2);
  machine::LineHold another;
  ASSERT_EQ(another.Take(line.toStdString()), 0);
  EXPECT_EQ(Start(station + QStringList{"ta", "on"}).code, 3);
}

}  // namespace
}  // namespace corvalis::test
