// Groups as they come: from files that grow, from pipes whose writers come and go.

#include "radio/group_source.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "radio/tuner.h"
#include "support/test_machine.h"

namespace corvalis::radio {
namespace {

using State = GroupSource::State;

constexpr const char* kLine = "5201 0408 E0CD 4C41\n";

class GroupSourceTest : public test::MachineTest {
 protected:
  [[nodiscard]] std::string Path() const { return folder + "/groups"; }
  // How many groups come, portion by portion.
  std::size_t ReadAll() {
    groups_.clear();
    bool more = true;
    while (more) {
      std::vector<air::HeardGroup> portion;
      more = source_.Read(portion);
      EXPECT_LE(portion.size(), GroupSource::kPortion);
      groups_.insert(groups_.end(), portion.begin(), portion.end());
    }
    return groups_.size();
  }

  GroupSource source_;
  std::vector<air::HeardGroup> groups_;  // that came
};

TEST_F(GroupSourceTest, ReadsAFileThatGrowsAndIsWrittenAnew) {
  const std::string line = kLine;
  const struct {
    std::string text;  // of the file from now on
    std::size_t groups;
  } cases[] = {
      {"", 0},
      {"# a heading\n\n" + line + "5201 04", 1},
      {"# a heading\n\n" + line + "5201 0408 E0CD 4c41", 1},
      {"# a heading\n\n" + line + "5201 0408 E0CD 4c41 at 12:00\n" + line, 1},
      {line, 0},  // seen to be another when it ends before its end
      {line, 1},
      {line + std::string(100'000, 'x') + "\n52010408----4C41\n", 1},
  };
  WriteFile(Path(), "");
  ASSERT_EQ(source_.Open(Path()), "");
  EXPECT_LT(source_.Descriptor(), 0);
  for (const auto& c : cases) {
    WriteFile(Path(), c.text);
    EXPECT_EQ(ReadAll(), c.groups) << c.text.substr(0, 80);
    EXPECT_EQ(source_.Now(), State::kEnded);
  }
  EXPECT_FALSE(groups_.back().blocks[2]);
  EXPECT_EQ(source_.PassedOver(), 1U);
}

TEST_F(GroupSourceTest, WaitsForTheNextWriterOfAFifo) {
  ASSERT_EQ(::mkfifo(Path().c_str(), 0600), 0);
  ASSERT_EQ(source_.Open(Path()), "");
  EXPECT_EQ(ReadAll(), 0U);
  EXPECT_EQ(source_.Now(), State::kWaiting);
  for (int turn = 0; turn < 2; ++turn) {
    const int writer = ::open(Path().c_str(), O_WRONLY);
    const std::string text = kLine + std::string("5201 0408 ");
    ASSERT_GT(::write(writer, text.data(), text.size()), 0);
    EXPECT_EQ(ReadAll(), 1U);
    EXPECT_EQ(source_.Now(), State::kComing) << "it stalls within a line";
    ASSERT_GT(::write(writer, "E0CD 4C41", 9), 0);
    ::close(writer);
    EXPECT_EQ(ReadAll(), 1U);
    EXPECT_EQ(source_.Now(), State::kEnded);
    EXPECT_GE(source_.Descriptor(), 0);
  }
}

TEST_F(GroupSourceTest, TakesNoMoreThanAPortionAtOnce) {
  constexpr std::size_t kMany = 100'000;
  std::string text;
  for (std::size_t i = 0; i < kMany; ++i) text += kLine;
  WriteFile(Path(), text);
  ASSERT_EQ(source_.Open(Path()), "");
  EXPECT_EQ(ReadAll(), kMany);

  // What lies there already brings the time of the air ahead.
  Tuner tuner;
  ASSERT_EQ(tuner.Open(Path()), "");
  while (tuner.Listen(5)) {
  }
  EXPECT_EQ(tuner.Groups(), kMany);
  EXPECT_NEAR(tuner.Now(), kMany * 104 / 1187.5, 0.1);
  EXPECT_EQ(tuner.Heard().pi.value, 0x5201);
  WriteFile(Path(), kLine);
  ASSERT_EQ(tuner.Open(Path()), "");
  while (tuner.Listen(0)) {
  }
  WriteFile(Path(), std::string(kLine) + kLine);
  tuner.Listen(0);
  EXPECT_FALSE(tuner.Heard().pi.IsHeard()) << "twice, but not in a row";
  tuner.Close();
  EXPECT_FALSE(tuner.Heard().pi.IsHeard());
}

}  // namespace
}  // namespace corvalis::radio
