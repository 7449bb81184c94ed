#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "link/command_table.h"
#include "link/frame.h"
#include "link/link_error.h"
#include "link/queue.h"
#include "platform/serial_port.h"

namespace corvalis {

/// The state of the one link.
extern std::int16_t LinkError;  ///< result of the last operation; see link_error.h
extern bool LinkOpen;           ///< the link may be used; set by whoever opens the port
extern bool AddressSent;        ///< an Address frame was accepted since the last ENQ
extern bool EscPressed;         ///< the operator asks to abort; cleared when that is done
extern bool AutoSettingActive;  ///< a port scan runs: no boxes
extern bool CommandTableBuilt;
extern bool OneWayPort;  ///< the port was opened without receive events
/// Whether the Coder answered the last ENQ on the port as it was opened; empty if none was sent
/// since, or if no answer could come.
extern std::optional<bool> CoderAnswered;

/// The text that the port takes as its settings, from the station record: "9600,N,8,1".
[[nodiscard]] std::string PortSettings();
/// The same for settings that are not in the record.
[[nodiscard]] std::string PortSettings(std::int16_t baudrate, const std::string& parity,
                                       std::int16_t stop_bit);

/// Opens the port anew: closes it, sets number and settings and makes a new receive queue. On an
/// error returns false, after a box with the system's words if `show_errors` and no scan runs.
bool SerialOpen(SerialPort& port, std::int16_t number, const std::string& settings,
                bool show_errors);

/// Drops the port and the queue.
void ReleaseLink();

/// Opens the port as the station record says, in the way of every place that does: `ReleaseLink`,
/// `SerialOpen`, and `LinkOpen` set to its result.
void OpenLink(SerialPort& port, bool show_errors = true);
/// Sends the ENQ; `LinkOpen` then tells whether the Coder can be used: it answered, or the path is
/// one-way.
void ProbeCoder();

/// The receive event of the port: takes its input into the queue. On a full queue the rest is lost
/// and `LinkError` is -1.
void OnComm();

/// The queue of received bytes; null while the link is released.
[[nodiscard]] Queue* ReceiveQueue();

/// The port that the link was opened on; null while the link is released.
[[nodiscard]] SerialPort* LinkPort();

/// Lets events run for at least `seconds`; see `Wait`. The operator's ESC ends a wait that the
/// clock doesn't end any more, and stays set for the transfer that it is meant for.
void WaitSeconds(float seconds);

/// Writes a frame and waits up to 15 seconds for its acknowledgement; on a one-way path it only
/// writes. The last byte receives the checksum, unless the frame is an ENQ. Result in `LinkError`.
void TransferFrame(std::span<std::uint8_t> frame);

/// Fills `frame` with received bytes, up to 15 seconds for all of them, and judges it by its start,
/// its end and its checksum. Result in `LinkError`.
void ReceiveFrame(std::span<std::uint8_t> frame);

/// Holds a received frame against the command table: a known code and its length. The code need
/// not be the one asked for. An error that stands already is left. Result in `LinkError`.
void CheckFrame(std::span<const std::uint8_t> frame);

/// Sends the probe. Its failure is reported as "ENQ", but for a running scan. The Coder has to be
/// addressed again afterwards.
void SendEnq();

/// A frame of a command, with start, code, index and end in place. A write frame has the size of
/// the command table, or a body of that many bytes; most read requests have no body.
class Frame {
 public:
  static Frame Write(CommandCode code, std::uint8_t index = 0);
  static Frame Write(CommandCode code, std::uint8_t index, std::size_t body_bytes);
  static Frame Request(CommandCode code, std::uint8_t index = 0, std::size_t body_bytes = 0);

  [[nodiscard]] std::span<std::uint8_t> Bytes() { return bytes_; }
  /// The body's bytes, from offset 3 of the frame.
  [[nodiscard]] std::span<std::uint8_t> Body();

 private:
  Frame(CommandCode code, std::uint8_t index, std::size_t size);
  std::vector<std::uint8_t> bytes_;
};

/// The write pattern: one transfer; a failure is reported under `label` and stays in `LinkError`.
void WriteToCoder(Frame frame, std::string_view label);

/// How often a read asks as long as only the answer is missing.
inline constexpr int kReadAttempts = 3;

/// The read pattern: the request, and an answer of `answer_size` bytes, up to `attempts` times as
/// long as only the answer is missing. `decode` gets the answer's body; on failure it isn't called,
/// the failure is reported under `label` and stays in `LinkError`.
void ReadFromCoder(Frame request, std::size_t answer_size, std::string_view label,
                   const std::function<void(std::span<const std::uint8_t> body)>& decode,
                   int attempts = kReadAttempts);

}  // namespace corvalis
