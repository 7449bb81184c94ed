#include "send/desktop_port.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "platform/platform.h"
#include "send/group.h"

namespace corvalis::send {

namespace {

constexpr double kMillisecondsPerSecond = 1e3;

}  // namespace

DesktopPort::DesktopPort(SharedLine& line, const std::string& link, const std::string& group)
    : line_(line),
      terminal_(link),
      reads_(terminal_.Descriptor(), QSocketNotifier::Read),
      closes_(terminal_.CloseDescriptor(), QSocketNotifier::Read) {
  if (!group.empty()) {
    const std::string error = GiveToGroup(terminal_.Path(), group);
    if (!error.empty()) throw std::runtime_error(error);
  }
  due_.setSingleShot(true);
  due_.callOnTimeout([this] { line_.Advance(); });
  QObject::connect(&reads_, &QSocketNotifier::activated, &reads_,
                   [this] { line_.TakeFromDesktop(terminal_.Read()); });
  QObject::connect(&closes_, &QSocketNotifier::activated, &closes_, [this] { terminal_.Closed(); });
  line_.ToDesktop = [this](std::span<const std::uint8_t> bytes) {
    terminal_.Write({bytes.begin(), bytes.end()});
  };
  line_.Due = [this](double due) { SetDue(due); };
}

DesktopPort::~DesktopPort() {
  line_.ToDesktop = nullptr;
  line_.Due = nullptr;
}

void DesktopPort::SetDue(double due) {
  reads_.setEnabled(!line_.Full());
  if (std::isinf(due)) return due_.stop();
  const double left = std::max(due - Machine().clock->Steady(), 0.0);
  // Due is what lies before the present, so the last millisecond is waited too.
  due_.start(static_cast<int>(left * kMillisecondsPerSecond) + 1);
}

}  // namespace corvalis::send
