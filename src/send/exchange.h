#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace corvalis::send {

/// Bytes that a program writes in one go, as the line sees them: a single ENQ, a frame, or what is
/// neither up to the next of them. Returns how many of `bytes` are the first such piece; 0 while it
/// is unfinished. No length travels, so a frame ends where one of the lengths that its command has
/// is met with an end byte and a checksum that fit, and at the longest one in any case.
[[nodiscard]] std::size_t FirstPiece(std::span<const std::uint8_t> bytes);

/// One exchange over the line, by the grammar of the frames: what one side has written, and all
/// that the Coder answers to it. An ENQ or a written item is over with its ACK, a refusal with its
/// error frame, a request with the answer behind its ACK. Where the grammar tells nothing, silence
/// ends it: 15 seconds where bytes are due, and one second behind bytes that nobody can explain.
class Exchange {
 public:
  enum class Outcome : std::uint8_t {
    kAcknowledged,
    kRefused,  ///< see `Refusal`
    kUnknown,  ///< the Coder was silent, or said what is in no grammar
  };

  /// `piece` goes out at `now`, in seconds of the steady clock.
  void Begin(std::span<const std::uint8_t> piece, double now);
  /// All of it has left for the line: silence counts from `now`.
  void Written(double now) { last_ = now; }
  /// The Coder answers.
  void Take(std::span<const std::uint8_t> bytes, double now);
  /// Ends it if the silence has lasted. True if it ended just now.
  bool Look(double now);
  /// The line is gone.
  void Break();

  [[nodiscard]] bool Running() const { return running_; }
  /// The moment after which silence ends it.
  [[nodiscard]] double Due() const;
  [[nodiscard]] Outcome HowItEnded() const { return outcome_; }
  /// The error number of a refusal, 1 to 11.
  [[nodiscard]] int Refusal() const { return refusal_; }

 private:
  void TakeByte(std::uint8_t byte);
  void End(Outcome outcome);

  bool running_ = false;
  bool strange_ = false;         // no grammar tells when it is over
  std::size_t answer_size_ = 0;  // bytes of the frame behind an ACK
  std::size_t due_bytes_ = 0;    // still, of the frame that has begun to come
  bool refused_ = false;
  double last_ = 0;  // when a byte went, either way
  Outcome outcome_ = Outcome::kUnknown;
  int refusal_ = 0;
};

/// True for the ENQ, which drops the addressing of the Coder.
[[nodiscard]] bool IsEnq(std::span<const std::uint8_t> piece);
/// True for a frame that addresses the Coder, or gives it another ID.
[[nodiscard]] bool IsAddress(std::span<const std::uint8_t> piece);

}  // namespace corvalis::send
