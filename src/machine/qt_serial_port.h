#pragma once

#include <QSerialPort>
#include <string>

#include "machine/line_hold.h"
#include "platform/serial_port.h"

namespace corvalis::machine {

/// The serial port of the computer. "COM n" is the device that `DeviceOfPort` names; it is looked
/// up at each opening.
///
/// Without receive events (`SetRThreshold` 0) the port keeps the newest 1024 bytes of input.
class QtSerialPort : public SerialPort {
 public:
  QtSerialPort();
  ~QtSerialPort() override;
  QtSerialPort(const QtSerialPort&) = delete;
  QtSerialPort& operator=(const QtSerialPort&) = delete;

  /// Makes every number stand for the line at `path`, a device or a link to one.
  void UseDevice(const std::string& path) { given_ = path; }

  PortError SetCommPort(int number) override;
  [[nodiscard]] int CommPort() const override { return number_; }
  PortError SetPortOpen(bool open) override;
  [[nodiscard]] bool PortOpen() const override { return port_.isOpen(); }
  PortError SetSettings(const std::string& settings) override;
  [[nodiscard]] std::string Settings() const override { return settings_; }
  PortError SetInputLen(int length) override;
  PortError SetInputMode(int mode) override;
  PortError SetRThreshold(int bytes) override;
  PortError SetRTSEnable(bool on) override;
  [[nodiscard]] int InBufferCount() const override;
  PortError ClearInput() override;
  std::vector<std::uint8_t> Input() override;
  /// A line that takes no byte for five seconds counts as one that has disappeared.
  PortError Output(std::span<const std::uint8_t> bytes) override;
  [[nodiscard]] int CommEvent() const override { return comm_event_; }

 private:
  PortError Open();
  void Close();
  PortError ApplySettings();
  void TakeReceived();
  void CheckDevice();
  [[nodiscard]] int Unsent() const;
  [[nodiscard]] bool WaitUntilSent();
  [[nodiscard]] PortError DeviceError(int number, const QString& words) const;

  QSerialPort port_;
  LineHold hold_;
  int number_ = 1;
  std::string given_;  // a path, instead of what the number stands for; empty: none
  std::string device_;
  std::string settings_ = "9600,N,8,1";
  int input_length_ = 0;
  int threshold_ = 0;
  bool request_to_send_ = false;
  int comm_event_ = 0;
};

}  // namespace corvalis::machine
