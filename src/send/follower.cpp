#include "send/follower.h"

#include <fstream>
#include <utility>

#include "machine/qt_text.h"
#include "platform/profile_folder.h"

namespace corvalis::send {

namespace {

constexpr std::size_t kMostBytes = 65536;

// The first line that isn't blank, without the blanks around it.
std::string FirstLine(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text(kMostBytes, '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  if (begin == std::string::npos) return {};
  const std::string line = text.substr(begin, text.find_first_of("\r\n", begin) - begin);
  return line.substr(0, line.find_last_not_of(" \t") + 1);
}

}  // namespace

Follower::Follower(Dispatcher& dispatcher, std::string path, std::vector<std::string> words,
                   TextRules rules, std::function<void(const std::string& words)> failed)
    : dispatcher_(dispatcher),
      path_(std::move(path)),
      words_(std::move(words)),
      rules_(rules),
      failed_(std::move(failed)) {
  const auto look = [this] { Look(); };
  QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &watcher_, look);
  QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &watcher_, look);
  watcher_.addPath(machine::FromFileName(FolderOf(path_)));
  Look();
}

// A file that was replaced is another one to the watch.
void Follower::Watch() {
  const QString path = machine::FromFileName(path_);
  if (!watcher_.files().contains(path)) watcher_.addPath(path);
}

void Follower::Look() {
  if (std::ifstream(path_).good()) Watch();
  const std::string line = FirstLine(path_);
  // Whoever writes in place empties the file first.
  if (line.empty() || line == last_) return;
  last_ = line;
  std::vector<std::string> words = words_;
  words.push_back(line);
  Parsed parsed = ParseWords(words, rules_);
  if (!parsed.command) return failed_(path_ + ": " + parsed.error);
  dispatcher_.Submit(*std::move(parsed.command), [this](const Answer& answer) {
    if (answer.outcome.kind != Outcome::Kind::kDone) failed_(path_ + ": " + answer.outcome.words);
  });
}

}  // namespace corvalis::send
