#pragma once

#include <functional>
#include <string>

#include "platform/serial_port.h"

namespace corvalis::send {

/// A port without a line, to see what would go out. Everything is acknowledged. Asked how many
/// lists of frequencies there are, it answers as a Coder with all of them.
class DryPort : public SerialPort {
 public:
  /// Hears everything that is written.
  std::function<void(std::span<const std::uint8_t> bytes)> Wrote;

  PortError SetCommPort(int number) override {
    number_ = number;
    return {};
  }
  [[nodiscard]] int CommPort() const override { return number_; }
  PortError SetPortOpen(bool open) override {
    open_ = open;
    return {};
  }
  [[nodiscard]] bool PortOpen() const override { return open_; }
  PortError SetSettings(const std::string& settings) override {
    settings_ = settings;
    return {};
  }
  [[nodiscard]] std::string Settings() const override { return settings_; }
  PortError SetInputLen(int /*length*/) override { return {}; }
  PortError SetInputMode(int /*mode*/) override { return {}; }
  PortError SetRThreshold(int bytes) override {
    threshold_ = bytes;
    return {};
  }
  PortError SetRTSEnable(bool /*on*/) override { return {}; }
  [[nodiscard]] int InBufferCount() const override { return static_cast<int>(input_.size()); }
  PortError ClearInput() override {
    input_.clear();
    return {};
  }
  std::vector<std::uint8_t> Input() override;
  PortError Output(std::span<const std::uint8_t> bytes) override;
  [[nodiscard]] int CommEvent() const override { return kCommEventReceive; }

 private:
  int number_ = 1;
  bool open_ = false;
  int threshold_ = 0;
  std::string settings_;
  std::vector<std::uint8_t> input_;
};

}  // namespace corvalis::send
