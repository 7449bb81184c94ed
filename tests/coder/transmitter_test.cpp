// Groups on their way out: at the speed of the air, whoever reads them or not.

#include "coder/transmitter.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "air/bits.h"
#include "air/hex_text.h"
#include "air/modulator.h"
#include "coder/frames.h"

namespace corvalis::coder {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;

class TransmitterTest : public testing::Test {
 protected:
  // As the program does.
  TransmitterTest() { std::signal(SIGPIPE, SIG_IGN); }
  ~TransmitterTest() override { fs::remove_all(folder_); }

  [[nodiscard]] std::string Path(const char* name) const { return folder_ / name; }
  [[nodiscard]] std::string Fifo(const char* name = "fifo") const {
    const std::string path = Path(name);
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    return path;
  }
  void Begin(const AirOptions& options) {
    transmitter.emplace(coder, options, complaints);
    transmitter->Begin(begun_);
  }
  // Lets the time go by; what is due goes out.
  void RunUntil(Transmitter::Clock::duration time) {
    while (transmitter->NextDue() && *transmitter->NextDue() <= begun_ + time) {
      transmitter->RunDue(begun_ + time);
    }
  }
  static std::string ReadAll(int descriptor) {
    std::string text;
    std::array<char, 4096> bytes{};
    for (ssize_t count; (count = read(descriptor, bytes.data(), bytes.size())) > 0;) {
      text.append(bytes.data(), static_cast<std::size_t>(count));
    }
    return text;
  }
  [[nodiscard]] static std::string FileText(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
  }
  [[nodiscard]] static auto Lines(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
  }
  // Little-endian, as it stands in a signal.
  static std::uint32_t Number(const std::string& bytes, std::size_t at, std::size_t count) {
    std::uint32_t number = 0;
    while (count-- > 0) number = number << 8 | static_cast<unsigned char>(bytes[at + count]);
    return number;
  }
  static void ExpectHeader(const std::string& signal, std::uint32_t data_bytes) {
    EXPECT_EQ(signal.substr(0, 4) + signal.substr(8, 8) + signal.substr(36, 4), "RIFFWAVEfmt data");
    const bool known = data_bytes != 0xFFFFFFFF;
    EXPECT_EQ(Number(signal, 4, 4), known ? data_bytes + 36 : data_bytes);
    EXPECT_EQ(Number(signal, 16, 4), 16U);
    EXPECT_EQ(Number(signal, 20, 4), 0x00010001U) << "plain samples, one channel";
    EXPECT_EQ(Number(signal, 24, 4), 192000U);
    EXPECT_EQ(Number(signal, 28, 4), 384000U);
    EXPECT_EQ(Number(signal, 32, 4), 0x00100002U) << "two bytes, 16 bits";
    EXPECT_EQ(Number(signal, 40, 4), data_bytes);
  }

  Coder coder;
  std::ostringstream complaints;
  std::optional<Transmitter> transmitter;

 private:
  const Transmitter::Time begun_ = Transmitter::Time() + std::chrono::hours(1);
  const fs::path folder_ = fs::path(testing::TempDir()) /
                           ("corvalis-air-" + std::to_string(getpid()) + "-" +
                            testing::UnitTest::GetInstance()->current_test_info()->name());
  const bool made_ = fs::create_directories(folder_);
};

TEST_F(TransmitterTest, KeepsToTheSpeedOfTheAirForDays) {
  EXPECT_EQ(GroupStart(2375), seconds(208));
  // 1187.5 bits a second for a year.
  EXPECT_EQ(GroupStart(2375ULL * 151'615), seconds(208LL * 151'615));
  for (const auto& [speed, expected] : {std::pair(1, 2), {10, 12}, {1000, 1142}}) {
    Begin({.text = Path("air"), .speed = speed});
    RunUntil(milliseconds(100));
    transmitter->End();
    EXPECT_EQ(Lines(FileText(Path("air"))), expected);
  }
  coder.SetItem(kPi, 0, Text("5201"));
  Begin({.text = Path("air"), .speed = 0, .groups = 5});
  while (!transmitter->Over()) transmitter->RunDue(*transmitter->NextDue());
  EXPECT_EQ(FileText(Path("air")),
            "5201 0008 E0CD 2020\n5201 0009 E0CD 2020\n5201 000A E0CD 2020\n"
            "5201 000F E0CD 2020\n5201 0008 E0CD 2020\n");
  EXPECT_EQ(complaints.str(), "");
}

TEST_F(TransmitterTest, LosesGroupsRatherThanWait) {
  const std::string path = Fifo();
  Begin({.text = path});
  RunUntil(seconds(10));
  EXPECT_EQ(complaints.str(), "") << "nobody has missed anything yet";
  int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
  RunUntil(seconds(20));
  EXPECT_EQ(Lines(ReadAll(reader)), 114);
  RunUntil(seconds(3 * 3600));
  const std::string held = ReadAll(reader);
  EXPECT_EQ(held.substr(0, 5), "1000 ");
  RunUntil(seconds(3 * 3600 + 1));
  const std::string behind = held + ReadAll(reader);
  EXPECT_TRUE(behind.ends_with("\n"));
  EXPECT_EQ(behind.size(), static_cast<std::size_t>(20 * Lines(behind))) << "lines are whole";
  close(reader);
  RunUntil(seconds(3 * 3600 + 2));
  reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
  RunUntil(seconds(3 * 3600 + 3));
  const std::string again = ReadAll(reader);
  EXPECT_EQ(again.size(), static_cast<std::size_t>(20 * Lines(again)));
  EXPECT_GE(Lines(again), 11);
  transmitter->End();
  close(reader);
  const std::string told = complaints.str();
  EXPECT_EQ(Lines(told), 2) << told;
  EXPECT_NE(told.find("groups dropped for "), std::string::npos) << told;
}

TEST_F(TransmitterTest, WaitsForItsReaderIfItIsToBeAsFastAsItCan) {
  constexpr int kGroups = 50000;
  const std::string path = Fifo();
  Begin({.text = path, .speed = 0, .groups = kGroups});
  const auto run = [this] {
    for (int i = 0; i < kGroups; ++i) transmitter->RunDue(*transmitter->NextDue());
  };
  run();
  const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
  run();
  EXPECT_FALSE(transmitter->Over());
  EXPECT_GE(transmitter->BusyDescriptor(), 0);
  std::string text;
  while (!transmitter->Over()) {
    text += ReadAll(reader);
    transmitter->RunDue(*transmitter->NextDue());
  }
  text += ReadAll(reader);
  close(reader);
  EXPECT_EQ(Lines(text), kGroups);
  EXPECT_EQ(complaints.str(), "");
}

TEST_F(TransmitterTest, WritesTheSameAsBitsAndAsASignal) {
  coder.SetItem(kPi, 0, Text("5201"));
  for (const char* name : {"signal.wav", "signal"}) {
    Begin({.text = Path("air"), .bits = Path("bits"), .mpx = Path(name), .speed = 0, .groups = 19});
    while (!transmitter->Over()) transmitter->RunDue(*transmitter->NextDue());
    if (const std::string early = FileText(Path(name)); name == std::string("signal.wav")) {
      ExpectHeader(early, static_cast<std::uint32_t>(early.size() - 44));
    }
    transmitter->End();
    std::istringstream lines(FileText(Path("air")));
    std::string bits;
    air::Modulator modulator;
    std::vector<std::int16_t> samples;
    for (std::string line; std::getline(lines, line);) {
      air::Group group;
      std::ranges::transform(air::ReadHexLine(line)->blocks, group.blocks.begin(),
                             [](const auto& block) { return *block; });
      bits += air::BitText(group);
      modulator.Add(group, samples);
    }
    modulator.End(samples);
    EXPECT_EQ(FileText(Path("bits")), bits);
    const std::string signal = FileText(Path(name));
    const std::size_t header = std::string(name) == "signal" ? 0 : 44;
    ASSERT_EQ(signal.size(), header + 2 * samples.size());
    for (std::size_t i = 0; i < samples.size(); ++i) {
      ASSERT_EQ(Number(signal, header + 2 * i, 2), static_cast<std::uint16_t>(samples[i])) << i;
    }
    if (header > 0) ExpectHeader(signal, static_cast<std::uint32_t>(2 * samples.size()));
  }
}

// Each reader of a pipe gets a signal that begins, of a length that nobody knows; groups that found
// no room leave no trace in it.
TEST_F(TransmitterTest, BeginsTheSignalAnewForEachReader) {
  const std::string path = Fifo("fifo.wav");
  Begin({.mpx = path});
  for (int second : {1, 5}) {
    const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK);
    RunUntil(seconds(second));
    const std::string signal = ReadAll(reader);
    close(reader);
    RunUntil(seconds(second + 1));
    ExpectHeader(signal, 0xFFFFFFFF);
    EXPECT_EQ(Number(signal, 44, 4), 0U);
    EXPECT_GE(signal.size(), 180000U);
  }
  // One that comes too late gets nothing rather than an end without a beginning.
  const int late = open(path.c_str(), O_RDONLY | O_NONBLOCK);
  transmitter->End();
  EXPECT_EQ(ReadAll(late), "");
  close(late);
}

TEST_F(TransmitterTest, SaysWhatItCannotWrite) {
  EXPECT_THROW(Begin({.text = Path("no/folder")}), CannotWrite);
  EXPECT_THROW(Begin({.bits = Path("no/folder")}), CannotWrite);
  EXPECT_THROW(Begin({.mpx = testing::TempDir()}), CannotWrite);
}

}  // namespace
}  // namespace corvalis::coder
