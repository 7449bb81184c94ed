#include "link/catalogue.h"

#include <span>
#include <utility>

namespace corvalis {

Frame Filled(Frame frame, const Writing& write) {
  BodyWriter body(frame.Body());
  write(body);
  return frame;
}

void SendItem(CommandCode code, std::uint8_t index, std::string_view label, const Writing& write) {
  WriteToCoder(Filled(Frame::Write(code, index), write), label);
}

void ReadItem(CommandCode code, std::uint8_t index, std::string_view label, const Reading& read) {
  ReadItem(Frame::Request(code, index), FrameSize(code), label, read);
}

void ReadItem(const Frame& request, std::size_t answer_size, std::string_view label,
              const Reading& read, int attempts) {
  const auto decode = [&read](std::span<const std::uint8_t> bytes) {
    BodyReader body(bytes);
    read(body);
  };
  ReadFromCoder(request, answer_size, label, decode, attempts);
}

}  // namespace corvalis
