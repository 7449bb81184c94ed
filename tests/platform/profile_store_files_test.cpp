// The profile store against what can befall a file: other programs and users, links, full disks.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/profile_document.h"
#include "platform/profile_store_fixture.h"

namespace corvalis::test {
namespace {

struct stat Status(const fs::path& path) {
  struct stat status {};
  ::stat(path.c_str(), &status);
  return status;
}

int ExitCode(pid_t child) {
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(ProfileStoreTest, KeepsModeLinksAndOtherNames) {
  for (const bool in_series : {false, true}) {
    fs::remove_all(home);
    fs::create_directories(home / "real");
    const fs::path real = home / "real" / "a.rds";
    WriteFile(real, "[A]\nX=1\n");
    ASSERT_EQ(::chmod(real.c_str(), 0640), 0);
    fs::create_hard_link(real, home / "backup");
    fs::create_symlink("real/a.rds", home / "link");
    fs::create_symlink(home / "link", file);
    {
      std::optional<ProfileStore::Series> series;
      if (in_series) series.emplace(store);
      for (const char* value : {"2", "33", "4"}) EXPECT_TRUE(store.Write(file, "A", "X", value));
    }
    EXPECT_TRUE(fs::is_symlink(file) && fs::is_symlink(home / "link"));
    EXPECT_EQ(ReadFile(real), "[A]\nX=4\n");
    EXPECT_EQ(ReadFile(home / "backup"), "[A]\nX=1\n");
    EXPECT_EQ(Status(real).st_mode & 07777, 0640U);
    EXPECT_EQ(std::distance(fs::directory_iterator(home / "real"), {}), 1);
    // A link may promise a file.
    fs::remove(real);
    EXPECT_TRUE(store.Write(file, "A", "X", "1"));
    EXPECT_EQ(ReadFile(real), "[A]\r\nX=1\r\n");
  }
}

// Same size, same file, and mostly the same tick of the file system's clock.
TEST_F(ProfileStoreTest, SeesWhatOtherProgramsDo) {
  for (const bool in_series : {false, true}) {
    for (const char* value : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
      std::optional<ProfileStore::Series> series;
      if (in_series) series.emplace(store);
      WriteFile(file, std::string("[A]\nX=") + value + "\n[B]\nY=1\n");
      EXPECT_EQ(store.Read(file, "A", "X"), value);
      EXPECT_TRUE(store.Write(file, "B", "Z", "3"));
      // Where it stands.
      std::fstream(file, std::ios::binary | std::ios::in | std::ios::out) << "[A]\nX=!\n";
      EXPECT_TRUE(store.Write(file, "B", "Y", value));
      EXPECT_EQ(store.Read(file, "A", "X"), "!");
      EXPECT_EQ(store.Read(file, "B", "Z"), "3");
      std::fstream(file, std::ios::binary | std::ios::in | std::ios::out) << "[A]\nX=?\n";
      EXPECT_TRUE(!series || series->Finish());
      const std::string text = std::string("[A]\nX=?\n[B]\nY=") + value + "\nZ=3\n";
      EXPECT_EQ(ReadFile(file), text);
    }
    fs::remove(file);
    EXPECT_EQ(store.Read(file, "A", "X"), "");
  }
}

TEST_F(ProfileStoreTest, TwoProgramsLoseNoKey) {
  constexpr int kEach = 20;
  const auto save = [&](const std::string& key) {
    bool good = true;
    for (int i = 0; i < kEach; ++i)
      good = store.Write(file, "A", key + std::to_string(i), key) && good;
    return good;
  };
  const pid_t child = ::fork();
  if (child == 0) ::_exit(save("Child") ? 0 : 1);
  EXPECT_TRUE(save("Parent"));
  EXPECT_EQ(ExitCode(child), 0);
  for (int i = 0; i < kEach; ++i) {
    EXPECT_EQ(store.Read(file, "A", "Child" + std::to_string(i)), "Child");
    EXPECT_EQ(store.Read(file, "A", "Parent" + std::to_string(i)), "Parent");
  }
}

TEST_F(ProfileStoreTest, TouchesNoFileThatHasItsKeys) {
  WriteFile(file, "[A]\nX=1\n");
  const auto inode = Status(file).st_ino;
  ProfileStore::Series series(store);
  EXPECT_TRUE(store.Write(file, "A", "X", "2"));
  EXPECT_EQ(store.Read(file, "A", "X"), "2");
  EXPECT_TRUE(store.Write(file, "A", "X", "1"));
  EXPECT_TRUE(series.Finish());
  EXPECT_EQ(Status(file).st_ino, inode);
}

// --- What goes wrong ---

TEST_F(ProfileStoreTest, FailsInSilenceWhereItCannotWrite) {
  ASSERT_EQ(::mkfifo((home / "pipe").c_str(), 0666), 0);
  fs::create_symlink("loop", home / "loop");
  for (const char* name : {"missing/a.rds", ".", "pipe", "loop"}) {
    EXPECT_FALSE(store.Write(home / name, "A", "X", "1")) << name;
    EXPECT_EQ(store.Read(home / name, "A", "X"), "") << name;
    // What fails takes nothing else along.
    ProfileStore::Series series(store);
    store.Write(home / name, "A", "X", "1");
    EXPECT_TRUE(store.Write(file, "A", "X", name));
    EXPECT_FALSE(series.Finish()) << name;
    EXPECT_EQ(store.Read(file, "A", "X"), name);
  }
  EXPECT_EQ(Litter().size(), 2U);
}

/// Files may not grow beyond `bytes` from now on.
void FillDisk(rlim_t bytes) {
  ::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, bytes};
  if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) ::_exit(1);
}

TEST_F(ProfileStoreTest, AFullDiskLosesNothing) {
  for (const bool in_series : {false, true}) {
    WriteFile(file, "[A]\r\nX=1\r\n");
    const pid_t child = ::fork();
    if (child == 0) {
      FillDisk(1000);
      ProfileStore::Series series(store);
      if (!in_series) series.Finish();
      int written = 0;
      while (written < 100 && store.Write(file, "A", "K" + std::to_string(written), "123456789")) {
        ++written;
      }
      if (in_series && series.Finish()) ::_exit(2);
      // What still has room goes in.
      ::_exit(written > 50 && store.Write(file, "A", "X", "2") ? 0 : 3);
    }
    EXPECT_EQ(ExitCode(child), 0);
    const std::string text = ReadFile(file);
    EXPECT_TRUE(text.starts_with(in_series ? "[A]\r\nX=2\r\n" : "[A]\r\nX=2\r\nK0=123456789\r\n"))
        << text;
    EXPECT_TRUE(text.ends_with(in_series ? "X=2\r\n" : "=123456789\r\n")) << text;
    EXPECT_TRUE(Litter().empty());
  }
}

TEST_F(ProfileStoreTest, WaitsForNoLockThatStays) {
  ProfileStore impatient(std::chrono::milliseconds(0));
  const int locked = ::open(home.c_str(), O_RDONLY | O_DIRECTORY);
  ASSERT_EQ(::flock(locked, LOCK_EX), 0);
  EXPECT_TRUE(impatient.Write(file, "A", "X", "1"));
  EXPECT_EQ(ReadFile(file), "[A]\r\nX=1\r\n");
  ::close(locked);
}

// --- Whose the file is ---

constexpr uid_t kNobody = 65534;

/// Runs `work` as a user who owns nothing, if this is root; folders without rights to write stop
/// everybody else anyhow.
class OtherUserTest : public ProfileStoreTest {
 protected:
  OtherUserTest() {
    fs::permissions(folder, fs::perms(0755));
    fs::permissions(home, fs::perms(0755));
  }
  ~OtherUserTest() override { fs::permissions(home, fs::perms(0755)); }
  static int Run(const std::function<bool()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
      if (::geteuid() == 0 && (::setgid(kNobody) != 0 || ::setuid(kNobody) != 0)) ::_exit(2);
      ::_exit(work() ? 0 : 1);
    }
    return ExitCode(child);
  }
};

TEST_F(OtherUserTest, WritesInPlaceWhereTheFolderTakesNoFile) {
  const std::string before = "[A]\nX=" + std::string(500, '1') + "\n";
  WriteFile(file, before);
  fs::permissions(file, fs::perms(0666));
  fs::permissions(home, fs::perms(0555));
  EXPECT_EQ(Run([&] {
              FillDisk(1000);
              return !store.Write(file, "A", "X", std::string(2000, '2'));
            }),
            0);
  EXPECT_EQ(ReadFile(file), before);
  EXPECT_EQ(Run([&] { return store.Write(file, "A", "X", "2"); }), 0);
  EXPECT_EQ(ReadFile(file), "[A]\nX=2\n");
  fs::permissions(file, fs::perms(0444));
  EXPECT_NE(Run([&] { return store.Write(file, "A", "X", "3"); }), 0);
}

TEST_F(OtherUserTest, NobodyElsesFilesBlockASave) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make files of two users";
  fs::permissions(home, fs::perms(01777));
  // What another user's killed program left, with whatever name.
  pid_t killed = ::fork();
  if (killed == 0) {
    // Dies behind its first new file.
    FillDisk(0);
    ::signal(SIGXFSZ, SIG_DFL);
    store.Write(file, "A", "X", "1");
    ::_exit(0);
  }
  ExitCode(killed);
  ASSERT_EQ(Litter().size(), 1U);
  WriteFile(file, "[A]\n");
  for (const uid_t owner : {kNobody, uid_t{0}}) {  // of another's file only the text can be changed
    ASSERT_EQ(::chown(file.c_str(), owner, owner), 0);
    const auto inode = Status(file).st_ino;
    fs::permissions(file, fs::perms(0666));
    EXPECT_EQ(Run([&] { return store.Write(file, "A", "X", std::to_string(owner)); }), 0);
    EXPECT_EQ(ReadFile(file), "[A]\nX=" + std::to_string(owner) + "\n");
    EXPECT_EQ(Status(file).st_uid, owner);
    EXPECT_EQ(Status(file).st_ino == inode, owner == 0);
  }
  EXPECT_EQ(Litter().size(), 1U);
}

/// An access list as the kernel takes it: the owner rw, user 1 as given, the group nothing, others
/// nothing.
std::string AccessList(char user_rights) {
  std::string list("\2\0\0\0", 4);
  const auto add = [&list](char tag, char rights, char id) {
    list.append({tag, 0, rights, 0, id, id, id, id});
  };
  add(0x01, 6, -1);
  list.append({2, 0, user_rights, 0, 1, 0, 0, 0});
  add(0x04, 0, -1);
  add(0x10, user_rights, -1);
  add(0x20, 0, -1);
  return list;
}

TEST_F(ProfileStoreTest, KeepsTheAccessList) {
  constexpr const char* kList = "system.posix_acl_access";
  const auto list_of = [&](const fs::path& path) {
    char bytes[100];
    const ssize_t size = ::getxattr(path.c_str(), kList, bytes, sizeof bytes);
    return std::string(bytes, size < 0 ? 0 : static_cast<std::size_t>(size));
  };
  const std::string folders = AccessList(4);
  if (::setxattr(home.c_str(), "system.posix_acl_default", folders.data(), folders.size(), 0) !=
      0) {
    GTEST_SKIP() << "this file system knows no access lists";
  }
  for (const std::string& list : {std::string(), AccessList(6)}) {
    WriteFile(file, "[A]\n");
    ::removexattr(file.c_str(), kList);
    fs::permissions(file, fs::perms(0640));
    if (!list.empty()) {
      ASSERT_EQ(::setxattr(file.c_str(), kList, list.data(), list.size(), 0), 0);
    }
    const mode_t mode = Status(file).st_mode;
    EXPECT_TRUE(store.Write(file, "A", "X", std::to_string(list.size())));
    EXPECT_EQ(list_of(file), list);
    EXPECT_EQ(Status(file).st_mode, mode);
  }
}

}  // namespace
}  // namespace corvalis::test
