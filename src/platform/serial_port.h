#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace corvalis {

/// How an operation of the port ended. A default one is success.
struct PortError {
  int number = 0;           ///< 0 is success
  std::string description;  ///< the system's own words, Windows-1252

  explicit operator bool() const { return number != 0; }
};

/// The error of an operation that needs an open port.
inline constexpr int kPortNotOpen = 8018;

/// `SerialPort::CommEvent` of a receive event.
inline constexpr int kCommEventReceive = 2;

/// `SerialPort::SetInputMode` for bytes as they come.
inline constexpr int kInputModeBinary = 1;

/// The one serial port control of the program. Events come only inside a pump.
class SerialPort {
 public:
  virtual ~SerialPort() = default;

  /// The port to open next, 1 to 4. An error while the port is open.
  virtual PortError SetCommPort(int number) = 0;
  [[nodiscard]] virtual int CommPort() const = 0;

  /// Opens or closes. Closing a closed port is success; opening an open one is an error. A port
  /// whose device has disappeared reports itself as closed.
  virtual PortError SetPortOpen(bool open) = 0;
  [[nodiscard]] virtual bool PortOpen() const = 0;

  /// "9600,N,8,1": baud rate, parity (N, E or O), data bits, stop bits. Applied at once on an open
  /// port. A device that has no parity (a pseudo-terminal) is no error.
  virtual PortError SetSettings(const std::string& settings) = 0;
  [[nodiscard]] virtual std::string Settings() const = 0;

  /// Bytes that one `Input` takes; 0 takes all there is.
  virtual PortError SetInputLen(int length) = 0;
  virtual PortError SetInputMode(int mode) = 0;
  /// Bytes that must have come before a receive event is raised; 0: no receive events.
  virtual PortError SetRThreshold(int bytes) = 0;
  /// A device without modem lines is no error.
  virtual PortError SetRTSEnable(bool on) = 0;

  [[nodiscard]] virtual int InBufferCount() const = 0;
  /// What setting `InBufferCount` to 0 does: all input received so far is thrown away.
  virtual PortError ClearInput() = 0;
  /// Takes the input out of the port.
  virtual std::vector<std::uint8_t> Input() = 0;
  /// Writes the bytes and returns when they have left for the line; events run meanwhile. Error
  /// `kPortNotOpen` on a closed port, or if the device disappears.
  virtual PortError Output(std::span<const std::uint8_t> bytes) = 0;

  /// What the last event was; `kCommEventReceive` is the one the program acts on.
  [[nodiscard]] virtual int CommEvent() const = 0;

  /// Raised on each event, inside a pump.
  std::function<void()> CommEventRaised;
};

}  // namespace corvalis
