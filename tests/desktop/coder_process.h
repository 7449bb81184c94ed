#pragma once

#include <QProcess>
#include <QStringList>
#include <string>
#include <vector>

namespace corvalis::test {

/// The program `corvalis-coder`, running for as long as this lives. Every wait here is for what the
/// program prints, and fails after ten seconds without it.
class CoderProcess {
 public:
  /// Starts the program with these options (see `corvalis-coder --help`) and returns once its line
  /// is there. Throws `std::runtime_error`, with what it printed, if it doesn't come up.
  explicit CoderProcess(const QStringList& options);
  ~CoderProcess();
  CoderProcess(const CoderProcess&) = delete;
  CoderProcess& operator=(const CoderProcess&) = delete;

  /// The next line printed that begins with `start`; the lines before it are passed over.
  /// Throws `std::runtime_error` if it doesn't come.
  std::string WaitForLine(const std::string& start);
  /// What the Coder holds, a line for each item ("PI 00: 35 32 30 31  \"5201\""), the Coder ID
  /// first. For a program started with `--dump`.
  std::vector<std::string> Memory();
  /// What it has printed since the last look, up to now, but for the answered counts. `at_least` so
  /// many lines are waited for, where nothing else tells that they must have come. For a program
  /// started with `--dump`.
  std::vector<std::string> Arrived(std::size_t at_least = 0);

 private:
  std::string ReadLine();
  std::vector<std::string> LinesUntil(const std::string& last);

  QProcess process_;
  std::vector<std::string> memory_;
};

}  // namespace corvalis::test
