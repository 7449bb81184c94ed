#include "send/line_owner.h"

#include "config/config_data.h"
#include "link/list_commands.h"
#include "link/serial_management.h"

namespace corvalis::send {

class LineOwner::Together {
 public:
  explicit Together(int& count) : count_(++count) {}
  ~Together() { --count_; }
  Together(const Together&) = delete;
  Together& operator=(const Together&) = delete;

 private:
  int& count_;
};

LineOwner::LineOwner(SerialPort& port) : PortInFront(port) {
  Behind().CommEventRaised = [this] {
    if (CommEventRaised) CommEventRaised();
  };
  CommEventRaised = OnComm;
}

LineOwner::~LineOwner() {
  Close();
  Behind().CommEventRaised = nullptr;
}

LineOwner::State LineOwner::MakeReady() {
  if (LinkOpen && AddressSent && PortOpen()) {
    // Nothing tells over a one-way link that the Coder has lost its supply, and its addressing.
    return !configData->Satellite() || Address() ? State::kReady : State::kFailed;
  }
  const Together together(together_);
  OpenLink(*this);
  if (!LinkOpen) return State::kNoLine;
  ProbeCoder();
  if (!LinkOpen) return State::kFailed;
  return Address() ? State::kReady : State::kFailed;
}

bool LineOwner::Address() {
  const Together together(together_);
  SendAddress(configData->PresetPassword(), false);
  return AddressSent;
}

void LineOwner::Doubt() { AddressSent = false; }

void LineOwner::Close() {
  ReleaseLink();
  LinkOpen = false;
  AddressSent = false;
  static_cast<void>(Behind().SetPortOpen(false));
}

PortError LineOwner::Output(std::span<const std::uint8_t> bytes) {
  if (BeforeExchange && together_ == 0) {
    const Together together(together_);
    BeforeExchange();
    // What somebody else's exchange left over is no answer to this one.
    Behind().ClearInput();
    if (Queue* queue = ReceiveQueue()) queue->QReset();
  }
  return Behind().Output(bytes);
}

}  // namespace corvalis::send
