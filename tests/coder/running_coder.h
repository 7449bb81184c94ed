#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <vector>

#include "coder/coder.h"

namespace corvalis::coder {

/// `corvalis-coder` as a process. Whatever it waits for, it gives up after 10 seconds.
class RunningCoder {
 public:
  /// Starts the program with these options and waits until it offers its line.
  explicit RunningCoder(std::vector<std::string> options);
  /// Ends it.
  ~RunningCoder();
  RunningCoder(const RunningCoder&) = delete;
  RunningCoder& operator=(const RunningCoder&) = delete;

  /// The path that the last "ready" named; empty if there was none.
  [[nodiscard]] const std::string& Path() const { return path_; }

  /// Passes over lines of the output up to one that begins like this, and returns it; empty if the
  /// output ends before.
  std::string NextLine(const std::string& beginning);

  /// Closes the standard input, on which the program ends. Returns its exit status; what it still
  /// had to say can be read with `NextLine`.
  int End();

 private:
  pid_t pid_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string held_;  // of the output, not yet looked at
  std::string path_;
};

/// The terminal of a `RunningCoder`, opened like a serial port.
class OpenLine {
 public:
  explicit OpenLine(const std::string& path);
  ~OpenLine();
  OpenLine(const OpenLine&) = delete;
  OpenLine& operator=(const OpenLine&) = delete;

  /// Sets the speed, a constant of <termios.h> such as `B9600`, and 1 or 2 stop bits.
  void Set(unsigned speed, int stop_bits) const;
  void Write(const Bytes& bytes) const;
  /// Waits for so many bytes; fewer if no more come in 10 seconds or the line is gone.
  [[nodiscard]] Bytes Read(std::size_t count) const;
  /// Waits until the line is gone. False if it stays.
  [[nodiscard]] bool Gone() const;

 private:
  int line_;
};

}  // namespace corvalis::coder
