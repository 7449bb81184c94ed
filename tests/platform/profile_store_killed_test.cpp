// A program that dies in the middle of a save leaves a complete file, wherever it was.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/profile_document.h"
#include "platform/profile_store_fixture.h"

namespace corvalis::test {
namespace {

constexpr int kKeys = 8;

std::string Key(int i) { return "Key" + std::to_string(i); }

/// Saves over a file with values of other lengths, so that every kind of change happens.
std::string Value(int i) { return std::string(static_cast<std::size_t>(3 + i * 7 % 11), 'n'); }

/// What the file may hold: after 0, 1, 2 ... keys.
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

const std::string kStart =
    "; station\r\n[A]\r\nKey1=old\r\nKey3=nnn\r\n\r\n[B]\r\nKey0=" + std::string(9000, 'b') +
    "\r\n";

void SaveKeys(ProfileStore& store, const std::string& file, bool in_series,
              const std::function<void()>& progress) {
  std::optional<ProfileStore::Series> series;
  if (in_series) series.emplace(store);
  for (int i = 0; i < kKeys; ++i) {
    store.Write(file, "A", Key(i), Value(i));
    progress();
  }
}

class KilledSaveTest : public ProfileStoreTest, public testing::WithParamInterface<bool> {};

// Stops the saving process at each of its calls to the system in turn and kills it there.
TEST_P(KilledSaveTest, LeavesACompleteFileWithEveryKeyThatWasSaved) {
  const std::vector<std::string> versions = Versions(kStart);
  bool ended = false;
  int saved = 0;
  for (int kill_at = 1; !ended; ++kill_at) {
    WriteFile(file, kStart);
    int progress[2];
    ASSERT_EQ(::pipe(progress), 0);
    const pid_t child = ::fork();
    if (child == 0) {
      if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(1);
      ::raise(SIGSTOP);
      SaveKeys(store, file, GetParam(), [&] {
        if (::write(progress[1], "k", 1) != 1) ::_exit(1);
      });
      ::_exit(0);
    }
    ::close(progress[1]);
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WIFEXITED(status)) GTEST_SKIP() << "this machine lets no process be traced";
    for (int stop = 0; stop < kill_at && !ended; ++stop) {
      ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
      ::waitpid(child, &status, 0);
      ended = !WIFSTOPPED(status);
    }
    if (!ended) {
      ::kill(child, SIGKILL);
      ::waitpid(child, nullptr, 0);
    }
    saved = 0;
    for (char byte = 0; ::read(progress[0], &byte, 1) == 1;) ++saved;
    ::close(progress[0]);

    const auto found = std::find(versions.begin(), versions.end(), ReadFile(file));
    ASSERT_NE(found, versions.end()) << ReadFile(file).substr(0, 500);
    EXPECT_GE(found - versions.begin(), saved);
    // The next program reads it, saves, and clears up.
    ProfileStore next;
    EXPECT_TRUE(next.Write(file, "A", "After", "1"));
    EXPECT_EQ(next.Read(file, "A", "After"), "1");
    EXPECT_TRUE(Litter().empty());
  }
  EXPECT_EQ(saved, kKeys);
}

INSTANTIATE_TEST_SUITE_P(Saves, KilledSaveTest, testing::Bool());

}  // namespace
}  // namespace corvalis::test
