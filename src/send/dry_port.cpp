#include "send/dry_port.h"

#include <utility>

#include "config/conversions.h"
#include "link/body.h"
#include "link/command_table.h"
#include "link/frame.h"
#include "link/serial_management.h"
#include "programme/af_a_data.h"

namespace corvalis::send {

std::vector<std::uint8_t> DryPort::Input() { return std::exchange(input_, {}); }

PortError DryPort::Output(std::span<const std::uint8_t> bytes) {
  if (!open_) return {kPortNotOpen, "The port is not open"};
  if (Wrote) Wrote(bytes);
  if (threshold_ == 0) return {};
  input_.push_back(kAck);
  const bool frame = bytes.size() == kFrameOverhead;
  if (frame && bytes[kCommandOffset] == static_cast<int>(CommandCode::kMaxAfListNum)) {
    Frame answer = Frame::Write(CommandCode::kMaxAfListNum);
    BodyWriter(answer.Body()).Hex(AfAData::kMostLists, 2);
    answer.Bytes().back() = FrameChecksum(answer.Bytes());
    input_.insert(input_.end(), answer.Bytes().begin(), answer.Bytes().end());
  }
  if (CommEventRaised) CommEventRaised();
  return {};
}

}  // namespace corvalis::send
