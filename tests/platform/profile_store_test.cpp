// The profile store, against observed behaviour of the calls that the file format comes from, and
// against what can befall a file: other programs, links, full disks.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
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
      {"zero bytes", std::string("[A]\nX=\0\nY=1\n\0", 14), "A", "Y", "2",
       std::string("[A]\nX=\0\nY=2\n\0", 14)},
  };
  for (const auto& c : cases) {
    WriteFile(file, c.before);
    EXPECT_TRUE(store.Write(file, c.section, c.key, c.value)) << c.rule;
    EXPECT_EQ(ReadFile(file), c.after) << c.rule;
  }
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

// Random edits: the index that moves along is the one that a fresh reading makes, and the range
// said to have changed is all that changed.
TEST(ProfileDocumentTest, MovesItsIndexAlong) {
  std::mt19937 random(2);
  const std::vector<std::string> starts{"", "[A]\nB=1", "[A]\r\nB=\r\n\r\n[B]\nA=1\n\n\n[A]\nC=3\n",
                                        "; c\n[C]", "junk\n\n"};
  const auto name = [&] { return std::string(1, "ABCDEabcde"[random() % 10]); };
  for (int round = 0; round < 300; ++round) {
    ProfileDocument document;
    document.Parse(starts[random() % starts.size()]);
    for (int edit = 0; edit < 30; ++edit) {
      const std::string before = document.Text();
      const auto range = document.Set(name(), name(), std::string(random() % 4, 'v'));
      const std::string& after = document.Text();
      ASSERT_EQ(after.substr(0, range.from), before.substr(0, range.from));
      if (range.to != ProfileDocument::Range::kEnd) {
        ASSERT_EQ(after.substr(range.to), before.substr(range.to));
      }
      ProfileDocument fresh;
      fresh.Parse(after);
      const std::string section = name(), key = name();
      ASSERT_EQ(document.Value(section, key), fresh.Value(section, key)) << after;
      // The next key of each section goes to the same place, too.
      ProfileDocument moved = document;
      moved.Set(section, "New", "1");
      fresh.Set(section, "New", "1");
      ASSERT_EQ(moved.Text(), fresh.Text());
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
    struct stat status {};
    ASSERT_EQ(::stat(real.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
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
    std::optional<ProfileStore::Series> series;
    if (in_series) series.emplace(store);
    for (const char* value : {"a", "b", "c", "d", "e", "f", "g", "h"}) {
      WriteFile(file, std::string("[A]\nX=") + value + "\n[B]\nY=1\n");
      EXPECT_EQ(store.Read(file, "A", "X"), value);
      // Where it stands.
      std::fstream(file, std::ios::binary | std::ios::in | std::ios::out) << "[A]\nX=!\n";
      EXPECT_TRUE(store.Write(file, "B", "Y", value));
      EXPECT_EQ(ReadFile(file), std::string("[A]\nX=!\n[B]\nY=") + value + "\n");
    }
    fs::remove(file);
    EXPECT_EQ(store.Read(file, "A", "X"), "");
  }
}

// --- What goes wrong ---

TEST_F(ProfileStoreTest, FailsInSilenceWhereItCannotWrite) {
  ASSERT_EQ(::mkfifo((home / "pipe").c_str(), 0666), 0);
  fs::create_symlink("loop", home / "loop");
  for (const char* name : {"missing/a.rds", ".", "pipe", "loop"}) {
    const ProfileStore::Series series(store);
    EXPECT_FALSE(store.Write(home / name, "A", "X", "1")) << name;
    EXPECT_EQ(store.Read(home / name, "A", "X"), "") << name;
  }
  EXPECT_EQ(Litter().size(), 2U);
}

TEST_F(ProfileStoreTest, AFullDiskLosesNothing) {
  for (const bool in_series : {false, true}) {
    WriteFile(file, "[A]\r\nX=1\r\n");
    const auto save = [&] {
      ::signal(SIGXFSZ, SIG_IGN);
      const rlimit limit{1000, 1000};
      if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 1;
      std::optional<ProfileStore::Series> series;
      if (in_series) series.emplace(store);
      int written = 0;
      while (store.Write(file, "A", "K" + std::to_string(written), "123456789")) ++written;
      // What still has room goes in.
      return written > 50 && store.Write(file, "A", "X", "2") ? 0 : 2;
    };
    const pid_t child = ::fork();
    if (child == 0) ::_exit(save());
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    const std::string text = ReadFile(file);
    EXPECT_TRUE(text.starts_with("[A]\r\nX=2\r\nK0=123456789\r\n")) << text;
    EXPECT_TRUE(text.ends_with("=123456789\r\n")) << text;
    EXPECT_TRUE(Litter().empty());
  }
}

}  // namespace
}  // namespace corvalis::test
