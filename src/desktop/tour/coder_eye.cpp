#include "desktop/tour/coder_eye.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <csignal>
#include <stdexcept>

namespace corvalis::desktop {

namespace {
constexpr int kPatienceMs = 5000;
const QString kMemory = QStringLiteral("memory\n");
const QString kEndOfMemory = QStringLiteral("end of memory\n");
}  // namespace

CoderEye::CoderEye(QString log, int pid) : path_(std::move(log)), pid_(pid) {}

const QString& CoderEye::Log() {
  QFile file(path_);
  if (file.open(QIODevice::ReadOnly) && file.seek(log_.size())) {
    log_ += QString::fromLatin1(file.readAll());  // a character for each byte
  }
  return log_;
}

QStringList CoderEye::Arrived() {
  const QString news = Log().mid(told_);
  told_ += news.lastIndexOf(u'\n') + 1;  // what is being written comes at the next look
  QStringList lines;
  bool memory = false;
  for (const QString& line :
       news.left(news.lastIndexOf(u'\n') + 1).split(u'\n', Qt::SkipEmptyParts)) {
    if (line + u'\n' == kMemory) memory = true;
    if (!memory && !line.startsWith(QStringLiteral("ready"))) lines << line;
    if (line + u'\n' == kEndOfMemory) memory = false;
  }
  return lines;
}

QMap<QString, QString> CoderEye::Memory() {
  const qsizetype before = Log().count(kEndOfMemory);
  if (kill(pid_, SIGUSR1) != 0) throw std::runtime_error("The simulated Coder is gone.");
  const QDeadlineTimer patience(kPatienceMs);
  while (Log().count(kEndOfMemory) == before) {
    if (patience.hasExpired()) throw std::runtime_error("The Coder does not show its memory.");
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  const QString& log = Log();
  QMap<QString, QString> items;
  for (const QString& line : log.mid(log.lastIndexOf(u'\n' + kMemory)).split(u'\n')) {
    const qsizetype colon = line.indexOf(QStringLiteral(": "));
    const qsizetype quote = line.indexOf(QStringLiteral("  \""));
    if (colon < 0 || quote < 0) continue;
    items[line.left(colon)] = line.mid(quote + 3).chopped(1);
  }
  return items;
}

}  // namespace corvalis::desktop
