#pragma once

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "link/serial_management.h"
#include "support/test_machine.h"

namespace corvalis::test {

/// `frame`, with its checksum behind it.
inline Bytes Sealed(Bytes frame) {
  frame.push_back(FrameChecksum(frame));
  return frame;
}

/// The bytes of a text.
inline Bytes Text(const std::string& text) { return {text.begin(), text.end()}; }

/// `frame`, with an acknowledgement before it.
inline Bytes Acknowledged(Bytes frame) {
  frame.insert(frame.begin(), kAck);
  return frame;
}

/// What a Coder answers that refuses with this number.
inline Bytes Refusal(std::uint8_t number) {
  Bytes bytes = Sealed({kStart, 0, number, kEnd});
  bytes.insert(bytes.begin(), kNak);
  return bytes;
}

/// Writes and reads TP, as the simplest command there is.
class EngineTest : public LinkTest {
 protected:
  void StartLocal() {
    Start(kLocal);
    Open();
  }

  void WriteTp() {
    Frame frame = Frame::Write(CommandCode::kTp);
    frame.Body()[0] = '1';
    WriteToCoder(frame, "TP");
  }

  // Reads TP from whatever answers; true if the answer was decoded.
  bool ReadTp() {
    bool decoded = false;
    ReadFromCoder(Frame::Request(CommandCode::kTp), FrameSize(CommandCode::kTp), "TP",
                  [&](std::span<const std::uint8_t>) { decoded = true; });
    return decoded;
  }

  std::string BoxText() { return dialogs.boxes.empty() ? "" : dialogs.boxes.back().text; }
};

}  // namespace corvalis::test
