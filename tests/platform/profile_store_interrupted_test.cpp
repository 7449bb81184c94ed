// A program that is killed in the middle of a save, or whose machine loses its power there, leaves
// a complete file, wherever it was. The saving process is stopped at each of its calls to the
// system in turn.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/profile_document.h"
#include "platform/profile_store_fixture.h"

namespace corvalis::test {
namespace {

constexpr int kKeys = 3;
const std::string kStart =
    "; station\r\n[A]\r\nKey1=old\r\n\r\n[B]\r\nKey0=" + std::string(9000, 'b') + "\r\n";

std::string Key(int i) { return "Key" + std::to_string(i); }
/// Values of other lengths, so that every kind of change happens.
std::string Value(int i) { return std::string(static_cast<std::size_t>(3 + i * 7 % 11), 'n'); }

/// What the file holds after 0, 1, 2 ... keys.
std::vector<std::string> Versions(const std::string& start) {
  ProfileDocument document;
  document.Parse(start);
  std::vector<std::string> versions{start};
  for (int i = 0; i < kKeys; ++i) {
    document.Set("A", Key(i), Value(i));
    versions.push_back(document.Text());
  }
  return versions;
}

/// A child process that stops before and after each of its calls to the system.
class TracedProcess {
 public:
  explicit TracedProcess(const std::function<bool()>& work) : pid_(::fork()) {
    if (pid_ == 0) {
      if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(2);
      ::raise(SIGSTOP);
      ::_exit(work() ? 0 : 1);
    }
    ::waitpid(pid_, &status_, 0);
    ::ptrace(PTRACE_SETOPTIONS, pid_, nullptr, PTRACE_O_TRACESYSGOOD);
  }
  ~TracedProcess() {
    if (Ended()) return;
    ::kill(pid_, SIGKILL);
    ::waitpid(pid_, &status_, 0);
  }
  TracedProcess(const TracedProcess&) = delete;
  TracedProcess& operator=(const TracedProcess&) = delete;

  [[nodiscard]] bool Ended() const { return !WIFSTOPPED(status_); }
  [[nodiscard]] bool Succeeded() const { return WIFEXITED(status_) && WEXITSTATUS(status_) == 0; }
  /// Runs to the next stop. False if the process has ended instead.
  bool Next() {
    ::ptrace(PTRACE_SYSCALL, pid_, nullptr, nullptr);
    ::waitpid(pid_, &status_, 0);
    return !Ended();
  }
  /// The open file that the call just done has seen to the disk, as a path; empty for other calls.
  std::string Synced() {
    __ptrace_syscall_info call{};
    ::ptrace(PTRACE_GET_SYSCALL_INFO, pid_, sizeof call, &call);
    if (call.op == PTRACE_SYSCALL_INFO_ENTRY) {
      const bool sync = call.entry.nr == SYS_fsync || call.entry.nr == SYS_fdatasync;
      syncing_ = sync
                     ? "/proc/" + std::to_string(pid_) + "/fd/" + std::to_string(call.entry.args[0])
                     : std::string();
      return {};
    }
    return call.exit.rval == 0 ? syncing_ : std::string();
  }

 private:
  pid_t pid_;
  int status_ = 0;
  std::string syncing_;
};

class InterruptedSaveTest : public ProfileStoreTest, public testing::WithParamInterface<bool> {
 protected:
  /// `progress` runs whenever keys are said to be on the disk, with their number.
  bool SaveKeys(const std::function<void(int)>& progress = [](int) {}) {
    std::optional<ProfileStore::Series> series;
    if (GetParam()) series.emplace(store);
    for (int i = 0; i < kKeys; ++i) {
      if (!store.Write(file, "A", Key(i), Value(i))) return false;
      if (!series) progress(1);
    }
    if (!series) return true;
    const bool good = series->Finish();
    if (good) progress(kKeys);
    return good;
  }
};

TEST_P(InterruptedSaveTest, KilledItLeavesACompleteFileWithEveryKeyThatWasSaved) {
  const std::vector<std::string> versions = Versions(kStart);
  int saved = 0;
  bool ended = false;
  // Behind each call; before the next one it is no other moment.
  for (int kill_at = 2; !ended; kill_at += 2) {
    WriteFile(file, kStart);
    int progress[2];
    ASSERT_EQ(::pipe(progress), 0);
    {
      TracedProcess process([&] {
        return SaveKeys([&](int keys) {
          if (::write(progress[1], "kkk", static_cast<std::size_t>(keys)) != keys) ::_exit(1);
        });
      });
      ::close(progress[1]);
      if (process.Ended()) GTEST_SKIP() << "this machine lets no process be traced";
      for (int stop = 0; stop < kill_at && !ended; ++stop) ended = !process.Next();
    }
    saved = 0;
    for (char byte = 0; ::read(progress[0], &byte, 1) == 1;) ++saved;
    ::close(progress[0]);

    const auto found = std::find(versions.begin(), versions.end(), ReadFile(file));
    ASSERT_NE(found, versions.end()) << ReadFile(file).substr(0, 500);
    EXPECT_GE(found - versions.begin(), saved);
    EXPECT_TRUE(!GetParam() || found == versions.begin() || *found == versions.back());
    // The next program reads it, saves, and clears up.
    ProfileStore next;
    EXPECT_TRUE(next.Write(file, "A", "After", "1"));
    EXPECT_EQ(next.Read(file, "A", "After"), "1");
    EXPECT_TRUE(Litter().empty());
  }
  EXPECT_EQ(saved, kKeys);
}

/// A disk that keeps nothing until it is told to, but the folder may be ahead of that: it can say
/// of the file what it said at any moment since.
class ForgetfulDisk {
 public:
  /// `holds` is what the disk has of the file; nothing if the folder may not know it either.
  ForgetfulDisk(std::string file, const std::string& holds) : file_(std::move(file)) {
    texts_[FileNow()] = holds;
    said_ = {holds.empty() ? 0 : FileNow(), FileNow()};
  }
  void Look(const std::string& synced) {
    if (said_.back() != FileNow()) said_.push_back(FileNow());
    struct stat status {};
    if (synced.empty() || ::stat(synced.c_str(), &status) != 0) return;
    if (S_ISDIR(status.st_mode)) {
      said_ = {FileNow()};
    } else {
      std::ifstream stream(synced, std::ios::binary);
      texts_[status.st_ino] = {std::istreambuf_iterator<char>(stream), {}};
    }
  }
  /// All that the file may hold after a loss of power now; nothing for a missing file.
  [[nodiscard]] std::vector<std::string> MayHold() {
    std::vector<std::string> texts;
    for (const ino_t inode : said_) texts.push_back(texts_[inode]);
    return texts;
  }

 private:
  [[nodiscard]] ino_t FileNow() const {
    struct stat status {};
    return ::stat(file_.c_str(), &status) == 0 ? status.st_ino : 0;
  }
  std::string file_;
  std::map<ino_t, std::string> texts_;  // as last synced
  std::vector<ino_t> said_;
};

TEST_F(ProfileStoreTest, ALossOfPowerLeavesTheOldFileOrTheNewOne) {
  const std::string after = Versions(kStart).back();
  struct {
    const char* what;
    std::string file, on_disk;
  } const cases[] = {
      {"a file", kStart, kStart},
      {"no file", "", ""},
      {"a file that has the keys, but isn't on the disk yet", after, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    fs::remove(file);
    if (!c.file.empty()) WriteFile(file, c.file);
    const std::string wanted = Versions(c.file).back();
    ForgetfulDisk disk(file, c.on_disk);
    TracedProcess process([&] {
      ProfileStore::Series series(store);
      for (int i = 0; i < kKeys; ++i) store.Write(file, "A", Key(i), Value(i));
      return series.Finish();
    });
    if (process.Ended()) GTEST_SKIP() << "this machine lets no process be traced";
    while (process.Next()) {
      disk.Look(process.Synced());
      for (const std::string& text : disk.MayHold()) {
        ASSERT_TRUE(text == c.on_disk || text == wanted) << text.substr(0, 500);
      }
    }
    EXPECT_TRUE(process.Succeeded());
    for (const std::string& text : disk.MayHold()) EXPECT_EQ(text, wanted);
  }
}

INSTANTIATE_TEST_SUITE_P(Saves, InterruptedSaveTest, testing::Bool());

}  // namespace
}  // namespace corvalis::test
