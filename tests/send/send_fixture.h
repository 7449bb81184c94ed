#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "link/command_table.h"
#include "link/serial_management.h"
#include "send/sender.h"
#include "support/test_machine.h"

namespace corvalis::test {

/// A Coder in memory, a station file, and what sends to it.
class SendTest : public MachineTest {
 protected:
  void Start(const std::string& file, coder::Faults faults = {}, send::Instead instead = {}) {
    sender.reset();
    owner.reset();
    station.reset();
    WriteFile(ProgramFile(), file);
    the_coder = std::make_unique<coder::Coder>();
    line = std::make_unique<coder::Line>(*the_coder, faults);
    port.line = line.get();
    machine.dialogs = &kept;
    owner = std::make_unique<send::LineOwner>(port);
    machine.port = owner.get();
    station = std::make_unique<send::Station>(std::move(instead));
    sender = std::make_unique<send::Sender>(*station, *owner, kept, false);
  }

  send::Outcome Send(const std::string& text) {
    const send::Parsed parsed = send::ParseLine(text);
    EXPECT_TRUE(parsed.command) << text << ": " << parsed.error;
    return parsed.command ? sender->Send(*parsed.command) : send::Outcome{};
  }

  static Bytes FrameOf(CommandCode code, int index, std::string body) {
    body.resize(FrameSize(code) - kFrameOverhead, ' ');
    Frame frame = Frame::Write(code, static_cast<std::uint8_t>(index));
    std::ranges::copy(body, frame.Body().begin());
    frame.Bytes().back() = FrameChecksum(frame.Bytes());
    return {frame.Bytes().begin(), frame.Bytes().end()};
  }
  static Bytes Address(const std::string& id = "?????") {
    return FrameOf(CommandCode::kAddress, 0, id);
  }

  send::KeptDialogs kept;
  std::unique_ptr<coder::Coder> the_coder;
  std::unique_ptr<coder::Line> line;
  std::unique_ptr<send::LineOwner> owner;
  std::unique_ptr<send::Station> station;
  std::unique_ptr<send::Sender> sender;

  const Bytes kEnqAlone = {kEnq};
  static constexpr const char* kTwoWay =
      "[Serial Setup]\r\nSatellite=Off\r\n[RDS Setup]\r\nPSN Pages Enable=Off\r\n"
      "[RT]\r\nRt07=30;old;\r\n[PSN Pages]\r\nPsn00.03=04;Off;OLD     ;\r\n";
  static constexpr const char* kOneWay = "[Serial Setup]\r\nSatellite=On\r\nBurst=3\r\n";
};

}  // namespace corvalis::test
