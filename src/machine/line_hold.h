#pragma once

#include <string>

namespace corvalis::machine {

/// Keeps a serial line for this program, beside whoever reads and writes it. Two programs never
/// hold the same line, whatever their user; and when the line is given back, the modem lines stay
/// as they are, so that opening it anew doesn't hang a call up.
class LineHold {
 public:
  LineHold() = default;
  ~LineHold() { Release(); }
  LineHold(const LineHold&) = delete;
  LineHold& operator=(const LineHold&) = delete;

  /// Takes the line of `device`. Returns 0, or the system's number (`errno`) of what is in the way:
  /// ENOENT, EACCES, EBUSY for a line that another program uses, ENOTTY for what is no line ...
  [[nodiscard]] int Take(const std::string& device);
  void Release();

  /// Bytes that the line has taken and not sent yet.
  [[nodiscard]] int Unsent() const;
  /// False once the device has disappeared.
  [[nodiscard]] bool Alive() const;

 private:
  int descriptor_ = -1;
};

}  // namespace corvalis::machine
