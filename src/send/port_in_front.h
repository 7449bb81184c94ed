#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/serial_port.h"

namespace corvalis::send {

/// A port that passes everything on to another one, which has to outlive it. Whoever stands in
/// front of a line overrides what it does otherwise.
class PortInFront : public SerialPort {
 public:
  explicit PortInFront(SerialPort& port) : port_(port) {}

  PortError SetCommPort(int number) override { return port_.SetCommPort(number); }
  [[nodiscard]] int CommPort() const override { return port_.CommPort(); }
  PortError SetPortOpen(bool open) override { return port_.SetPortOpen(open); }
  [[nodiscard]] bool PortOpen() const override { return port_.PortOpen(); }
  PortError SetSettings(const std::string& settings) override {
    return port_.SetSettings(settings);
  }
  [[nodiscard]] std::string Settings() const override { return port_.Settings(); }
  PortError SetInputLen(int length) override { return port_.SetInputLen(length); }
  PortError SetInputMode(int mode) override { return port_.SetInputMode(mode); }
  PortError SetRThreshold(int bytes) override { return port_.SetRThreshold(bytes); }
  PortError SetRTSEnable(bool on) override { return port_.SetRTSEnable(on); }
  [[nodiscard]] int InBufferCount() const override { return port_.InBufferCount(); }
  PortError ClearInput() override { return port_.ClearInput(); }
  std::vector<std::uint8_t> Input() override { return port_.Input(); }
  PortError Output(std::span<const std::uint8_t> bytes) override { return port_.Output(bytes); }
  [[nodiscard]] int CommEvent() const override { return port_.CommEvent(); }

 protected:
  [[nodiscard]] SerialPort& Behind() const { return port_; }

 private:
  SerialPort& port_;
};

}  // namespace corvalis::send
