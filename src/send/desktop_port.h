#pragma once

#include <QSocketNotifier>
#include <QTimer>
#include <string>

#include "platform/pseudo_terminal.h"
#include "send/shared_line.h"

namespace corvalis::send {

/// What the desktop program opens as its port, for as long as this lives: a line of this machine
/// whose other end is a `SharedLine`. Its settings say nothing; the real line has those of the
/// service.
class DesktopPort {
 public:
  /// Makes `link` a link to it, in the way of `PseudoTerminal`, and gives the line to `group`,
  /// unless that is empty. `line` has to outlive this. Throws `std::runtime_error` with a sentence
  /// for people.
  DesktopPort(SharedLine& line, const std::string& link, const std::string& group);
  ~DesktopPort();
  DesktopPort(const DesktopPort&) = delete;
  DesktopPort& operator=(const DesktopPort&) = delete;

 private:
  void SetDue(double due);

  SharedLine& line_;
  PseudoTerminal terminal_;
  QSocketNotifier reads_;
  QSocketNotifier closes_;
  QTimer due_;
};

}  // namespace corvalis::send
