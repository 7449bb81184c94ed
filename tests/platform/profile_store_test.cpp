// The profile store, against observed behaviour of the calls that the file format comes from, and
// against what can befall a file: other programs, links, full disks.

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
#include <nlohmann/json.hpp>
#include <optional>
#include <random>
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

// --- What is read and written ---

std::string Narrow(const nlohmann::json& text) {
  std::string bytes;
  const auto utf8 = text.get<std::string>();
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    // The cases hold no character above 255: two bytes of UTF-8 at most.
    bytes += lead < 0x80 ? utf8[i] : static_cast<char>((lead << 6) | (utf8[++i] & 0x3F));
  }
  return bytes;
}

std::vector<std::string> LinesNotBlank(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}

TEST_F(ProfileStoreTest, ReadsAndWritesAsObserved) {
  std::ifstream stream(fs::path(CORVALIS_TEST_DATA) / "profile-store-cases.json");
  const auto cases = nlohmann::json::parse(stream);
  ASSERT_FALSE(cases.empty());
  for (const bool in_series : {false, true}) {
    for (const auto& c : cases) {
      SCOPED_TRACE(c.at("case").get<std::string>());
      fs::remove(file);
      if (!c.at("file").is_null()) WriteFile(file, Narrow(c.at("file")));
      std::optional<ProfileStore::Series> series;
      if (in_series) series.emplace(store);
      for (const auto& step : c.at("steps")) {
        if (step.contains("read")) {
          const auto& names = step.at("read");
          EXPECT_EQ(store.Read(file, Narrow(names[0]), Narrow(names[1]), step.at("size")),
                    Narrow(step.at("gives")));
        } else {
          const auto& key = step.at("write");
          EXPECT_TRUE(store.Write(file, Narrow(key[0]), Narrow(key[1]), Narrow(key[2])));
        }
      }
      series.reset();
      if (c.contains("lines_after")) {
        std::vector<std::string> lines;
        for (const auto& line : c.at("lines_after")) lines.push_back(Narrow(line));
        EXPECT_EQ(LinesNotBlank(ReadFile(file)), lines);
      }
      EXPECT_TRUE(Litter().empty());
    }
  }
}

TEST_F(ProfileStoreTest, KeepsEveryByteItDoesNotWrite) {
  struct {
    const char* rule;
    std::string before;
    const char *section, *key, *value;
    std::string after;
  } const cases[] = {
      {"a new file has CR LF", "", "A", "X", "1", "[A]\r\nX=1\r\n"},
      {"line feeds stay alone", "[A]\nX=1\n", "A", "Y", "2", "[A]\nX=1\nY=2\n"},
      {"mixed: as the line before", "[A]\r\nX=1\n\n[B]\r\n", "A", "Y", "2",
       "[A]\r\nX=1\nY=2\n\n[B]\r\n"},
      {"mixed: a changed line keeps its end", "[A]\nX=1\r\nY=2\n", "A", "X", "9",
       "[A]\nX=9\r\nY=2\n"},
      {"no last line end, new key", "[A]\nX=1", "A", "Y", "2", "[A]\nX=1\nY=2\n"},
      {"before the blank lines", "[A]\r\nX=1\r\n\r\n \t\r\n[B]\r\n", "A", "Y", "2",
       "[A]\r\nX=1\r\nY=2\r\n\r\n \t\r\n[B]\r\n"},
      {"names keep their case and blanks", " [ a ] n\n x = 1 \n", "A", "X", "2",
       " [ a ] n\n x =2\n"},
      {"a byte order mark", "\xEF\xBB\xBF[A]\nX=1\n", "A", "X", "2", "\xEF\xBB\xBF[A]\nX=2\n"},
      {"a value ends at its first line end", "[A]\nX=1\n", "A", "X", "2\r\n[B]", "[A]\nX=2\n"},
      {"a key without =", "[A]\n  X  \nY=1\n", "A", "x", "7", "[A]\n  X=7\nY=1\n"},
      {"a key whose name holds =", "[A]\nX=1\n", "A", "X=1", "2", "[A]\nX=1\nX=1=2\n"},
      {"a key that begins with ;", "[A]\n;X=1\n; note\n", "A", ";X", "2", "[A]\n;X=2\n; note\n"},
      {"a section whose name holds ]", "[A]B]\nX=1\n", "A]B", "Y", "2", "[A]B]\nX=1\nY=2\n"},
      {"before the first section", "X=1\n\n[A]\nX=3\n", "", "Y", "2", "X=1\nY=2\n\n[A]\nX=3\n"},
      {"the first before the first section", "\xEF\xBB\xBF\n[A]\n", "", "Y", "2",
       "\xEF\xBB\xBFY=2\n\n[A]\n"},
      {"quotes as given", "[A]\nX=\"1\"\nY=2\n", "A", "Y", "'2'", "[A]\nX=\"1\"\nY='2'\n"},
      {"quotes not given", "[A]\nX=\"1\"\n", "A", "X", "1", "[A]\nX=1\n"},
      {"zero bytes", std::string("[A]\nX=\0\nY=1\n\0", 14), "A", "Y", "2",
       std::string("[A]\nX=\0\nY=2\n\0", 14)},
  };
  for (const auto& c : cases) {
    WriteFile(file, c.before);
    EXPECT_TRUE(store.Write(file, c.section, c.key, c.value)) << c.rule;
    EXPECT_EQ(ReadFile(file), c.after) << c.rule;
  }
}

TEST_F(ProfileStoreTest, ReadsFilesMadeByHand) {
  const std::string text =
      "\xEF\xBB\xBFTop=0\n; c=1\n[A] x ] y\nQ= \"  a \" "
      "\nR='b'\nS=\"c'\nT=\"\nU=\"\"x\"\"\nV=''\nW=\" d\n"
      "bare\n=\nL=\"" +
      std::string(1100, 'l') + "\"\n[]\nTop=9\n[a] X ]\nR=2\nZ=3\n[B\n[B=4\n";
  struct {
    const char *section, *key;
    std::string value;
  } const cases[] = {
      {"", "top", "0"},       {"", "; C", "1"},      {"A] x", "Q", "  a "},
      {"A] x", "R", "b"},     {"A] x", "S", "\"c'"}, {"A] x", "T", "\""},
      {"A] x", "U", "\"x\""}, {"A] x", "V", ""},     {"A] x", "W", "\" d"},
      {"A] x", "bare", ""},   {"A", "R", ""},        {"A] x", "L", std::string(1023, 'l')},
      {"A] x", "Z", ""},      {"B", "4", ""},
  };
  WriteFile(file, text);
  for (const auto& c : cases) EXPECT_EQ(store.Read(file, c.section, c.key), c.value) << c.key;
}

TEST_F(ProfileStoreTest, KeepsHostileContent) {
  std::mt19937 random(1);
  std::string junk(300000, '\0');
  for (char& c : junk) c = "\0\xFF\r\n[]=; \tAx"[random() % 13];
  for (const std::string& head : {junk, "[" + std::string(10'000'000, 'x')}) {
    WriteFile(file, head);
    EXPECT_TRUE(store.Write(file, "New Section", "Key", "1"));
    EXPECT_EQ(store.Read(file, "new section", "KEY"), "1");
    EXPECT_TRUE(ReadFile(file).starts_with(head));
  }
}

// Random edits of random texts: one line changes or a few are added, and the index that went along
// is the one that a fresh reading makes.
TEST(ProfileDocumentTest, ChangesOneKeyAlone) {
  std::mt19937 random(2);
  const auto name = [&] { return std::string(1, "ABCabc;\"="[random() % 9]); };
  for (int round = 0; round < 2000; ++round) {
    std::string start;
    for (auto size = random() % 40; size > 0; --size) {
      start += "\0\xFF\r\n\n[]=; \tAbc\"'"[random() % 17];
    }
    ProfileDocument document;
    document.Parse(start);
    ASSERT_EQ(document.Text(), start);
    for (int edit = 0; edit < 8; ++edit) {
      const std::string before = document.Text(), section = name(), key = name();
      if (!ProfileDocument::CanHold(section, key)) continue;
      const std::string value(random() % 4, 'v');
      document.Set(section, key, value);
      const std::string after = document.Text();
      const auto same = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
      const auto rest = std::mismatch(before.rbegin(), std::make_reverse_iterator(same.first),
                                      after.rbegin(), std::make_reverse_iterator(same.second));
      const std::string gone(same.first, rest.first.base());
      ASSERT_EQ(gone.find('\n'), std::string::npos) << before << "\n->\n" << after;
      ProfileDocument fresh;
      fresh.Parse(after);
      ASSERT_TRUE(key == "=" || fresh.Value(section, key) == value) << after;
      // All other keys are found as before, and the next key of each section has the same place.
      for (const char* other : {"", "A", "b", "C", ";"}) {
        ASSERT_EQ(document.Value(other, other), fresh.Value(other, other)) << after;
      }
      const std::string next = name();
      document.Set(next, "New", "1");
      fresh.Set(next, "New", "1");
      ASSERT_EQ(document.Text(), fresh.Text());
    }
  }
}

// --- Files ---

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
