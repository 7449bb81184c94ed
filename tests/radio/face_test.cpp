// What the face of the radio says, without its pixels.

#include "radio/face.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace corvalis::radio {
namespace {

using air::Hearing;
using std::chrono::seconds;

air::EightBytes Eight(std::string_view text) {
  air::EightBytes bytes{};
  std::ranges::copy(text, bytes.begin());
  return bytes;
}

std::vector<std::uint8_t> Bytes(std::string_view text) { return {text.begin(), text.end()}; }

constexpr DateTime kNow{seconds(50'000)};  // 13:53:20

Face FaceOf(const air::Reception& heard, air::AirSeconds at = 100) {
  AirTime time;
  time.Set(at, kNow);
  return radio::FaceOf(heard, nullptr, time);
}

std::string FactOf(const Face& face, const std::string& name) {
  const auto found = std::ranges::find(face.facts, name, &Face::Shown::name);
  return found == face.facts.end() ? "none" : found->text;
}

TEST(FaceTest, ANameBuildsUpAndAnotherOneIsNeverMixedWithTheOneBefore) {
  air::Reception heard;
  const struct {
    std::string_view now, building;
    unsigned segments;
    const char* shown;
    Hearing hearing;
  } kCases[] = {
      {"", "        ", 0, "········", Hearing::kNot},
      {"", "LAKE    ", 1, "LA······", Hearing::kBeing},
      {"LAKE FM ", "LAKE    ", 3, "LAKE FM ", Hearing::kHeard},
      {"LAKE FM ", "LAST    ", 3, "LAST····", Hearing::kBeing},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.shown);
    heard.ps = {};
    if (!c.now.empty()) heard.ps.now.Believe(Eight(c.now), 1);
    heard.ps.building = Eight(c.building);
    heard.ps.segments = static_cast<std::uint8_t>(c.segments);
    const Face face = FaceOf(heard);
    EXPECT_EQ(face.name.text, c.shown);
    EXPECT_EQ(face.name.hearing, c.hearing);
  }
}

TEST(FaceTest, ATextHasTwoLinesThatTearNoWordIfThereIsRoom) {
  air::Reception heard;
  const auto lines = [&heard](std::string_view text) {
    heard.rt.now.Believe(Bytes(text), 1);
    return FaceOf(heard).text_lines;
  };
  using Lines = std::vector<std::string>;
  EXPECT_EQ(lines("short"), (Lines{"short", ""}));
  EXPECT_EQ(lines("0123456789 123456789 123456789 torn"),
            (Lines{"0123456789 123456789 123456789 ", "torn"}));
  EXPECT_EQ(lines("one\ntwo"), (Lines{"one ", "two"}));
  const std::string full(64, 'x');
  EXPECT_EQ(lines(full), (Lines{full.substr(0, 32), full.substr(32)}));
}

TEST(FaceTest, SaysHowFarTheClockIsFromThisMachines) {
  const struct {
    int minute;  // of the day that the station said 30 seconds ago
    const char* clock;
    const char* apart;
  } kCases[] = {
      {832, "01.01.1970 13:52 (+00.0)", "50 s behind this machine's clock"},
      {834, "01.01.1970 13:54 (+00.0)", "0:01:10 ahead of this machine's clock"},
      {770, "01.01.1970 12:50 (+00.0)", "1:02:50 behind this machine's clock"},
  };
  air::Reception heard;
  EXPECT_EQ(FactOf(FaceOf(heard), "CT"), "not heard yet");
  for (const auto& c : kCases) {
    heard.clock.Believe({.utc = air::ClockTime::Minute(std::chrono::minutes(c.minute))}, 70);
    const Face face = FaceOf(heard);
    EXPECT_EQ(FactOf(face, "CT"), c.clock);
    EXPECT_EQ(FactOf(face, "Clock"), c.apart);
  }
  heard.clock.Believe({.utc = air::ClockTime::Minute(std::chrono::minutes(833))}, 80);
  EXPECT_EQ(FactOf(FaceOf(heard), "Clock"), "the same as this machine's clock");
}

TEST(FaceTest, ToldTimesStayAndAnnouncementsTakeTheTop) {
  air::Reception heard;
  heard.ta.Believe(true, 1);
  heard.rt.remembered.push_front({.bytes = Bytes("news  "), .since = 90.2});
  for (const int pi : {0x542B, 0x542C}) {
    air::OtherNetwork& network = heard.networks.emplace_back();
    network.pi = static_cast<std::uint16_t>(pi);
    network.times = 2;
    network.ta.Believe(pi == 0x542C, 1);
  }
  const Face face = FaceOf(heard);
  EXPECT_EQ(face.texts, (std::vector<Face::Text>{{"13:53:10", "news"}}));
  EXPECT_EQ(face.lamps.at(1).words, "on");
  EXPECT_TRUE(face.lamps.at(1).announces);
  ASSERT_EQ(face.networks.size(), 2U);
  EXPECT_EQ(face.networks[0].cells[Face::kNetworkPi], "542C");
  EXPECT_EQ(face.networks[0].cells[Face::kNetworkTa], "on now");
  EXPECT_EQ(face.networks[1].cells[Face::kNetworkTa], "off");

  AirTime time;
  time.Set(100, kNow);
  const DateTime told = time.At(90.2);
  time.Set(101.9, kNow + seconds(1));  // the clock knows whole seconds
  EXPECT_EQ(time.At(90.2), told);
  time.Set(200, kNow + seconds(1));
  EXPECT_NE(time.At(90.2), told);
}

}  // namespace
}  // namespace corvalis::radio
