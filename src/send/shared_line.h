#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "send/exchange.h"
#include "send/port_in_front.h"

namespace corvalis::send {

/// The one line for two programs: the service, whose port this is, and the desktop program beside
/// it. What either writes goes out in whole exchanges, and the answers go to whoever asked. Where
/// both want the line, they take turns. Before an exchange the Coder is brought into the addressing
/// that its side believes in, which an ENQ of that side drops and an acknowledged address sets; so
/// neither notices the other. An answer that the desktop no longer waits for, as it has written
/// more meanwhile (a burst, or behind an ESC), is dropped. A side that has sent neither yet takes
/// the Coder as it is.
///
/// For a Coder that answers only: over a one-way link nothing tells when an exchange is over.
class SharedLine : public PortInFront {
 public:
  /// `port` is the real one, and has to outlive this.
  explicit SharedLine(SerialPort& port);
  ~SharedLine() override;
  SharedLine(const SharedLine&) = delete;
  SharedLine& operator=(const SharedLine&) = delete;

  /// Bytes that the desktop has written; may be called inside a pump. If the line is not there it
  /// is opened; bytes that can't go out are lost, as on a line without a Coder.
  void TakeFromDesktop(std::span<const std::uint8_t> bytes);
  /// Looks what is due; see `Due`.
  void Advance();
  /// True while enough of the desktop's bytes wait, so that it may wait with more.
  [[nodiscard]] bool Full() const;

  /// Gets what the Coder answers to the desktop; may be empty.
  std::function<void(std::span<const std::uint8_t> bytes)> ToDesktop;
  /// Hears when `Advance` is to be called, on the steady clock, infinity for never; may be empty.
  /// It is called whenever something has changed.
  std::function<void(double due)> Due;

  /// An exchange of the desktop is over before the line is closed.
  PortError SetPortOpen(bool open) override;
  /// The desktop's answers are always received.
  PortError SetRThreshold(int /*bytes*/) override { return Behind().SetRThreshold(1); }
  [[nodiscard]] int InBufferCount() const override { return static_cast<int>(input_.size()); }
  PortError ClearInput() override;
  std::vector<std::uint8_t> Input() override;
  /// Waits for its turn first, which is at most one exchange of the desktop.
  PortError Output(std::span<const std::uint8_t> bytes) override;
  [[nodiscard]] int CommEvent() const override { return kCommEventReceive; }

 private:
  /// The frame that has addressed the Coder; empty: an ENQ has dropped it; null: not known.
  using Addressing = std::optional<std::vector<std::uint8_t>>;
  struct Side {
    Addressing believed = {};
  };

  PortError Begin(Side* side, std::span<const std::uint8_t> piece);
  PortError WaitForLine();
  void AdvanceDesktop();
  void BeginForDesktop(std::size_t size);
  [[nodiscard]] std::vector<std::uint8_t> WantedBefore(const Side& side,
                                                       std::span<const std::uint8_t> piece) const;
  [[nodiscard]] std::size_t PieceOfDesktop() const;
  [[nodiscard]] bool OpenForDesktop();
  void Receive();
  void Ended();
  void TakeAddressing(Exchange::Outcome outcome);
  void DropWaiting();
  void TellDue();

  Exchange exchange_;                     // the one on the line
  Side* asking_ = nullptr;                // whose exchange it is; null: it is for the addressing
  std::vector<std::uint8_t> addressing_;  // its piece, if that is about the addressing
  Addressing actual_;
  Side service_;
  Side desktop_;
  Side* favoured_ = &service_;  // whose turn it is where both want the line
  bool service_waits_ = false;
  bool restored_ = false;  // the Coder is as the desktop believes, or can't be
  bool advancing_ = false;
  std::vector<std::uint8_t> input_;    // of the service
  std::vector<std::uint8_t> waiting_;  // of the desktop
  double waits_since_ = 0;             // the first byte of these, on the steady clock
  double last_byte_ = 0;
};

}  // namespace corvalis::send
