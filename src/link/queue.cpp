#include "link/queue.h"

namespace corvalis {

void Queue::QReset() {
  write_index_ = 0;
  read_index_ = 0;
  last_was_removal_ = true;
}

std::uint8_t Queue::QPop() {
  if (QEmpty()) return 0;
  const std::uint8_t byte = buffer_[read_index_];
  read_index_ = static_cast<std::uint16_t>((read_index_ + 1) & kMask);
  last_was_removal_ = true;
  return byte;
}

void Queue::QPush(std::uint8_t byte) {
  if (QFull()) return;
  buffer_[write_index_] = byte;
  write_index_ = static_cast<std::uint16_t>((write_index_ + 1) & kMask);
  last_was_removal_ = false;
}

}  // namespace corvalis
