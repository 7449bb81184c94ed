#include "link/serial_management.h"

#include <array>
#include <optional>
#include <utility>

#include "config/config_data.h"
#include "link/link_box.h"
#include "link/run_progress.h"
#include "link/wait.h"

namespace corvalis {

std::int16_t LinkError = kLinkOk;
bool LinkOpen = false;
bool AddressSent = false;
bool EscPressed = false;
bool AutoSettingActive = false;
bool CommandTableBuilt = false;
bool OneWayPort = false;
std::optional<bool> CoderAnswered;

namespace {

constexpr double kAnswerSeconds = 15;
constexpr float kAbortSeconds = 0.2F;

SerialPort* port = nullptr;
std::optional<Queue> queue;

bool QueueHoldsByte() { return queue && !queue->QEmpty(); }

void ResetQueue() {
  if (queue) queue->QReset();
}

// The operator's abort is carried out here; both flags tell it from now on.
void Abort() {
  ResetQueue();
  LinkError = kErrorAborted;
  EscPressed = false;
}

void AbortTransfer() {
  WaitSeconds(kAbortSeconds);
  Abort();
}

// Sets up an open port; the first error ends it.
PortError SetUpPort(SerialPort& control, std::int16_t number, const std::string& settings) {
  PortError error;
  if (control.PortOpen() && (error = control.SetPortOpen(false))) return error;
  if ((error = control.SetCommPort(number))) return error;
  if ((error = control.SetPortOpen(true))) return error;
  if ((error = control.SetSettings(settings))) return error;
  if ((error = control.SetInputLen(0))) return error;
  if ((error = control.SetInputMode(kInputModeBinary))) return error;
  OneWayPort = configData->Satellite();
  if ((error = control.SetRThreshold(OneWayPort ? 0 : 1))) return error;
  return control.SetRTSEnable(true);
}

// The Coder has refused the frame: its error frame follows.
void TakeErrorFrame() {
  std::array<std::uint8_t, kFrameOverhead> error{};
  ReceiveFrame(error);
  if (LinkError != kLinkOk) {
    LinkError = kErrorNotAcknowledged;
    return;
  }
  const std::uint8_t number = error[kIndexOffset];
  const bool known = error[kCommandOffset] == 0 && number >= 1 && number <= kLastCoderError;
  LinkError = known ? number : kErrorUnmanaged;
}

void TakeAcknowledgement() {
  switch (queue->QPop()) {
    case kAck:
      LinkError = kLinkOk;
      break;
    case kNak:
      TakeErrorFrame();
      break;
    default:
      LinkError = kErrorNotAcknowledged;
      ResetQueue();
  }
}

// A whole answer: its faults in the order in which they are told.
void JudgeAnswer(std::span<const std::uint8_t> frame, bool start_seen, bool end_seen) {
  if (!start_seen) {
    LinkError = kErrorRxStart;
    ResetQueue();
  } else if (!end_seen) {
    LinkError = kErrorRxLength;
    ResetQueue();
  } else {
    LinkError = FrameChecksum(frame) == 0 ? kLinkOk : kErrorRxChecksum;
  }
}

}  // namespace

std::string PortSettings() {
  return PortSettings(configData->Baudrate(), configData->Parity(), configData->StopBit());
}

std::string PortSettings(std::int16_t baudrate, const std::string& parity, std::int16_t stop_bit) {
  return std::to_string(baudrate) + "," + parity + ",8," + std::to_string(stop_bit);
}

bool SerialOpen(SerialPort& control, std::int16_t number, const std::string& settings,
                bool show_errors) {
  ReleaseLink();
  CoderAnswered.reset();
  queue.emplace();
  port = &control;
  const PortError error = SetUpPort(control, number, settings);
  if (error) {
    if (show_errors) ShowLinkBox(error.description, kSerialManagementTitle);
    return false;
  }
  if (!CommandTableBuilt) {
    InitCommandTable();
    CommandTableBuilt = true;
  }
  return true;
}

void ReleaseLink() {
  port = nullptr;
  queue.reset();
}

void OpenLink(SerialPort& control, bool show_errors) {
  ReleaseLink();
  LinkOpen = SerialOpen(control, configData->CommPort(), PortSettings(), show_errors);
}

void ProbeCoder() {
  SendEnq();
  LinkOpen = LinkError == kLinkOk || configData->Satellite();
}

void OnComm() {
  if (port == nullptr || !queue || port->CommEvent() != kCommEventReceive) return;
  if (port->InBufferCount() == 0) return;
  for (const std::uint8_t byte : port->Input()) {
    if (queue->QFull()) {
      LinkError = kErrorUnmanaged;
      return;
    }
    queue->QPush(byte);
  }
}

Queue* ReceiveQueue() { return queue ? &*queue : nullptr; }

SerialPort* LinkPort() { return port; }

void WaitSeconds(float seconds) {
  Wait wait(seconds);
  do {
    wait.Pump();
    // Nothing else may ever end a wait that has crossed midnight.
    if (EscPressed && wait.SecondsPassed()) return;
  } while (!wait.Expired());
}

void TransferFrame(std::span<std::uint8_t> frame) {
  if (!LinkOpen || port == nullptr) {
    LinkError = kErrorUnconnected;
    return;
  }
  if (frame.front() != kEnq) {
    frame.back() = 0;
    frame.back() = FrameChecksum(frame);
  }
  port->ClearInput();
  ResetQueue();
  Wait wait(kAnswerSeconds);
  if (const PortError error = port->Output(frame)) {
    if (error.number == kPortNotOpen) LinkError = kErrorUnconnected;
    return;
  }
  if (configData->Satellite()) {
    if (EscPressed) {
      AbortTransfer();
    } else {
      LinkError = kLinkOk;
    }
    return;
  }
  for (;;) {
    wait.Pump();
    if (QueueHoldsByte()) {
      TakeAcknowledgement();
      return;
    }
    if (wait.Expired()) {
      LinkError = kErrorTxTimeout;
      return;
    }
    if (EscPressed) {
      AbortTransfer();
      return;
    }
  }
}

void ReceiveFrame(std::span<std::uint8_t> frame) {
  if (!LinkOpen) {
    LinkError = kErrorUnconnected;
    return;
  }
  Wait wait(kAnswerSeconds);
  bool start_seen = false;
  bool end_seen = false;
  std::size_t index = 0;
  for (;;) {
    // Bytes that are here already are taken without asking for events again.
    if (!QueueHoldsByte()) wait.Pump();
    const bool came = QueueHoldsByte();
    if (came) {
      frame[index] = queue->QPop();
      if (index == 0) start_seen = frame[index] == kStart;
      if (index + 2 == frame.size()) end_seen = start_seen && frame[index] == kEnd;
      if (++index == frame.size()) {
        JudgeAnswer(frame, start_seen, end_seen);
        return;
      }
    }
    if (!came && wait.Expired()) {
      LinkError = kErrorRxTimeout;
      return;
    }
    if (EscPressed) {
      Abort();
      return;
    }
  }
}

void CheckFrame(std::span<const std::uint8_t> frame) {
  if (LinkError != kLinkOk) return;
  const Command* command = FindCommand(frame[kCommandOffset]);
  if (command == nullptr) {
    LinkError = kErrorRxCode;
    return;
  }
  const auto last_index = static_cast<std::int16_t>(frame.size() - 1);
  if (command->last_index == last_index) return;
  const bool short_ih =
      command->code == static_cast<int>(CommandCode::kIh) && last_index == kIhShortLastIndex;
  if (!short_ih) LinkError = kErrorRxLength;
}

void SendEnq() {
  std::array<std::uint8_t, 1> frame{kEnq};
  TransferFrame(frame);
  if (!configData->Satellite()) CoderAnswered = LinkError == kLinkOk;
  if (LinkError != kLinkOk && !AutoSettingActive) ReportLinkError("ENQ");
  AddressSent = false;
}

Frame::Frame(CommandCode code, std::uint8_t index, std::size_t size) : bytes_(size) {
  bytes_[0] = kStart;
  bytes_[kCommandOffset] = static_cast<std::uint8_t>(code);
  bytes_[kIndexOffset] = index;
  bytes_[size - 2] = kEnd;
}

Frame Frame::Write(CommandCode code, std::uint8_t index) {
  return Frame(code, index, FrameSize(code));
}

Frame Frame::Write(CommandCode code, std::uint8_t index, std::size_t body_bytes) {
  return Frame(code, index, kFrameOverhead + body_bytes);
}

Frame Frame::Request(CommandCode code, std::uint8_t index, std::size_t body_bytes) {
  return Write(code, index, body_bytes);
}

std::span<std::uint8_t> Frame::Body() {
  return std::span(bytes_).subspan(kBodyOffset, bytes_.size() - kFrameOverhead);
}

void WriteToCoder(Frame frame, std::string_view label) {
  TellFrame(label);
  TransferFrame(frame.Bytes());
  if (LinkError != kLinkOk) ReportLinkError(label);
}

void ReadFromCoder(Frame request, std::size_t answer_size, std::string_view label,
                   const std::function<void(std::span<const std::uint8_t> body)>& decode,
                   int attempts) {
  TellFrame(label);
  std::vector<std::uint8_t> answer(answer_size);
  for (int attempt = 0; attempt < attempts; ++attempt) {
    TransferFrame(request.Bytes());
    if (LinkError != kLinkOk) break;
    ReceiveFrame(answer);
    if (LinkError != kErrorRxTimeout) break;
  }
  CheckFrame(answer);
  if (LinkError != kLinkOk) {
    ReportLinkError(label);
    return;
  }
  decode(std::span<const std::uint8_t>(answer).subspan(kBodyOffset, answer_size - kFrameOverhead));
}

}  // namespace corvalis
