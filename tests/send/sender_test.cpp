#include "send/sender.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "link/serial_management.h"
#include "send/dry_port.h"
#include "send/one_shot.h"
#include "send/send_fixture.h"

namespace corvalis::test {
namespace {

using Kind = send::Outcome::Kind;

struct Written {
  const char* line;
  CommandCode code;
  int index;
  const char* body;
  int passes;  // on a one-way link with a burst of 3
};

// The rows of the times are those of the fixture's file.
const Written kWritten[] = {
    {"rt 1 \"Now: x\"", CommandCode::kRt, 1, "15Now: x", 3},
    {"rt 7 y", CommandCode::kRt, 7, "30y", 3},
    {"rt 7 y --time 9", CommandCode::kRt, 7, "09y", 3},
    {"rt 7 --time 9 \"one two\" --cut", CommandCode::kRt, 7, "09one two", 3},
    {"rt 200 \"caf\xC3\xA9\"", CommandCode::kRt, 200, "15caf\xE9", 3},
    {"RT=It's \"x\" # 1", CommandCode::kRt, 0, "15It's \"x\" # 1", 3},
    {"ps 3 NEWS", CommandCode::kPsn, 3, "04NEWS", 3},
    {"ps-page 2 3 AB --time 0", CommandCode::kPsnPage, 3, "200AB", 3},
    {"page 10", CommandCode::kPsnPageActive, 0, ":", 3},
    {"ta on", CommandCode::kTa, 0, "1", 3},
    {"TA=0", CommandCode::kTa, 0, "0", 3},
    {"tp on", CommandCode::kTp, 0, "1", 4},
    {"pty \"pop music\"", CommandCode::kPty, 0, "0A", 3},
    {"PTY=31", CommandCode::kPty, 0, "1F", 3},
    {"ms speech", CommandCode::kMs, 0, "0", 3},
    {"ptyn 10 \"LAKE POP\"", CommandCode::kPtyn, 10, "LAKE POP", 4},
    {"ct now", CommandCode::kCt, 0, "26111571200080926", 1},
    {"eon-ta 2 on", CommandCode::kEonTa, 2, "1", 4},
    {"tmc 3 4660 1110 1 on 2 off 15", CommandCode::kTmc, 3, "45612341201F", 4},
    {"raw 0F0031", CommandCode::kMs, 0, "1", 3},
};

TEST_F(SendTest, ACommandIsOneFrameBehindEnqAndAddress) {
  Start(kTwoWay);
  for (const Written& row : kWritten) {
    SCOPED_TRACE(row.line);
    owner->Close();
    port.written.clear();
    port.answer = [](const Bytes&) { return Bytes{kAck}; };
    EXPECT_EQ(Send(row.line).kind, Kind::kDone);
    EXPECT_EQ(port.written,
              (std::vector{Bytes{kEnq}, Address(), FrameOf(row.code, row.index, row.body)}));
  }
  EXPECT_EQ(ReadFile(ProgramFile()), kTwoWay);
}

TEST_F(SendTest, AOneWayLinkIsAddressedEachTimeAndGetsBursts) {
  Start(std::string("[RDS Setup]\r\nPSN Pages Enable=Off\r\n") + kOneWay, {}, {.id = "AB"});
  for (const Written& row : kWritten) {
    SCOPED_TRACE(row.line);
    EXPECT_EQ(Send(row.line).kind, Kind::kDone);
    const std::size_t before = &row == &kWritten[0] ? 2 : 1;
    ASSERT_EQ(port.written.size(), before + static_cast<std::size_t>(row.passes));
    EXPECT_EQ(port.written[before - 1], Address("AB"));
    EXPECT_EQ(port.written.back()[kCommandOffset], static_cast<int>(row.code));
    port.written.clear();
  }
  EXPECT_EQ(Send("read ta").kind, Kind::kUnfit);
  EXPECT_TRUE(port.written.empty());
}

TEST_F(SendTest, WhatIsSentIsReadBackAsTheLineThatSendsIt) {
  Start(kTwoWay);
  for (const char* line :
       {"rt 1 \"Now: \\\"x\\\"\" --time 20", "ps 3 \"NEWS\" --time 4",
        "ps-page 2 3 \"AB\" --time 0", "page 5", "ta on", "tp off", "pty 17", "ms speech",
        "ptyn 31 \"LAKE POP\"", "eon-ta 2 on", "tmc 3 17 1110 1 on 2 off 9"}) {
    SCOPED_TRACE(line);
    const send::Outcome sent = Send(line);
    EXPECT_EQ(sent.kind, Kind::kDone) << sent.words;
    const send::Command command = *send::ParseLine(line).command;
    EXPECT_EQ(Send("read " + command.Named()).read, line);
  }
  EXPECT_EQ(Send("ct now").kind, Kind::kDone);
  EXPECT_EQ(Send("read ct").read, "ct 2026-11-15 12:00 +01.0");
}

TEST_F(SendTest, WhatCannotBeDoneSaysSoAndWritesNothing) {
  Start("[Serial Setup]\r\nSatellite=Off\r\nModem=On\r\n");
  EXPECT_NE(Send("ta on").words.find("modem"), std::string::npos);
  Start(kTwoWay);
  EXPECT_EQ(Send("tmc 10 1 2").words, "the station has traffic messages 0 to 9");
  port.missing[1] = "No such file or directory";
  const send::Outcome gone = Send("ta on");
  EXPECT_EQ(gone.kind, Kind::kNoLine);
  EXPECT_EQ(gone.words, "No such file or directory");
  EXPECT_TRUE(port.written.empty());
}

TEST_F(SendTest, FailuresHaveTheWordsOfTheBox) {
  struct Case {
    coder::Faults faults;
    const char* line;
    int error;
    const char* words;
  };
  const Case cases[] = {
      {{}, "rt 90 x", 2, "RT: [RDS] pointer value too big"},
      {{.silent = true}, "tp on", 12, "ENQ:   [ TX ] serial timeout"},
      {{.garble_every = 3}, "tp on", 14, "TP:   [ TX ] not acknowledge"},
      {{.unplug_after = 3}, "tp on", 12, "TP:   [ TX ] serial timeout"},
      {{.cut_after = 1}, "read tp", 15, "TP:   [ RX ] serial timeout"},
  };
  for (const Case& one : cases) {
    Start(kTwoWay, one.faults);
    const send::Outcome outcome = Send(one.line);
    EXPECT_EQ(outcome.kind, Kind::kFailed);
    EXPECT_EQ(outcome.error, one.error);
    EXPECT_EQ(outcome.words, one.words);
  }
}

// Answers in turn, and with an acknowledgement when they are at an end.
std::function<Bytes(const Bytes&)> Script(CommandCode code, std::vector<Bytes> answers) {
  return [code, answers, at = std::size_t{0}](const Bytes& frame) mutable {
    const bool meant = frame.size() > 1 && frame[kCommandOffset] == static_cast<int>(code);
    return meant && at < answers.size() ? answers[at++] : Bytes{kAck};
  };
}

Bytes Refusal(std::uint8_t number) {
  Bytes bytes = {kStart, 0, number, kEnd};
  bytes.push_back(FrameChecksum(bytes));
  bytes.insert(bytes.begin(), kNak);
  return bytes;
}

TEST_F(SendTest, WhatIsTriedAgain) {
  struct Case {
    const char* line;
    CommandCode code;
    std::vector<Bytes> answers;
    Kind kind;
    std::ptrdiff_t written;  // frames of the command
  };
  const Case cases[] = {
      // A TA that doesn't go off is tried three times, whatever is in the way.
      {"ta off", CommandCode::kTa, {{}, Refusal(7)}, Kind::kDone, 3},
      {"ta off", CommandCode::kTa, {{}, {}, {}, {}}, Kind::kFailed, 3},
      {"ta on", CommandCode::kTa, {{}}, Kind::kFailed, 1},
      // Without an address it is given one, once.
      {"tp on", CommandCode::kTp, {Refusal(8)}, Kind::kDone, 2},
      {"tp on", CommandCode::kTp, {Refusal(8), Refusal(8)}, Kind::kFailed, 2},
      {"tp on", CommandCode::kTp, {Refusal(2)}, Kind::kFailed, 1},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.line);
    Start(kTwoWay);
    port.written.clear();
    port.answer = Script(one.code, one.answers);
    EXPECT_EQ(Send(one.line).kind, one.kind);
    EXPECT_EQ(std::ranges::count_if(port.written,
                                    [&](const Bytes& frame) {
                                      return frame.size() > 1 &&
                                             frame[kCommandOffset] == static_cast<int>(one.code);
                                    }),
              one.written);
  }
}

TEST_F(SendTest, ListsGoInTheSizeOfTheCoderAndLeaveTheSelectionAlone) {
  Start(kTwoWay);
  coder::Counts small;
  small.rt = 8;
  the_coder->SetSizes(small);
  std::vector<std::string> notes;
  sender->Note = [&](const std::string& words) { notes.push_back(words); };
  EXPECT_EQ(Send("send rt,tp").kind, Kind::kDone);
  EXPECT_EQ(port.written.size(), 2U + 1 + 8 + 1);
  EXPECT_TRUE(notes.empty());
  EXPECT_EQ(Send("send af").kind, Kind::kDone);
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_NE(notes[0].find("about 3"), std::string::npos) << notes[0];
}

TEST_F(SendTest, AWholeStationIsReadAsAFile) {
  Start(std::string(kTwoWay) + "[RDS Setup]\r\nPresetRt=On\r\n");
  WriteFile(ProgramFile(), "[Serial Setup]\r\nSatellite=Off\r\n[RDS Setup]\r\nPresetRt=On\r\n");
  EXPECT_TRUE(station->LoadIfChanged());
  EXPECT_FALSE(station->LoadIfChanged());
  EXPECT_EQ(Send("rt 1 x").kind, Kind::kDone);
  const std::string read = Send("read all").read;
  EXPECT_NE(read.find("\nRt01=15;x" + std::string(63, ' ') + ";\n"), std::string::npos);
  EXPECT_EQ(read.find("PresetAddress"), std::string::npos);
  EXPECT_EQ(read.find("Serial Setup"), std::string::npos);
}

TEST_F(SendTest, AllIsEverythingIfTheFileSelectsNothing) {
  Start(std::string("[RDS Setup]\r\nTMC Enable=On\r\nECC Enable=Off\r\n") + kTwoWay);
  EXPECT_EQ(Send("send all").kind, Kind::kDone);
  for (const std::uint8_t code : {coder::kPi, coder::kRt, coder::kTmcSystem}) {
    EXPECT_TRUE(the_coder->Written(code)) << int{code};
  }
  EXPECT_FALSE(the_coder->Written(coder::kEcc));
  EXPECT_FALSE(configData->PresetRt());
}

TEST_F(SendTest, LinesAreToldByNumberAndTheFirstFailureCounts) {
  Start(kTwoWay);
  std::ostringstream out;
  std::ostringstream err;
  std::istringstream in("# schedule\n\nfoo\nrt 90 x\r\nTA=1\nrt 1 \"\\\\\" # new\nread rt 1\nRT=" +
                        std::string(65, 'x') + "\n");
  EXPECT_EQ(send::OneShot(*sender, {}, {}, out, err).RunLines(in), 2);
  EXPECT_EQ(out.str(), "OK\nrt 1 \"\\\\\" --time 15\nNO\n");
  EXPECT_EQ(err.str(),
            "corvalis-send: line 3: \"foo\" is no command\n"
            "corvalis-send: line 4: RT: [RDS] pointer value too big\n"
            "corvalis-send: line 8: the text has 65 characters, and there is room for 64\n");
  out.str("");
  EXPECT_EQ(send::OneShot(*sender, {}, {.json = true}, out, err).RunWords({"rt", "90", "a\tb"}), 2);
  EXPECT_EQ(send::OneShot(*sender, {}, {.json = true}, out, err).RunWords({"read", "rt", "1"}), 0);
  EXPECT_EQ(out.str(),
            "{\"command\":\"rt 90 a\\u0009b\",\"ok\":false,\"exit\":2,\"error\":\"character 2 of "
            "the text, (U+0009), is none that the line carries\"}\n"
            "{\"command\":\"read rt 1\",\"ok\":true,\"text\":\"\\\\\",\"time\":15}\n");
}

TEST_F(SendTest, ADryRunShowsEveryFrame) {
  Start(std::string(kTwoWay));
  send::DryPort dry;
  int frames = 0;
  dry.Wrote = [&](std::span<const std::uint8_t>) { ++frames; };
  owner = std::make_unique<send::LineOwner>(dry);
  sender = std::make_unique<send::Sender>(*station, *owner, kept, true);
  std::string shown = "05";
  std::ostringstream out;
  send::OneShot(*sender, {}, {.json = true, .frames = &shown}, out, out).RunWords({"ta", "on"});
  EXPECT_EQ(out.str(), "{\"command\":\"ta on\",\"ok\":true,\"frames\":\"05\"}\n");
  EXPECT_EQ(frames, 3);
  EXPECT_EQ(Send("send af").kind, Kind::kDone);
  EXPECT_EQ(frames, 3 + 1 + 1 + 99);
  EXPECT_EQ(Send("read ta").kind, Kind::kUnfit);
  EXPECT_TRUE(port.written.empty());
  owner.reset();  // before its port
}

}  // namespace
}  // namespace corvalis::test
