#include "send/dispatcher.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "link/serial_management.h"
#include "send/conversation.h"
#include "send/send_fixture.h"

namespace corvalis::test {
namespace {

class DispatcherTest : public SendTest {
 protected:
  void StartService(const std::string& file, coder::Faults faults = {}) {
    dispatcher.reset();
    Start(file, faults);
    dispatcher = std::make_unique<send::Dispatcher>(*station, *owner, *sender);
    answers.clear();
    port.written.clear();
  }
  ~DispatcherTest() override { dispatcher.reset(); }

  void Submit(const std::string& line) {
    dispatcher->Submit(*send::ParseLine(line).command, [this, line](const send::Answer& answer) {
      answers.push_back(line + ": " +
                        (answer.replaced                ? "replaced"
                         : answer.outcome.words.empty() ? "ok"
                                                        : answer.outcome.words));
    });
  }
  // What the service does, until nothing is due before somebody submits.
  void Run() {
    for (double due = dispatcher->Work(); !std::isinf(due); due = dispatcher->Work()) {
      time.RunUntil(due);
    }
  }
  // The frames that were written, by command and index.
  std::string Sent() {
    std::string sent;
    for (const Bytes& frame : port.written) {
      if (!sent.empty()) sent += ' ';
      if (frame.size() == 1) {
        sent += "ENQ";
      } else {
        sent += std::to_string(frame[kCommandOffset]) + "/" + std::to_string(frame[kIndexOffset]);
      }
    }
    return sent;
  }
  void NothingAnswers() {
    port.answer = [](const Bytes&) { return Bytes(); };
  }

  std::unique_ptr<send::Dispatcher> dispatcher;
  std::vector<std::string> answers;
  using Texts = std::vector<std::string>;
};

TEST_F(DispatcherTest, TheNewestOfEachItemGoesAndTaIsTheFirst) {
  StartService(kTwoWay);
  for (const char* line : {"rt 1 a", "ps 1 b", "rt 1 c", "ta on", "read tp", "rt 1 d", "ta off"}) {
    Submit(line);
  }
  EXPECT_EQ(answers, (Texts{"rt 1 a: replaced", "rt 1 c: replaced", "ta on: replaced"}));
  Run();
  EXPECT_EQ(Sent(), "ENQ 8/0 14/0 7/1 3/1 2/0");
  EXPECT_EQ(port.written[3], FrameOf(CommandCode::kRt, 1, "15d"));
  EXPECT_EQ((Texts{answers.begin() + 3, answers.end()}),
            (Texts{"ta off: ok", "rt 1 d: ok", "ps 1 b: ok", "read tp: ok"}));
}

TEST_F(DispatcherTest, TaGoesBetweenTheFramesOfALongRun) {
  StartService(kTwoWay);
  port.Wrote = [this, done = false]() mutable {
    if (std::exchange(done, done || port.written.size() == 5)) return;
    if (done) Submit("ta on");
  };
  Submit("send rt");
  Run();
  EXPECT_TRUE(Sent().starts_with("ENQ 8/0 10/0 7/0 7/1 14/0 7/2 7/3 ")) << Sent();
  EXPECT_EQ(answers, (Texts{"ta on: ok", "send rt: ok"}));
  EXPECT_EQ(port.written.size(), 3U + 50 + 1);
}

TEST_F(DispatcherTest, WhileTheCoderIsSilentTheNewestValuesWait) {
  StartService(kTwoWay);
  NothingAnswers();
  std::vector<int> tries;
  port.Wrote = [&] {
    tries.push_back(static_cast<int>(time.Elapsed()));
    if (tries.size() == 10) port.answer = nullptr;
  };
  time.After(16, [this] {
    Submit("rt 1 b");
    Submit("read tp");
  });
  Submit("rt 1 a");
  Submit("ta on");
  Run();
  // Fifteen seconds of silence, and the pause, each time.
  const std::vector<int> starts(tries.begin(), tries.begin() + 10);
  std::vector<int> pauses;
  for (std::size_t i = 1; i < starts.size(); ++i) pauses.push_back(starts[i] - starts[i - 1] - 15);
  EXPECT_EQ(pauses, (std::vector{1, 2, 4, 8, 16, 32, 60, 60, 60}));
  const std::string waits = ": ENQ:   [ TX ] serial timeout; it waits, and is tried again";
  EXPECT_EQ(answers, (Texts{"ta on" + waits, "rt 1 a" + waits, "rt 1 b" + waits,
                            "read tp: ENQ:   [ TX ] serial timeout"}));
  EXPECT_EQ(port.written.back(), FrameOf(CommandCode::kRt, 1, "15b"));
  EXPECT_TRUE(Sent().ends_with("ENQ 8/0 14/0 7/1")) << Sent();
  EXPECT_EQ(*the_coder->Item(0x0E), Bytes{'1'});
}

TEST_F(DispatcherTest, AnUnpluggedLineIsOpenedAgain) {
  StartService(kTwoWay, {.unplug_after = 4});
  Submit("rt 1 a");
  Run();
  Submit("rt 1 b");
  time.After(20, [this] { line->Replug(); });
  Run();
  EXPECT_EQ(answers.size(), 2U);
  EXPECT_EQ(the_coder->Item(0x07, 1)->at(2), 'b');
}

TEST_F(DispatcherTest, WhatIsRefusedIsNotTriedAgain) {
  StartService(kTwoWay);
  Submit("rt 90 x");
  Submit("tp on");
  Run();
  EXPECT_EQ(Sent(), "ENQ 8/0 7/90 2/0");
  EXPECT_EQ(answers, (Texts{"rt 90 x: RT: [RDS] pointer value too big", "tp on: ok"}));
}

TEST_F(DispatcherTest, TheEndBreaksOffAllButTa) {
  StartService(kTwoWay);
  port.answer = [](const Bytes& frame) {
    const bool text = frame.size() > 1 && frame[kCommandOffset] == 0x07;
    return text ? Bytes() : Bytes{kAck};
  };
  port.Wrote = [this] {
    if (port.written.size() != 3) return;
    Submit("ta off");
    Submit("rt 2 b");
    dispatcher->Stop();
    Submit("rt 3 c");
  };
  Submit("rt 1 a");
  Run();
  EXPECT_TRUE(dispatcher->Stopping());
  EXPECT_LT(time.Elapsed(), 1);
  EXPECT_EQ(Sent(), "ENQ 8/0 7/1 14/0");
  EXPECT_EQ(answers.front(), "rt 3 c: the service ends");
  EXPECT_EQ(answers.back(), "ta off: ok");
}

TEST_F(DispatcherTest, AFileThatChangedIsReadAndTheLinkMadeAnew) {
  StartService(kTwoWay);
  Submit("rt 7 a");
  Run();
  WriteFile(ProgramFile(), "[Serial Setup]\r\nSatellite=On\r\nBurst=2\r\n[RT]\r\nRt07=40;old;\r\n");
  Submit("rt 7 a");
  Run();
  EXPECT_EQ(Sent(), "ENQ 8/0 7/7 ENQ 8/0 7/7 7/7");
  EXPECT_EQ(port.written.back(), FrameOf(CommandCode::kRt, 7, "40a"));
}

class ConversationTest : public DispatcherTest {
 protected:
  std::string Say(const std::string& bytes, send::Conversation::Manners manners = {}) {
    StartService(kTwoWay);
    send::Conversation client(*dispatcher, manners);
    std::string all;
    client.OnAnswers([&] { all += client.Answers(); });
    // In portions, as from a socket.
    for (std::size_t at = 0; at < bytes.size(); at += 4096) {
      client.Take(std::string_view(bytes).substr(at, 4096));
    }
    client.TakeEnd();
    while (client.Owes()) Run();
    return all;
  }
};

TEST_F(ConversationTest, EachLineHasOneAnswerInItsPlace) {
  EXPECT_EQ(Say("rt 1 a\r\n# x\n\nrt 1 b\nTA=1\nread ta\nfoo\nPS=123456789\nps 1 \"x"),
            "replaced\nok\nOK\nta on\nok\nerror: \"foo\" is no command\nNO\n"
            "error: a quote, or what follows a backslash, is missing\n");
  EXPECT_EQ(Say("read ta\nrt 1 a\nrt 1 b", {.json = true}),
            "{\"command\":\"read ta\",\"ok\":true,\"on\":false}\n"
            "{\"command\":\"rt 1 a\",\"ok\":true,\"replaced\":true}\n"
            "{\"command\":\"rt 1 b\",\"ok\":true}\n");
}

TEST_F(ConversationTest, NobodyIsHarmedByGarbage) {
  std::string garbage;
  for (unsigned i = 0; i < 1'000'000; ++i) garbage += static_cast<char>(i * 7919 % 251 + 1);
  std::erase(garbage, '\n');
  EXPECT_EQ(Say(garbage), "error: the line is longer than 4096 bytes\n");
  EXPECT_EQ(Say(garbage + "\nta on\n"), "error: the line is longer than 4096 bytes\nok\n");
  EXPECT_EQ(Say(std::string("ta on\0\n", 7)), "error: the switch is on or off\n");
  const std::string frame = "error: frames are not taken here, as they can lock a Coder away\n";
  EXPECT_EQ(Say("raw 0801414243\nraw 0F0031\n"), frame + frame);
  EXPECT_EQ(Say("raw 0F0031\n", {.raw = true}), "ok\n");
}

TEST_F(ConversationTest, WhoHasManyLinesWaitingIsAskedToWait) {
  StartService(kTwoWay);
  send::Conversation client(*dispatcher, {});
  std::string all;
  client.OnAnswers([&] { all += client.Answers(); });
  std::string lines;
  for (int i = 0; i < 300; ++i) lines += "read tp\n";
  client.Take(lines);
  EXPECT_TRUE(client.Full());
  while (client.Owes()) Run();
  EXPECT_EQ(all.size(), 300 * std::string("tp off\nok\n").size());
}

}  // namespace
}  // namespace corvalis::test
