// A Coder that is put down and taken up again.

#include "coder/memory_text.h"

#include <gtest/gtest.h>

#include <string>

#include "coder/describe.h"
#include "coder/frames.h"

namespace corvalis::coder {
namespace {

// With something of every kind in it: bytes that are not printable, sizes, pages, times.
Coder Used() {
  Counts sizes;
  sizes.page = 12;
  sizes.ih = 300;
  sizes.rt = 3;
  Coder coder("A\"\n\x80 ", true, sizes);
  for (const auto& [command, number, body] :
       {std::tuple{kPi, 0, std::string("5201")},
        {kCt, 0, "26111572359070822"},
        {kPsn, 7, "05\x01\")  \"x "},
        {kPsnPage, 0xB0A, ";05A: never"},
        {kPsnPageActive, 0, ";"},
        {kPin, 254, "01057B6D"},
        {kEon, 3, "NETWORK 101000007DCD057FCDCDCDCDCDCDCD0152011"},
        {kIh, 299 * kPageStep + 5, "12B" + std::string(128, '\n')},
        {kIh, 299 * kPageStep + kIhEnd, "12B0007"},
        {kEnable, 31, "0163"},
        {kTmc, 2, "1F4FFFF1705F"}}) {
    EXPECT_TRUE(coder.SetItem(command, number, Text(body))) << body;
  }
  return coder;
}

TEST(MemoryText, BringsBackEverythingThatItTold) {
  const Coder used = Used();
  Coder taken_up;
  ASSERT_EQ(ReadMemory("ready /dev/pts/3\nmemory\nPI: old\nend of memory\n" + MemoryText(used) +
                           "unplugged\n",
                       taken_up),
            "");
  EXPECT_EQ(taken_up.Id(), used.Id());
  EXPECT_EQ(Dump(taken_up), Dump(used));
  int unlike = 0;
  ForEachItem(used.Sizes(), [&](const Command& command, int number) {
    unlike += taken_up.Item(command.code, number) == used.Item(command.code, number) &&
                      taken_up.Written(command.code, number) == used.Written(command.code, number)
                  ? 0
                  : 1;
  });
  EXPECT_EQ(unlike, 0);
}

TEST(MemoryText, TellsTheLineThatItCannotTake) {
  const std::string whole = MemoryText(Coder());
  struct {
    const char* name;
    std::string text;
    const char* sentence;
  } const cases[] = {
      {"empty", "", "line 1: there is no line \"memory\" up to here"},
      {"cut", whole.substr(0, whole.find("TP 00")),
       "line 3: the memory is cut: no line \"end of memory\" follows"},
      {"unknown name", "memory\nFM 00: 31  \"1\"\nend of memory\n",
       "line 2: a Coder of these sizes has no \"FM 00\""},
      {"beyond the sizes",
       "x\nmemory\nRT count 00: 30 31\nTMC count 00: 30 30\nTMC 00: 31\n"
       "end of memory\n",
       "line 5: a Coder of these sizes has no \"TMC 00\""},
      {"too few bytes", "memory\nPI 00: 35 32 30\nend of memory\n",
       "line 2: \"PI 00\" does not take these bytes"},
      {"bytes out of place", "memory\nPI 00: 35 32 30 47\nend of memory\n",
       "line 2: \"PI 00\" does not take these bytes"},
      {"bytes of another item",
       "memory\nPSN page 01 row 02: 32 30 35 20 20 20 20 20 20 20 20\n"
       "end of memory\n",
       "line 2: \"PSN page 01 row 02\" does not take these bytes"},
      {"no bytes", "memory\nPI 00: \nend of memory\n",
       "line 2: no name, place and bytes of an item (such as \"PI 00: 35 32 30 31\")"},
      {"half a byte", "memory\nPI 00: 35 32 30 31 3\nend of memory\n",
       "line 2: no name, place and bytes of an item (such as \"PI 00: 35 32 30 31\")"},
      {"a size that is none", "memory\nRT count 00: 35 78\nend of memory\n",
       "line 2: \"RT count 00\" does not take these bytes"},
      {"an ID cut short", "memory\nID \"AB\nend of memory\n",
       "line 2: an ID has 5 characters between quotation marks"},
  };
  for (const auto& c : cases) {
    Coder coder;
    EXPECT_EQ(ReadMemory(c.text, coder), c.sentence) << c.name;
    EXPECT_EQ(coder.Changes(), 0U) << c.name;
  }
}

}  // namespace
}  // namespace corvalis::coder
