#include "coder/transmitter.h"

#include <poll.h>

#include <algorithm>
#include <limits>
#include <ostream>
#include <string_view>
#include <utility>

namespace corvalis::coder {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;

// At once, before the line is looked at again.
constexpr int kTogether = 16;
// What the last of it may take to leave.
constexpr milliseconds kLastMoment{300};
constexpr milliseconds kLookAgain{20};
constexpr std::string_view kWithHeader = ".wav";

}  // namespace

Transmitter::Transmitter(Coder& coder, const AirOptions& options, std::ostream& complaints)
    : on_air_(coder), options_(options), complaints_(complaints) {
  Add(options.text, MakeTextFormat());
  Add(options.bits, MakeBitFormat());
  Add(options.mpx, MakeMpxFormat(options.mpx.ends_with(kWithHeader)));
}

void Transmitter::Add(const std::string& path, std::unique_ptr<AirFormat> format) {
  if (path.empty()) return;
  const bool has_front = !format->Front(std::numeric_limits<std::uint64_t>::max()).empty();
  outputs_.push_back({Outlet(path), std::move(format), has_front});
}

void Transmitter::Begin(Time now) { begun_ = look_again_ = now; }

bool Transmitter::AllSent() const {
  return options_.groups > 0 && sent_ >= static_cast<std::uint64_t>(options_.groups);
}

bool Transmitter::Over() const { return AllSent() && waited_for_ == nullptr; }

std::optional<Transmitter::Time> Transmitter::NextDue() const {
  if (Over()) return std::nullopt;
  return options_.speed > 0 ? StartOf(sent_) : look_again_;
}

int Transmitter::BusyDescriptor() const {
  return waited_for_ == nullptr ? -1 : waited_for_->outlet.Descriptor();
}

Transmitter::Time Transmitter::StartOf(std::uint64_t group) const {
  return begun_ + std::chrono::duration_cast<Clock::duration>(GroupStart(group) / options_.speed);
}

void Transmitter::RunDue(Time now) {
  for (int made = 0; made < kTogether; ++made) {
    if (options_.speed == 0) {
      waited_for_ = FirstBusy();
      look_again_ = waited_for_ == nullptr ? now : now + kLookAgain;
      if (waited_for_ != nullptr) return;
    }
    if (AllSent() || (options_.speed > 0 && StartOf(sent_) > now)) return;
    Send(on_air_.Next(GroupStart(sent_)));
    ++sent_;
  }
}

// Who has to read before the next group can go out without being lost.
Transmitter::Output* Transmitter::FirstBusy() {
  const auto busy = std::ranges::find_if(outputs_, [](Output& output) {
    const Outlet::State state = output.outlet.Look();
    return state == Outlet::State::kBusy || state == Outlet::State::kUnread;
  });
  return busy == outputs_.end() ? nullptr : &*busy;
}

void Transmitter::Send(const air::Group& group) {
  for (Output& output : outputs_) {
    switch (output.outlet.Look()) {
      case Outlet::State::kReady:
        Put(output, group);
        break;
      case Outlet::State::kUnread:
        break;
      case Outlet::State::kBusy:
      case Outlet::State::kGone:
        Drop(output);
        break;
    }
  }
}

void Transmitter::Put(Output& output, const air::Group& group) {
  const std::string front = output.outlet.TakeFresh() ? output.format->Begin() : "";
  Put(output, front + output.format->Write(group));
}

// What stands at the front is right at any time, whatever becomes of the program.
void Transmitter::Put(Output& output, const std::string& bytes) {
  output.outlet.Put(bytes);
  if (output.has_front) output.outlet.PutOver(output.format->Front(output.outlet.FileBytes()));
}

void Transmitter::Drop(Output& output) {
  if (output.dropped++ > 0) return;
  complaints_ << "corvalis-coder: who reads " << output.outlet.Path()
              << " is slow or gone, and misses groups" << std::endl;
}

void Transmitter::End() {
  for (Output& output : outputs_) {
    const Outlet::State state = output.outlet.Look();
    const bool takes = state == Outlet::State::kReady || state == Outlet::State::kBusy;
    if (takes && !output.outlet.TakeFresh()) {
      Put(output, output.format->End());
    }
  }
  const Time last = Clock::now() + kLastMoment;
  while (Output* const busy = FirstBusy()) {
    const auto left = std::chrono::duration_cast<milliseconds>(last - Clock::now());
    if (left <= milliseconds::zero() || busy->outlet.Descriptor() < 0) break;
    pollfd polled{busy->outlet.Descriptor(), POLLOUT, 0};
    poll(&polled, 1, static_cast<int>(left.count()));
  }
  for (const Output& output : outputs_) {
    if (output.dropped == 0) continue;
    complaints_ << "corvalis-coder: groups dropped for " << output.outlet.Path() << ": "
                << output.dropped << std::endl;
  }
}

}  // namespace corvalis::coder
