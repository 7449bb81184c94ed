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

CoderEye::CoderEye(QString log, int pid) : log_(std::move(log)), pid_(pid) {}

QString CoderEye::Log() const {
  QFile file(log_);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll());
}

QStringList CoderEye::Arrived() {
  const QString log = Log();
  QStringList lines;
  bool memory = false;
  for (const QString& line : log.mid(read_).split(u'\n', Qt::SkipEmptyParts)) {
    if (line + u'\n' == kMemory) memory = true;
    if (!memory && !line.startsWith(QStringLiteral("ready"))) lines << line;
    if (line + u'\n' == kEndOfMemory) memory = false;
  }
  read_ = log.size();
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
  const QString log = Log();
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
