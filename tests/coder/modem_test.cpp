// What the modem says, and what it lets through.

#include "coder/modem.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "coder/frames.h"

namespace corvalis::coder {
namespace {

using Calls = Modem::Calls;

// What is done to the modem: one of these, or text from the terminal.
const std::string kPause = "<pause>";
const std::string kDialled = "<dial time over>";
const std::string kAnswer = "<the coder answers>";

struct Step {
  std::string done;
  std::string terminal;  // what comes back
  std::string coder = {};
  bool dropped = false;
};

const Step kDial = {"ATDT800,12345678\r\n", "ATDT800,12345678\r"};
const Step kConnect = {kDialled, "\r\nCONNECT 9600\r\n"};

void Play(Modem& modem, const std::vector<Step>& steps) {
  for (const Step& step : steps) {
    SCOPED_TRACE(testing::PrintToString(step.done));
    Modem::Outcome out;
    if (step.done == kPause) {
      out = modem.LinePause();
    } else if (step.done == kDialled) {
      EXPECT_TRUE(modem.Dialling());
      out = modem.DialTimeOver();
    } else if (step.done == kAnswer) {
      modem.CoderAnswered();
    } else {
      out = modem.Take(Text(step.done));
    }
    EXPECT_EQ(std::string(out.to_terminal.begin(), out.to_terminal.end()), step.terminal);
    EXPECT_EQ(std::string(out.to_coder.begin(), out.to_coder.end()), step.coder);
    EXPECT_EQ(out.dropped, step.dropped);
  }
}

TEST(CoderModem, AnswersCommandLines) {
  const struct {
    std::string line;
    std::string answer;
  } cases[] = {
      {"AT\r\n", "AT\r\r\nOK\r\n"},
      {"ATQ\r", "ATQ\r\r\nERROR\r\n"},
      {"hello\r", "hello\r"},
      {"+++ATH0\r\n", "+++ATH0\r\r\nOK\r\n"},
      {"\2\1\3\2AT\r", "\2\1\3\2AT\r\r\nOK\r\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.line));
    Modem modem;
    Play(modem, {{c.line, c.answer}});
    EXPECT_FALSE(modem.Online());
  }
}

TEST(CoderModem, DialsWithEachOutcome) {
  const struct {
    Calls calls;
    std::string line;
    std::string outcome;
    bool online;
  } cases[] = {
      {Calls::kAnswered, "ATDT800,12345678\r", "\r\nCONNECT 9600\r\n", true},
      {Calls::kAnswered, "ATDP 800\r", "\r\nCONNECT 9600\r\n", true},
      {Calls::kAnswered, "ATDT\r", "\r\nNO CARRIER\r\n", false},
      {Calls::kBusy, "ATDT800\r", "\r\nBUSY\r\n", false},
      {Calls::kRefused, "ATDT800\r", "\r\nNO CARRIER\r\n", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.line));
    Modem modem(c.calls);
    Play(modem, {{c.line, c.line}, {kDialled, c.outcome}});
    EXPECT_EQ(modem.Online(), c.online);
    EXPECT_FALSE(modem.Dialling());
  }
}

TEST(CoderModem, CarriesTheCallAndTellsTheEscapeFromData) {
  const struct {
    const char* name;
    std::vector<Step> steps;
  } cases[] = {
      {"bytes pass", {{"\5", "", "\5"}, {"\2\1\r\nAT\r", "", "\2\1\r\nAT\r"}}},
      {"hang up and call again",
       {{"\5", "", "\5"},
        {kAnswer, ""},
        {"+++", ""},
        {kPause, "\r\nOK\r\n"},
        {"\2\1\3", "\2\1\3"},
        {"ATH0\r\n", "ATH0\r\r\nOK\r\n", "", true},
        {"ATH0\r\n", "ATH0\r\r\nOK\r\n"},
        kDial,
        kConnect,
        {"\5", "", "\5"}}},
      {"behind a pause", {{"\2\1", "", "\2\1"}, {kPause, ""}, {"+++", ""}, {kPause, "\r\nOK\r\n"}}},
      {"no call beside it",
       {{"+++", ""}, {kPause, "\r\nOK\r\n"}, {"ATDT1\r", "ATDT1\r\r\nERROR\r\n"}}},
      {"inside a frame", {{"\2\7A+++B\3", "", "\2\7A+++B\3"}, {kPause, ""}}},
      {"inside a frame that comes in portions",
       {{"\2\7", "", "\2\7"}, {"+++", "", "+++"}, {kPause, ""}, {"+", ""}, {kPause, "", "+"}}},
      {"too many", {{"+++", ""}, {"+", "", "++++"}, {kPause, ""}}},
      {"and more at once", {{"+++ATH0\r", "", "+++ATH0\r"}, {kPause, ""}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Modem modem;
    Play(modem, {kDial, kConnect});
    Play(modem, c.steps);
    static_cast<void>(modem.LinePause());
    EXPECT_FALSE(modem.AwaitsPause());
  }
}

TEST(CoderModem, GivesUpDiallingForAByteButNotForTheLineFeed) {
  Modem modem;
  Play(modem, {{"ATDT1\r", "ATDT1\r"}, {"\n", ""}});
  EXPECT_TRUE(modem.Dialling());
  Play(modem, {{"+++", "\r\nNO CARRIER\r\n++"}, {kPause, ""}, {"ATH0\r\n", "ATH0\r\r\nOK\r\n"}});
  EXPECT_FALSE(modem.Dialling());
  // Nor does the Coder get the line feed of the dial text.
  Play(modem, {{"ATDT1\r", "ATDT1\r"}, kConnect, {"\n\n\5", "", "\n\5"}});
}

TEST(CoderModem, WithoutPowerSaysNothingAtAll) {
  Modem modem(Calls::kSilent);
  Play(modem, {{"AT\r", ""}, {"ATDT800\r\n", ""}, {"+++", ""}, {kPause, ""}});
  EXPECT_FALSE(modem.Dialling());
  EXPECT_FALSE(modem.Online());
}

}  // namespace
}  // namespace corvalis::coder
