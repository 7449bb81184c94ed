#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvalis {

/// A line that another program opens like a serial port. It keeps the terminal's other side open
/// itself, so that programs may come and go and the settings stay.
class PseudoTerminal {
 public:
  /// Opens a terminal and, unless `link` is empty, makes `link` a symbolic link to it, with the
  /// folders on its way. A link that leads to a terminal is replaced, anything else in its place is
  /// not. Throws `std::runtime_error` with a sentence for people.
  explicit PseudoTerminal(std::string link);
  /// Closes the terminal, and removes the link if it still leads here.
  ~PseudoTerminal();
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  /// What to open, "/dev/pts/4".
  [[nodiscard]] const std::string& Path() const { return path_; }
  /// To be polled for reading.
  [[nodiscard]] int Descriptor() const { return master_; }
  /// To be polled for reading: a program has closed the terminal; then call `Closed`.
  [[nodiscard]] int CloseDescriptor() const { return watch_; }
  /// Lets the next program in where one was killed that had kept the terminal for itself.
  void Closed() const;

  /// What has come, at once; empty if nothing has.
  [[nodiscard]] std::vector<std::uint8_t> Read() const;
  /// Never waits: what nobody has read for long is lost.
  void Write(const std::vector<std::uint8_t>& bytes) const;

  /// The settings that the other program has made.
  struct Settings {
    int baud = 0;  ///< bits per second, 0 for one without a name
    int stop_bits = 1;
  };
  [[nodiscard]] Settings CurrentSettings() const;

 private:
  void Close() const;
  void MakeLink() const;
  [[nodiscard]] bool LinkLeadsHere() const;

  std::string link_;
  std::string path_;
  int master_ = -1;
  int slave_ = -1;
  int watch_ = -1;
};

}  // namespace corvalis
