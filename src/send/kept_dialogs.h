#pragma once

#include <string>
#include <utility>

#include "config/windows_1252.h"
#include "platform/dialogs.h"

namespace corvalis::send {

/// Keeps what the boxes of a desktop would say, for somebody who reads it. Nobody has to answer.
class KeptDialogs : public Dialogs {
 public:
  void Show(const Box& box) override { last_ = Utf8From1252(box.text); }
  void Beep() override {}

  /// The words of the last box since the last call, in UTF-8; empty if there was none.
  std::string Take() {
    std::string text = std::exchange(last_, {});
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
  }

 private:
  std::string last_;
};

}  // namespace corvalis::send
