#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "coder/commands.h"

namespace corvalis::coder {

using Bytes = std::vector<std::uint8_t>;

/// What became of one thing the Coder took from the line.
struct Event {
  enum class Kind { kEnq, kWrite, kRead, kRefused };
  Kind kind = Kind::kEnq;
  Bytes received = {};               ///< the frame, or what was delimited of it
  int error = 0;                     ///< 1 to 11 for `kRefused`, else 0
  const Command* command = nullptr;  ///< for `kWrite` and `kRead`
  int number = 0;                    ///< of the item, for `kWrite` and `kRead`
  Bytes body = {};                   ///< as written, or of the answer
};

/// A simulated RDS encoder: delimits and checks frames, keeps every item it is sent in a memory,
/// answers reads from it and refuses what a Coder refuses, by error number.
///
/// An ENQ is acknowledged and drops the addressing. A frame is judged in this order, the first that
/// fits deciding: start (9), command (3), length and end (6), checksum (1), addressing (8), may it
/// be read (7) or written (10), number of the item (2), body (10, of a request 7), address (11).
/// Counts are answered without addressing.
///
/// An item that was never written is read as it left the factory. An other network's TA is a part
/// of its list.
///
/// A run of garbage, and a frame that could not be delimited, is refused once; from then on bytes
/// are dropped silently until an ENQ, a good frame, or a pause of the line.
///
/// The clock time is kept as it was sent; it does not run on.
class Coder {
 public:
  /// `id` is the Coder ID, up to 5 characters, blanks are added on the right. An `open` Coder
  /// takes commands without having been addressed.
  explicit Coder(std::string id = "?????", bool open = false, const Counts& counts = {});

  /// Takes bytes from the line, in any portions, and returns what the Coder answers to them.
  [[nodiscard]] Bytes Take(std::span<const std::uint8_t> bytes);
  /// The same, with one answer for each ENQ and each frame, taken or refused.
  [[nodiscard]] std::vector<Bytes> TakeApart(std::span<const std::uint8_t> bytes);

  /// The line has been silent for a while: a frame that stopped half way is refused, and the next
  /// byte is the start of something new. Returns what the Coder answers.
  [[nodiscard]] Bytes LinePause();
  /// The same, with the answers apart.
  [[nodiscard]] std::vector<Bytes> LinePauseApart();

  /// True while an unfinished frame is held or the rest of garbage is being dropped, so while
  /// `LinePause` would change something.
  [[nodiscard]] bool InFrame() const;

  /// True from an accepted Address frame until the next ENQ, or Address frame that is refused with
  /// error 11. An open Coder takes commands all the same.
  [[nodiscard]] bool Addressed() const;
  /// The Coder ID, 5 characters.
  [[nodiscard]] const std::string& Id() const;
  /// Gives it another, as an Address frame with a new identity does; it is not addressed by that.
  void SetId(std::string id);

  /// How many items there are of each list.
  [[nodiscard]] const Counts& Sizes() const;
  /// Makes it a Coder of other sizes. Items beyond them are forgotten.
  void SetSizes(const Counts& counts);

  /// The body bytes held for an item, as on the line; nullopt for an unknown command or number, and
  /// for Address, which is no item. The number is the index byte, and
  ///
  ///     PIN        its 12 bits
  ///     PSN page   page * 256 + row
  ///     IH         page * 256 + block, the blocks being 0 to 15 and the end frame 16
  [[nodiscard]] std::optional<Bytes> Item(std::uint8_t command, int number = 0) const;
  /// Puts an item into the memory as if it had been sent, whatever its characters. False if the
  /// command is unknown or only read, the number too big or the body's length wrong.
  bool SetItem(std::uint8_t command, int number, std::span<const std::uint8_t> body);
  /// True if the item has been put into the memory since the Coder left the factory.
  [[nodiscard]] bool Written(std::uint8_t command, int number = 0) const;

  /// A number that is another whenever an item has been put into the memory, even as it was, or the
  /// sizes have been set: whoever keeps something made of the memory makes it anew then.
  [[nodiscard]] std::uint64_t Changes() const { return changes_; }
  /// The same for the items of one command.
  [[nodiscard]] std::uint64_t Changes(std::uint8_t command) const;

  /// Called for each ENQ and each frame, taken or refused, before its answer leaves. It may look
  /// at the Coder and must not give it bytes.
  std::function<void(const Event&)> Happened;

 private:
  std::vector<Bytes> Digest(bool pause);
  void Take(const Command& command, int number, const Bytes& body);
  [[nodiscard]] Bytes Execute(const Command& command, Bytes frame, bool read);
  [[nodiscard]] int Refused(const Command& command, std::uint8_t index, const Bytes& body,
                            bool read) const;
  [[nodiscard]] int TakeAddress(bool is_new, const Bytes& body);
  [[nodiscard]] Bytes Refuse(int error, Bytes received);
  void Report(const Event& event) const;

  std::string id_;
  bool open_;
  bool addressed_ = false;
  bool hunting_ = false;  // garbage has been refused; its rest is dropped
  Bytes held_;            // taken from the line and not yet judged
  Counts counts_;
  std::map<std::pair<std::uint8_t, int>, Bytes> memory_;  // by command and number, if written
  std::uint64_t changes_ = 0;
  std::array<std::uint64_t, 256> changes_of_{};  // by command
  std::map<int, Bytes> coming_;  // blocks of in-house pages whose end has not come yet
};

}  // namespace corvalis::coder
