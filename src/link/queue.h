#pragma once

#include <array>
#include <cstdint>

namespace corvalis {

/// The ring of received bytes; all 1024 places can be used.
class Queue {
 public:
  static constexpr int kCapacity = 1024;

  void QReset();
  [[nodiscard]] bool QEmpty() const { return read_index_ == write_index_ && last_was_removal_; }
  [[nodiscard]] bool QFull() const { return read_index_ == write_index_ && !last_was_removal_; }
  /// The oldest byte; 0, changing nothing, if the queue is empty.
  std::uint8_t QPop();
  /// Drops the byte if the queue is full.
  void QPush(std::uint8_t byte);

 private:
  static constexpr std::uint16_t kMask = 0x3FF;

  std::array<std::uint8_t, kCapacity> buffer_{};
  std::uint16_t write_index_ = 0;
  std::uint16_t read_index_ = 0;
  bool last_was_removal_ = true;  // tells the two meanings of equal indexes apart
};

}  // namespace corvalis
