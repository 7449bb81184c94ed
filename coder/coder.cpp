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

Bytes Digits(int number, std::size_t digits) {
  Bytes text(digits);
  for (; digits-- > 0; number /= 16) {
    text[digits] = static_cast<std::uint8_t>("0123456789ABCDEF"[number % 16]);
  }
  return text;
}

// The bytes up to the next that could begin something.
Bytes GarbageAtFront(std::span<const std::uint8_t> bytes) {
  const auto end =
      std::ranges::find_if(bytes, [](std::uint8_t byte) { return byte == kStart || byte == kEnq; });
  return {bytes.begin(), end};
}

}  // namespace

Coder::Coder(std::string id, bool open, const Counts& counts) : open_(open), counts_(counts) {
  SetId(std::move(id));
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

void Coder::SetId(std::string id) {
  id_ = std::move(id);
  id_.resize(kIdLength, ' ');
}

const Counts& Coder::Sizes() const { return counts_; }

void Coder::SetSizes(const Counts& counts) {
  counts_ = counts;
  ++changes_;
  for (std::uint64_t& changes : changes_of_) ++changes;
  coming_.clear();
  std::erase_if(memory_, [&](const auto& item) {
    return FindItem(item.first.first, item.first.second, counts) == nullptr;
  });
}

std::optional<Bytes> Coder::Item(std::uint8_t code, int number) const {
  const Command* command = FindItem(code, number, counts_);
  if (command == nullptr || code == kAddress) return std::nullopt;
  if (command->tells != nullptr) return Digits(counts_.*command->tells, command->body_bytes);
  if (command->part_of != 0) return Bytes{(*Item(command->part_of, number))[command->part_at]};
  const auto item = memory_.find({code, number});
  return item == memory_.end() ? command->Factory(number) : item->second;
}

bool Coder::SetItem(std::uint8_t code, int number, std::span<const std::uint8_t> body) {
  const Command* command = FindItem(code, number, counts_);
  if (command == nullptr || code == kAddress || !command->writable) return false;
  if (body.size() != command->body_bytes) return false;
  if (command->part_of != 0) {
    Bytes whole = *Item(command->part_of, number);
    whole[command->part_at] = body.front();
    return SetItem(command->part_of, number, whole);
  }
  memory_[{code, number}].assign(body.begin(), body.end());
  ++changes_;
  ++changes_of_[code];
  return true;
}

std::uint64_t Coder::Changes(std::uint8_t command) const { return changes_of_[command]; }

bool Coder::Written(std::uint8_t code, int number) const {
  return memory_.contains({code, number});
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
      answers.push_back(Execute(*frame.command, std::move(received), frame.read));
      at += frame.length;
    } else if (hunting_) {
      ++at;
    } else {
      answers.push_back(Refuse(frame.error, std::move(received)));
      // What could not be delimited is searched again from its second byte. What a pause has cut
      // short is one thing, whatever it looks like.
      hunting_ = pause || !whole;
      at += whole ? frame.length : 1;
    }
  }
  held_.erase(held_.begin(), held_.begin() + static_cast<std::ptrdiff_t>(at));
  return answers;
}

Bytes Coder::Execute(const Command& command, Bytes frame, bool read) {
  const std::uint8_t index = frame[kIndexOffset];
  Bytes body = BodyOf(frame);
  int error = Refused(command, index, body, read);
  if (error == 0 && command.code == kAddress) error = TakeAddress(index == kNewIdentity, body);
  if (error != 0) return Refuse(error, std::move(frame));

  const int number = *command.Number(index, body);
  Bytes answer = {kAck};
  if (read) {
    body = *Item(command.code, number);
    // The end of an in-house page is answered as it is written, with the marker 1.
    const std::uint8_t marked = command.Marked() ? 1 : index;
    const Bytes answer_frame = FrameOf(command.code, marked, body);
    answer.insert(answer.end(), answer_frame.begin(), answer_frame.end());
  } else {
    Take(command, number, body);
  }
  Report({read ? Event::Kind::kRead : Event::Kind::kWrite, std::move(frame), 0, &command, number,
          std::move(body)});
  return answer;
}

// The blocks of an in-house page wait for its end: until then the page is what it was.
void Coder::Take(const Command& command, int number, const Bytes& body) {
  if (command.code == kIh && !command.Marked()) {
    coming_[number] = body;
    return;
  }
  SetItem(command.code, number, body);
  if (command.code != kIh) return;
  const auto begin = coming_.lower_bound(number - kIhEnd);
  const auto end = coming_.lower_bound(number);
  for (auto block = begin; block != end; ++block) SetItem(kIh, block->first, block->second);
  coming_.erase(begin, end);
}

// The error number for a good frame that the Coder does not carry out, 0 if it does.
int Coder::Refused(const Command& command, std::uint8_t index, const Bytes& body, bool read) const {
  const bool may_come_first =
      read ? command.tells != nullptr : command.code == kAddress && index != kNewIdentity;
  if (!addressed_ && !open_ && !may_come_first) return kNotAddressed;
  if (read && !command.readable) return kReadNotAllowed;
  if (!read && !command.writable) return kWriteNotAllowed;
  const auto number = command.Number(index, body);
  if (number && !command.Holds(*number, counts_)) return kIndexTooBig;
  return command.Judge(body, read, counts_);
}

// An `error` for an address that is not the Coder's own, else 0.
int Coder::TakeAddress(bool is_new, const Bytes& body) {
  const std::string id(body.begin(), body.end());
  if (is_new) id_ = id;
  addressed_ = id == id_;
  return addressed_ ? 0 : kAddressWrong;
}

Bytes Coder::Refuse(int error, Bytes received) {
  Report({Event::Kind::kRefused, std::move(received), error});
  Bytes answer = FrameOf(0, static_cast<std::uint8_t>(error), {});
  answer.insert(answer.begin(), kNak);
  return answer;
}

void Coder::Report(const Event& event) const {
  if (Happened) Happened(event);
}

}  // namespace corvalis::coder
