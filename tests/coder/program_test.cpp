// The program itself, over its pseudo-terminal.

#include <gtest/gtest.h>
#include <termios.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "coder/frames.h"
#include "coder/running_coder.h"

namespace corvalis::coder {
namespace {

const Bytes kProbe = {kEnq};
const Bytes kReadPi = Frame(0x01, 0);
const Bytes kFactoryPi = kAcknowledged + Frame(0x01, 0, "1000");

// Reads as many bytes as are expected: one too many would begin the next answer.
void ExpectAnswer(const OpenLine& line, const Bytes& sent, const Bytes& answer) {
  line.Write(sent);
  EXPECT_EQ(line.Read(answer.size()), answer);
}

TEST(CoderProgram, IsAddressedWrittenReadAndDumped) {
  RunningCoder coder({"--print", "--dump"});
  const OpenLine line(coder.Path());
  ExpectAnswer(line, kProbe, kAcknowledged);
  ExpectAnswer(line, kReadPi, Refusal(8));
  ExpectAnswer(line, Frame(0x08, 0, "?????"), kAcknowledged);
  ExpectAnswer(line, Frame(0x01, 0, "D20A"), kAcknowledged);
  ExpectAnswer(line, Frame(0x09, 31, "0163"), kAcknowledged);
  ExpectAnswer(line, kReadPi, kAcknowledged + Frame(0x01, 0, "D20A"));
  EXPECT_EQ(coder.NextLine("PI <-"), "PI <- D20A (country D, coverage 2, programme 0A)");
  EXPECT_EQ(coder.End(), 0);
  EXPECT_EQ(coder.NextLine("ID "), "ID \"?????\" addressed");
  EXPECT_EQ(coder.NextLine("Enable 1F"),
            "Enable 1F: 30 31 36 33 (group 15B on, repetitions 99)  \"0163\"");
}

TEST(CoderProgram, UnderstandsItsOwnSpeedAndStopBitsOnly) {
  RunningCoder coder({"--baud", "9600", "--stop-bits", "1", "--print"});
  const OpenLine line(coder.Path());
  const struct {
    unsigned speed;
    int stop_bits;
    const char* noise;
  } cases[] = {
      {B2400, 2, "noise at 2400 baud, stop bits 2: 05"},
      {B9600, 2, "noise at 9600 baud, stop bits 2: 05"},
      {B19200, 1, "noise at 19200 baud, stop bits 1: 05"},
  };
  for (const auto& c : cases) {
    line.Set(c.speed, c.stop_bits);
    line.Write(kProbe);
    EXPECT_EQ(coder.NextLine("noise"), c.noise);
  }
  line.Set(B9600, 1);
  // Had one of the others been answered, an ACK would stand before this.
  ExpectAnswer(line, kReadPi, Refusal(8));
  ExpectAnswer(line, kProbe, kAcknowledged);
}

TEST(CoderProgram, IsReachedThroughItsModem) {
  RunningCoder coder({"--open", "--modem", "answer", "--dial-ms", "0", "--print"});
  const OpenLine line(coder.Path());
  ExpectAnswer(line, Text("ATDT800,12345678\r\n"), Text("ATDT800,12345678\r\r\nCONNECT 9600\r\n"));
  EXPECT_EQ(coder.NextLine("modem"), "modem: dial T 800,12345678 -> CONNECT");
  ExpectAnswer(line, kProbe, kAcknowledged);
  ExpectAnswer(line, kReadPi, kFactoryPi);
  // At once behind an answer, as the program does it.
  ExpectAnswer(line, Text("+++"), Text("\r\nOK\r\n"));
  ExpectAnswer(line, Text("ATH0\r\n"), Text("ATH0\r\r\nOK\r\n"));
  EXPECT_EQ(coder.NextLine("modem: call"), "modem: call ended");
  ExpectAnswer(line, kProbe, kProbe);
}

TEST(CoderProgram, LosesALateAnswerWithTheCall) {
  RunningCoder coder(
      {"--modem", "answer", "--dial-ms", "0", "--late", "3600000", "--pace", "--print"});
  const OpenLine line(coder.Path());
  line.Set(B115200, 1);
  ExpectAnswer(line, Text("ATDT1\r"), Text("ATDT1\r\r\nCONNECT 9600\r\n"));
  // It refuses half a frame when the line has paused, so the escape may follow.
  line.Write({kStart, 0x01});
  EXPECT_NE(coder.NextLine("refused, error 6"), "");
  ExpectAnswer(line, Text("+++"), Text("\r\nOK\r\n"));
  ExpectAnswer(line, Text("ATDT1\r"), Text("ATDT1\r\r\nERROR\r\n"));
}

TEST(CoderProgram, GoesAwayAndComesBackUnderItsLink) {
  const std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) / ("corvalis-" + std::to_string(getpid()));
  const std::string link = folder / "com1";
  {
    RunningCoder coder({"--link", link, "--unplug-after", "2", "--replug-after", "0"});
    const OpenLine line(link);
    ExpectAnswer(line, kProbe, kAcknowledged);
    line.Write(kProbe);
    EXPECT_TRUE(line.Gone());
    EXPECT_EQ(coder.NextLine("unplugged"), "unplugged");
    EXPECT_NE(coder.NextLine("ready "), "");
    EXPECT_EQ(std::filesystem::read_symlink(link), coder.Path());
    const OpenLine again(link);
    ExpectAnswer(again, kProbe, kAcknowledged);
    ExpectAnswer(again, kProbe, kAcknowledged);
  }
  EXPECT_FALSE(std::filesystem::is_symlink(link)) << "it takes its link along";
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace corvalis::coder
