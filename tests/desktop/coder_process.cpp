#include "desktop/coder_process.h"

#include <csignal>
#include <stdexcept>
#include <utility>

#include "support/places.h"

namespace corvalis::test {

namespace {

constexpr int kPatience = 10'000;  // milliseconds

}  // namespace

CoderProcess::CoderProcess(const QStringList& options) {
  process_.setProcessChannelMode(QProcess::MergedChannels);
  // Should a test die, its Coder goes too.
  process_.start(kCoderProgram, options + QStringList{"--with-stdin"});
  WaitForLine("ready ");
}

CoderProcess::~CoderProcess() {
  process_.closeWriteChannel();
  process_.waitForFinished(kPatience);  // what hasn't ended by then is killed with `process_`
}

std::string CoderProcess::ReadLine() {
  while (!process_.canReadLine()) {
    if (!process_.waitForReadyRead(kPatience)) {
      throw std::runtime_error("corvalis-coder: " + process_.errorString().toStdString() + ": " +
                               process_.readAll().toStdString());
    }
  }
  std::string line = process_.readLine().toStdString();
  if (line.ends_with('\n')) line.pop_back();
  return line;
}

std::string CoderProcess::WaitForLine(const std::string& start) {
  std::string line;
  do {
    line = ReadLine();
  } while (!line.starts_with(start));
  return line;
}

std::vector<std::string> CoderProcess::LinesUntil(const std::string& last) {
  std::vector<std::string> lines;
  for (std::string line = ReadLine(); line != last; line = ReadLine()) lines.push_back(line);
  return lines;
}

std::vector<std::string> CoderProcess::Memory() {
  Arrived();
  return memory_;
}

std::vector<std::string> CoderProcess::Arrived(std::size_t at_least) {
  std::vector<std::string> lines;
  // The sizes of the lists are asked whenever these load.
  const auto add = [&lines](std::string line) {
    if (line.find(" count read -> ") == std::string::npos) lines.push_back(std::move(line));
  };
  while (lines.size() < at_least) add(ReadLine());
  // What lies on the line is taken before the question is.
  kill(static_cast<pid_t>(process_.processId()), SIGUSR1);
  for (std::string& line : LinesUntil("memory")) add(std::move(line));
  memory_ = LinesUntil("end of memory");
  return lines;
}

}  // namespace corvalis::test
