// The profile store against observed behaviour of the calls that the file format comes from.

#include <gtest/gtest.h>

#include <algorithm>
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
#include "support/places.h"

namespace corvalis::test {
namespace {

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
  std::ifstream stream(fs::path(kTestData) / "profile-store-cases.json");
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

}  // namespace
}  // namespace corvalis::test
