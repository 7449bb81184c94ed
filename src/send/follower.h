#pragma once

#include <QFileSystemWatcher>
#include <functional>
#include <string>
#include <vector>

#include "send/carried_text.h"
#include "send/dispatcher.h"

namespace corvalis::send {

/// Follows a file that another program writes, and sends its first line that isn't blank as the
/// text of a command, at the start and whenever it is another. The file may be missing, be written
/// in place or be replaced.
class Follower {
 public:
  /// `words` are the command before the text, as "rt", "1". `failed` hears what becomes of a line
  /// that isn't sent.
  Follower(Dispatcher& dispatcher, std::string path, std::vector<std::string> words,
           TextRules rules, std::function<void(const std::string& words)> failed);

 private:
  void Look();
  void Watch();

  Dispatcher& dispatcher_;
  std::string path_;
  std::vector<std::string> words_;
  TextRules rules_;
  std::function<void(const std::string& words)> failed_;
  std::string last_;
  QFileSystemWatcher watcher_;
};

}  // namespace corvalis::send
