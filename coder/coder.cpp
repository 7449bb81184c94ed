#include "coder/coder.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "coder/commands.h"
#include "coder/delimit.h"
#include "coder/errors.h"
#include "link/frame.h"

namespace corvalis::coder {

namespace {

constexpr std::size_t kIdLength = 5;
constexpr std::uint8_t kNewIdentity = 1;  // the index of an Address frame that changes the ID

Bytes BodyOf(const Bytes& frame) {
  return {frame.begin() + kBodyOffset, frame.end() - (kFrameOverhead - kBodyOffset)};
}

Bytes FrameOf(std::uint8_t command, std::uint8_t index, const Bytes& body) {
  Bytes frame;
  frame.reserve(body.size() + kFrameOverhead);
  frame.assign({kStart, command, index});
  for (const std::uint8_t byte : body) frame.push_back(byte);
  frame.push_back(kEnd);
  frame.push_back(FrameChecksum(frame));
  return frame;
}

Bytes Joined(const std::vector<Bytes>& parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

Bytes Factory(const Command& command) {
  Bytes body(command.factory.begin(), command.factory.end());
  body.resize(command.body_bytes, ' ');
  return body;
}

// The bytes up to the next that could begin something.
Bytes GarbageAtFront(std::span<const std::uint8_t> bytes) {
  const auto end =
      std::ranges::find_if(bytes, [](std::uint8_t byte) { return byte == kStart || byte == kEnq; });
  return {bytes.begin(), end};
}

}  // namespace

Coder::Coder(std::string id, bool open) : id_(std::move(id)), open_(open) {
  id_.resize(kIdLength, ' ');
  for (const Command& command : Commands()) {
    if (command.code == kAddress) continue;
    memory_[command.code].assign(static_cast<std::size_t>(command.last_index) + 1,
                                 Factory(command));
  }
  // Group 0A carries the basics of every station, so a Coder leaves the factory sending it.
  constexpr std::string_view kOnOnce = "0101";
  memory_[kEnable].front().assign(kOnOnce.begin(), kOnOnce.end());
}

Bytes Coder::Take(std::span<const std::uint8_t> bytes) { return Joined(TakeApart(bytes)); }

std::vector<Bytes> Coder::TakeApart(std::span<const std::uint8_t> bytes) {
  held_.insert(held_.end(), bytes.begin(), bytes.end());
  return Digest(false);
}

Bytes Coder::LinePause() { return Joined(LinePauseApart()); }

std::vector<Bytes> Coder::LinePauseApart() {
  auto answers = Digest(true);
  hunting_ = false;
  return answers;
}

bool Coder::InFrame() const { return hunting_ || !held_.empty(); }

bool Coder::Addressed() const { return addressed_; }

const std::string& Coder::Id() const { return id_; }

std::optional<Bytes> Coder::Item(std::uint8_t command, std::uint8_t index) const {
  const auto items = memory_.find(command);
  if (items == memory_.end() || index >= items->second.size()) return std::nullopt;
  return items->second[index];
}

bool Coder::SetItem(std::uint8_t command, std::uint8_t index, std::span<const std::uint8_t> body) {
  const auto items = memory_.find(command);
  if (items == memory_.end() || index >= items->second.size()) return false;
  Bytes& item = items->second[index];
  if (body.size() != item.size()) return false;
  item.assign(body.begin(), body.end());
  return true;
}

std::vector<Bytes> Coder::Digest(bool pause) {
  std::vector<Bytes> answers;
  std::size_t at = 0;
  while (at < held_.size()) {
    const auto rest = std::span(held_).subspan(at);
    if (rest.front() == kEnq) {
      hunting_ = false;
      addressed_ = false;
      Report({Event::Kind::kEnq, {kEnq}});
      answers.push_back({kAck});
      ++at;
      continue;
    }
    if (rest.front() != kStart) {
      if (!hunting_) answers.push_back(Refuse(kStartUnknown, GarbageAtFront(rest)));
      hunting_ = true;
      ++at;
      continue;
    }
    const Delimited frame = Delimit(rest, pause);
    if (frame.state == Delimited::State::kUnfinished) break;
    Bytes received(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(frame.length));
    const bool whole = frame.state == Delimited::State::kWhole;
    if (whole && frame.error == 0) {
      hunting_ = false;
      answers.push_back(Execute(std::move(received), frame.read));
      at += frame.length;
    } else if (hunting_) {
      ++at;
    } else {
      answers.push_back(Refuse(frame.error, std::move(received)));
      // What could not be delimited is searched again from its second byte.
      hunting_ = !whole;
      at += whole ? frame.length : 1;
    }
  }
  held_.erase(held_.begin(), held_.begin() + static_cast<std::ptrdiff_t>(at));
  return answers;
}

Bytes Coder::Execute(Bytes frame, bool read) {
  int error = Refused(frame, read);
  if (error == 0 && !read) error = Store(frame);
  if (error != 0) return Refuse(error, std::move(frame));

  Bytes answer = {kAck};
  Bytes body;
  if (read) {
    const std::uint8_t command = frame[kCommandOffset];
    const std::uint8_t index = frame[kIndexOffset];
    body = memory_[command][index];
    const Bytes answer_frame = FrameOf(command, index, body);
    answer.insert(answer.end(), answer_frame.begin(), answer_frame.end());
  }
  Report({read ? Event::Kind::kRead : Event::Kind::kWrite, std::move(frame), 0, std::move(body)});
  return answer;
}

// The error number for a good frame that the Coder does not carry out, 0 if it does.
int Coder::Refused(const Bytes& frame, bool read) const {
  const Command& command = *FindCommand(frame[kCommandOffset]);
  const int index = frame[kIndexOffset];
  const bool may_come_first = command.code == kAddress && index != kNewIdentity;
  if (!addressed_ && !open_ && !may_come_first) return kNotAddressed;
  if (read && !command.readable) return kReadNotAllowed;
  if (!read && !command.writable) return kWriteNotAllowed;
  if (index > command.last_index) return kIndexTooBig;
  if (!read && !command.Accepts(BodyOf(frame))) return kWriteNotAllowed;
  return 0;
}

// Carries out a write. The error number of an address that is not the Coder's own, else 0.
int Coder::Store(const Bytes& frame) {
  const std::uint8_t command = frame[kCommandOffset];
  const Bytes body = BodyOf(frame);
  if (command != kAddress) {
    memory_[command][frame[kIndexOffset]] = body;
    return 0;
  }
  const std::string id(body.begin(), body.end());
  if (frame[kIndexOffset] == kNewIdentity) id_ = id;
  addressed_ = id == id_;
  return addressed_ ? 0 : kAddressWrong;
}

Bytes Coder::Refuse(int error, Bytes received) {
  Report({Event::Kind::kRefused, std::move(received), error, {}});
  Bytes answer = FrameOf(0, static_cast<std::uint8_t>(error), {});
  answer.insert(answer.begin(), kNak);
  return answer;
}

void Coder::Report(const Event& event) const {
  if (Happened) Happened(event);
}

}  // namespace corvalis::coder
