// Groups field by field, and as lines of text.

#include "air/groups.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "air/hex_text.h"

namespace corvalis::air {
namespace {

constexpr Head kHead{.pi = 0x5201, .tp = true, .pty = 10};
constexpr BytePair kAb{'A', 'B'};
constexpr BytePair kCd{'C', 'D'};
const FourBytes kAbcd = FourBytes::Of({'A', 'B', 'C', 'D'});

HeardGroup Read(const std::string& line) {
  const auto group = ReadHexLine(line);
  EXPECT_TRUE(group) << line;
  return group.value_or(HeardGroup());
}

// Built it is the line, and the line taken apart is the same again.
template <typename Body>
void ExpectLine(const Body& body, const std::string& line) {
  EXPECT_EQ(HexLine(Build(kHead, body)), line);
  const auto taken = Take<Body>(Read(line));
  EXPECT_TRUE(taken == body) << line;
  const auto head = HeadOf(Read(line));
  EXPECT_TRUE(head && head->pi == kHead.pi && head->tp && head->pty == kHead.pty) << line;
  EXPECT_EQ(head->kind, Body::kKind);
}

// One bit or number of a field at a time, so that none can stand in for another.
TEST(Groups, HaveEachFieldInItsPlace) {
  ExpectLine(Group0A{{.ta = true}, BytePair{0xE1, 0x7D}, kAb}, "5201 0550 E17D 4142");
  ExpectLine(Group0A{{.music = true, .segment = 2}, BytePair{0, 1}, kAb}, "5201 054A 0001 4142");
  ExpectLine(Group0B{{.di = true, .segment = 3}, kCd}, "5201 0D47 5201 4344");
  ExpectLine(Group1A{SlowLabel{.la = true, .variant = 3, .content = 0x815}, ItemNumber{25, 19, 0}},
             "5201 1540 B815 CCC0");
  ExpectLine(Group1A{SlowLabel{.content = 0xE0}, ItemNumber{1, 0, 59}}, "5201 1540 00E0 083B");
  ExpectLine(Group1B{ItemNumber{31, 16, 1}}, "5201 1D40 5201 FC01");
  ExpectLine(Group2A{.flag = true, .segment = 5, .characters = kAbcd}, "5201 2555 4142 4344");
  ExpectLine(Group2B{.flag = true, .segment = 15, .characters = kAb}, "5201 2D5F 5201 4142");
  ExpectLine(Group3A{{8, false}, std::uint16_t{0x4FC0}, 0xCD46}, "5201 3550 4FC0 CD46");
  ExpectLine(Group3A{{5, true}, std::uint16_t{1}, 0x8000}, "5201 354B 0001 8000");
  ExpectLine(Group4A{61406, 23, 59, -3}, "5201 4541 DFBD 7EE3");
  ExpectLine(Group4A{0x10001, 16, 1, 31}, "5201 4542 0003 005F");
  ExpectLine(Group5A{31, kAbcd}, "5201 555F 4142 4344");
  ExpectLine(Group5B{16, kCd}, "5201 5D50 5201 4344");
  ExpectLine(Group6A{9, kAbcd}, "5201 6549 4142 4344");
  ExpectLine(Group6B{1, kAb}, "5201 6D41 5201 4142");
  ExpectLine(Group8A{.single = true,
                     .duration = 5,
                     .direction = true,
                     .extent = 7,
                     .event = 0x1F4,
                     .location = 0xFFFE},
             "5201 854D 79F4 FFFE");
  ExpectLine(Group8A{.tuning = true, .diversion = true, .event = 0x7FF}, "5201 8550 87FF 0000");
  ExpectLine(Group10A{.flag = true, .segment = 1, .characters = kAbcd}, "5201 A551 4142 4344");
  ExpectLine(Group14A{true, 13, std::uint16_t{0x5001}, 0x542B}, "5201 E55D 5001 542B");
  ExpectLine(Group14B{.tp = true, .pi = 0x542B}, "5201 ED50 5201 542B");
  ExpectLine(Group14B{.ta = true, .pi = 0xFFFF}, "5201 ED48 5201 FFFF");
  ExpectLine(Group15B{{.ta = true, .di = true, .segment = 1}}, "5201 FD55 5201 FD55");

  EXPECT_EQ(WordOf(TrafficTable{.table = 10, .enhanced = true, .international = true}), 0x0298);
  EXPECT_EQ(WordOf(TrafficTable{.alternative_frequency = true, .national = true}), 0x0024);
  EXPECT_EQ(WordOf(TrafficTable{.regional = true, .urban = true}), 0x0003);
  EXPECT_EQ(WordOf(TrafficService{.gap = 2, .service = 0x3F}), 0x6FC0);
  EXPECT_EQ(WordOf(Linkage{.la = true, .number = 0xA0F}), 0x8A0F);
  EXPECT_EQ(WordOf(Linkage{.extended = true, .international = true}), 0x5000);
  EXPECT_EQ(WordOf(TypeAndAnnouncement{.pty = 10, .ta = true}), 0x5001);
  EXPECT_EQ(FromWord<TrafficService>(0x0298).variant, TrafficTable::kVariant);
  EXPECT_EQ(FromWord<TrafficTable>(0x7FC0).variant, TrafficService::kVariant);
  for (const auto& [segment, di] :
       {std::pair(0, kDynamicPty), {1, kCompressed}, {2, kArtificialHead}, {3, kStereo}}) {
    EXPECT_EQ(DiOf(segment), di);
  }
  // What is too big for its field spoils no other.
  EXPECT_EQ(HexLine(Build({.pty = 99}, Group2A{.segment = 17})), "0000 2061 0000 0000");
}

TEST(Groups, SayWhatTheyCanWithBlocksMissing) {
  const auto name = Take<Group0A>(Read("5201 0553 ---- 4142"));
  ASSERT_TRUE(name);
  EXPECT_EQ(name->switches, (Switches{.ta = true, .segment = 3}));
  EXPECT_EQ(name->frequencies, std::nullopt);
  EXPECT_EQ(name->characters, kAb);
  const auto text = Take<Group2A>(Read("---- 2555 4142 ----"));
  ASSERT_TRUE(text);
  EXPECT_EQ(text->characters, (FourBytes{.first = kAb, .second = {}}));
  EXPECT_FALSE(Take<Group0A>(Read("5201 ---- E0CD 4142")));
  EXPECT_FALSE(Take<Group4A>(Read("5201 4541 ---- 7EE3")));
  EXPECT_FALSE(Take<Group4A>(Read("5201 4541 DFBD ----")));
  EXPECT_TRUE(Take<Group14A>(Read("5201 E55D ---- 542B")));
  EXPECT_FALSE(Take<Group14A>(Read("5201 E55D 5001 ----")));
  EXPECT_FALSE(Take<Group0A>(Read("5201 0D47 5201 4344"))) << "is a 0B";

  EXPECT_EQ(PiOf(Read("---- 0D47 5201 4344")), 0x5201);
  EXPECT_EQ(PiOf(Read("---- 0547 5201 4344")), std::nullopt);
  EXPECT_EQ(PiOf(Read("5201 ---- ---- ----")), 0x5201);
  EXPECT_EQ(HeadOf(Read("---- 0547 5201 4344"))->pi, std::nullopt);
  EXPECT_FALSE(HeadOf(Read("5201 ---- 5201 4344")));
}

TEST(Groups, TellTheTimeOfAnyMinute) {
  using std::chrono::sys_days;
  using namespace std::chrono_literals;
  const auto told = Group4A::Of(sys_days(2026y / 12 / 31) + 23h + 59min, 2);
  EXPECT_EQ(told, (Group4A{61405, 23, 59, 2}));
  EXPECT_EQ(told.Utc(), sys_days(2026y / 12 / 31) + 23h + 59min);
  EXPECT_EQ((Group4A{61405, 24, 0, 0}.Utc()), std::nullopt);
  EXPECT_EQ((Group4A{61405, 0, 60, 0}.Utc()), std::nullopt);
}

TEST(HexText, IsReadHoweverItIsWritten) {
  const std::pair<const char*, const char*> lines[] = {
      {"5201 0408 E0CD 4C41", "5201 0408 E0CD 4C41"},
      {"  5201\t0408  e0cd 4c41  @2026/11/25 06:00\r", "5201 0408 E0CD 4C41"},
      {"52010408E0CD4C41", "5201 0408 E0CD 4C41"},
      {"5201 ---- E0CD----", "5201 ---- E0CD ----"},
      {"---- ---- ---- ----", "---- ---- ---- ----"},
      {"", ""},
      {"# 5201 0408 E0CD 4C41", ""},
      {"5201 0408 E0CD", ""},
      {"5201 0408 E0CD 4C4", ""},
      {"5201 0408 E0CD 4C-- 1234", ""},
      {"52 01 04 08 E0 CD 4C 41", ""},
      {"5201 0408 +0CD -C41", ""},
      {"----------------------", ""},
      {"Face the facade", ""},
  };
  for (const auto& [line, read] : lines) {
    const auto group = ReadHexLine(line);
    EXPECT_EQ(group ? HexLine(*group) : "", read) << line;
  }
}

}  // namespace
}  // namespace corvalis::air
