// The bytes of the list commands, what is made of the answers, and what a failure leaves.

#include "link/list_commands.h"

#include <algorithm>
#include <numeric>

#include "config/config_data.h"
#include "link/engine_fixture.h"
#include "link/transfer.h"

namespace corvalis::test {
namespace {

using namespace std::chrono_literals;
using std::chrono::minutes;

// Whatever any command carries.
struct Values {
  std::uint8_t rotation = 0;
  std::string text = {};
  std::int16_t number = 0;
  PlanFields plan = {};
  air::AfCodes codes = {};
  std::int16_t day = 0;
  minutes time = 0min;
  std::int32_t type = 0;
  bool on = false;
  bool operator==(const Values&) const = default;
};

Bytes WholeFrame(int code, int index, const std::string& body) {
  Bytes frame{kStart, static_cast<std::uint8_t>(code), static_cast<std::uint8_t>(index)};
  frame.insert(frame.end(), body.begin(), body.end());
  frame.push_back(kEnd);
  return Sealed(frame);
}

air::AfCodes Codes(std::uint8_t first, std::uint8_t others, std::uint8_t last) {
  air::AfCodes codes;
  codes.fill(others);
  codes.front() = first;
  codes.back() = last;
  return codes;
}

std::string Repeated(const std::string& text, int times) {
  std::string all;
  while (times-- > 0) all += text;
  return all;
}

// A command both ways; the counts are only read.
struct Row {
  const char* label;
  int code;
  int number;  // of the item; its low byte is the frame's index
  std::string request;
  std::string body;
  Values values;
  void (*send)(const Values& v);
  void (*read)(Values& v);
};

Row Item(const char* label, int code, int number, const std::string& request,
         const std::string& body, const Values& values, void (*send)(const Values& v),
         void (*read)(Values& v)) {
  return {label, code, number, request, body, values, send, read};
}

Row Count(const char* label, int code, const std::string& body, int value, void (*read)(Values&)) {
  const Values values{.number = static_cast<std::int16_t>(value)};
  return {label, code, 0, "", body, values, nullptr, read};
}

const std::string kRaw = "\x81\x8D\x9D\x02\x03\x0A\x15\xFF";
const std::string kOther = kRaw + "10" + Repeated("9", 34) + "1";

// Bytes by the Coder's command list.
const Row kRows[] = {
    Item(
        "PSN", 0x03, 7, "", "05" + kRaw, {.rotation = 5, .text = kRaw},
        [](const Values& v) { SendPsn(7, v.rotation, v.text); },
        [](Values& v) { ReadPsn(7, v.rotation, v.text); }),
    Item(
        "RT", 0x07, 0x9F, "", "99" + Repeated(kRaw, 8), {.rotation = 99, .text = Repeated(kRaw, 8)},
        [](const Values& v) { SendRt(0x9F, v.rotation, v.text); },
        [](Values& v) { ReadRt(0x9F, v.rotation, v.text); }),
    Item(
        "PSNPage", 0x1C, 14 * 256 + 254, ">", ">12NAME    ", {.rotation = 12, .text = "NAME    "},
        [](const Values& v) { SendPsnPage(14, 254, v.rotation, v.text); },
        [](Values& v) { ReadPsnPage(14, 254, v.rotation, v.text); }),
    Item(
        "PSNPageActive", 0x1D, 0, "", ">", {.number = 14},
        [](const Values& v) { SendPsnPageActive(static_cast<std::uint8_t>(v.number)); },
        [](Values& v) { ReadPsnPageActive(v.number); }),
    Item(
        "PSNPlan", 0x1F, 25, "", "12359311226101010110",
        {.plan = {1, 23, 59, 31, 12, 26, 1, 0, 1, 0, 1, 0, 1, 0x10}},
        [](const Values& v) { SendPsnPlan(25, v.plan); },
        [](Values& v) { ReadPsnPlan(25, v.plan); }),
    Item(
        "PIN", 0x06, 0xA5F, "A", "A10FFDFB",
        {.day = 31, .time = 23h + 59min, .type = 15, .on = true},
        [](const Values& v) { SendPin(0xA5F, v.day, v.time, v.type, v.on); },
        [](Values& v) { ReadPin(0xA5F, v.day, v.time, v.type, v.on); }),
    Item(
        "AF", 0x05, 0x63, "", "F9" + Repeated("CD", 24) + "0B", {.codes = Codes(0xF9, 0xCD, 0x0B)},
        [](const Values& v) { SendAf(0x63, v.codes); }, [](Values& v) { ReadAf(0x63, v.codes); }),
    Item(
        "EON", 0x16, 8, "", kOther, {.text = kOther}, [](const Values& v) { SendEon(8, v.text); },
        [](Values& v) { ReadEon(8, v.text); }),
    Item(
        "EON-TA", 0x18, 8, "", "1", {.on = true}, [](const Values& v) { SendEonTa(8, v.on); },
        [](Values& v) { ReadEonTa(8, v.on); }),
    // Read with the frame's end behind it.
    Item(
        "PTYN", 0x17, 1, "", "FOOTBALL", {.text = "FOOTBALL\x03"},
        [](const Values& v) { SendPtyn(v.text, 33); }, [](Values& v) { ReadPtyn(v.text, 33); }),
    Item(
        "TMC System", 0x21, 0, "", "3F010101", {.text = "3F010101"},
        [](const Values& v) { SendTmcSystem(v.text); }, [](Values& v) { ReadTmcSystem(v.text); }),
    Item(
        "TMC", 0x22, 11, "", "7FFABCD17061", {.text = "7FFABCD17061"},
        [](const Values& v) { SendTmc(11, v.text); }, [](Values& v) { ReadTmc(11, v.text); }),
    Count("RTnum", 0x0A, "A0", 0xA0, [](Values& v) { ReadRtNum(v.number); }),
    Count("PINnum", 0x0B, "FF", 0xFF, [](Values& v) { ReadPinNum(v.number); }),
    Count("AFnum", 0x0C, "64", 0x64, [](Values& v) { ReadAfNum(v.number); }),
    Count("IHnum", 0x13, "10E", 0x10E, [](Values& v) { ReadIhNum(v.number); }),
    Count("PSNnum", 0x14, "FF", 0xFF, [](Values& v) { ReadPsnNum(v.number); }),
    Count("EONnum", 0x15, "09", 9, [](Values& v) { ReadEonNum(v.number); }),
    Count("PSNPageNumber", 0x1E, "F", 15, [](Values& v) { ReadPsnPageNumber(v.number); }),
    Count("PSNPlanNumber", 0x20, "1A", 0x1A, [](Values& v) { ReadPsnPlanNumber(v.number); }),
    Count("TMCnum", 0x23, "0C", 12, [](Values& v) { ReadTmcNum(v.number); }),
};

class ListCommands : public EngineTest {
 protected:
  void SetUp() override { StartLocal(); }
};

TEST_F(ListCommands, CarryTheseBytesToACoderAndBack) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.label);
    const int items = row.send != nullptr ? 0x1000 : 255;
    the_coder->SetSizes({255, 15, 0x1A, 0xA0, items, 0x64, 9, 12, 0x10E});
    if (row.send != nullptr) {
      row.send(row.values);
      EXPECT_EQ(port.written.back(), WholeFrame(row.code, row.number, row.body));
      EXPECT_EQ(the_coder->Item(static_cast<std::uint8_t>(row.code), row.number), Text(row.body));
    }
    Values read;
    row.read(read);
    EXPECT_EQ(port.written.back(), WholeFrame(row.code, row.number, row.request));
    EXPECT_EQ(read, row.values);
  }
}

TEST_F(ListCommands, KeepAFramesLengthWhateverTheyAreGiven) {
  PlanFields plan;
  plan.fill(0xFF);
  const std::pair<std::function<void()>, Bytes> cases[] = {
      {[] { SendPsn(0, 255, "too long a name"); }, WholeFrame(0x03, 0, "I5too long")},
      {[] { SendRt(0, 0, "x"); }, WholeFrame(0x07, 0, "00x" + std::string(63, ' '))},
      {[] { SendPsnPage(0x1F, 0, 0, ""); }, WholeFrame(0x1C, 0, "?00        ")},
      {[] { SendPsnPageActive(0x12); }, WholeFrame(0x1D, 0, "2")},
      {[&] { SendPsnPlan(0, plan); }, WholeFrame(0x1F, 0, "195959595951111111FF")},
      {[] { SendPin(0, 1, 61min, 20, false); }, WholeFrame(0x06, 0, "00010841")},
      {[] { SendPin(0, 32, 1min, 0x1F5, false); }, WholeFrame(0x06, 0, "001F0001")},
      {[] { SendPin(0, -1, 0min, -1, false); }, WholeFrame(0x06, 0, "00FFF800")},
      {[] { SendPtyn("", 31); }, WholeFrame(0x17, 31, "        ")},
      {[] { SendEon(0, "x"); }, WholeFrame(0x16, 0, "x" + std::string(44, ' '))},
      {[] { SendTmc(0, "0123456789ABCDEF"); }, WholeFrame(0x22, 0, "0123456789AB")},
      {[] { SendIh(-1, "", 12345); }, WholeFrame(0x12, 1, "FFF9999")},
      {[] { SendIh(4095, "", -7); }, WholeFrame(0x12, 1, "FFF0000")},
  };
  port.answer = [](const Bytes&) { return Bytes{kAck}; };
  for (const auto& [send, bytes] : cases) {
    send();
    EXPECT_EQ(port.written.back(), bytes);
  }
}

TEST_F(ListCommands, MakeTheBestOfOddAnswers) {
  const auto read = [this](int code, const std::string& body, void (*read)(Values&)) {
    port.answer = [answer = Acknowledged(WholeFrame(code, 0, body))](const Bytes&) {
      return answer;
    };
    Values values{.rotation = 9, .codes = Codes(1, 2, 3), .day = 9, .time = 9min};
    read(values);
    return values;
  };
  const auto psn = [](Values& v) { ReadPsn(0, v.rotation, v.text); };
  const auto page = [](Values& v) { ReadPsnPage(1, 0, v.rotation, v.text); };
  EXPECT_EQ(read(0x03, std::string(2, '\0') + "NAME    ", psn).rotation, 9);
  EXPECT_EQ(read(0x1C, "307NAME    ", page).rotation, 7);  // of another page
  EXPECT_EQ(read(0x1D, " ", [](Values& v) { ReadPsnPageActive(v.number); }).number, -16);
  EXPECT_EQ(read(0x05, "xx" + Repeated("0A", 25), [](Values& v) { ReadAf(0, v.codes); }).codes,
            Codes(1, 10, 10));
  EXPECT_FALSE(read(0x18, "2", [](Values& v) { ReadEonTa(0, v.on); }).on);
  EXPECT_EQ(read(0x0A, "G1", [](Values& v) { ReadRtNum(v.number); }).number, -1);

  // The letters of a page don't come back.
  const std::pair<std::string, PlanFields> plans[] = {
      {"0235931122601010100A", {0, 23, 59, 31, 12, 26, 0, 1, 0, 1, 0, 1, 0, 1}},
      {"0235931122601010101A", {0, 23, 59, 31, 12, 26, 0, 1, 0, 1, 0, 1, 0, 0x11}},
      {std::string(20, '?'), {15, 165, 165, 165, 165, 165, 15, 15, 15, 15, 15, 15, 15, 255}}};
  for (const auto& [body, fields] : plans) {
    EXPECT_EQ(read(0x1F, body, [](Values& v) { ReadPsnPlan(0, v.plan); }).plan, fields) << body;
  }
  // Hour 24, minute 60, no digits.
  const std::tuple<const char*, int, bool> items[] = {
      {"011F0E00", 31, true}, {"0001083C", 1, false}, {"02G1xyz!", -15, false}};
  for (const auto& [body, type, on] : items) {
    const Values values =
        read(0x06, body, [](Values& v) { ReadPin(0, v.day, v.time, v.type, v.on); });
    EXPECT_EQ(values, (Values{.rotation = 9, .codes = Codes(1, 2, 3), .type = type, .on = on}));
  }
}

TEST_F(ListCommands, ReportAFailureAndLeaveTheValues) {
  struct Failure {
    Bytes answer;
    int error;
    std::size_t frames;
  };
  const Failure failures[] = {
      {{}, kErrorUnconnected, 0}, {Refusal(2), 2, 1}, {{kAck}, kErrorRxTimeout, 3}};
  std::vector<Row> rows(std::begin(kRows), std::end(kRows));
  rows.push_back(Item(
      "IH", 0x12, 0, "", "", {}, [](const Values&) { SendIh(0, "", 0); },
      [](Values& v) { ReadIh(0, v.text, v.number); }));
  for (const Failure& failure : failures) {
    LinkOpen = failure.frames > 0;
    port.answer = [&failure](const Bytes&) { return failure.answer; };
    const auto judge = [&](const Row& row, std::size_t frames) {
      SCOPED_TRACE(std::to_string(failure.error) + " " + row.label);
      EXPECT_EQ(LinkError, failure.error);
      EXPECT_EQ(port.written.size(), frames);
      EXPECT_EQ(dialogs.boxes.size(), 1U);
      EXPECT_EQ(BoxText().find(std::string(row.label) + ":"), 0U);
      port.written.clear();
      dialogs.boxes.clear();
    };
    const bool sends_fail = failure.error != kErrorRxTimeout;
    const Values before{.text = "kept", .number = 77, .day = 5, .on = true};
    for (const Row& row : rows) {
      if (row.send != nullptr && sends_fail) {
        row.send(row.values);
        judge(row, failure.frames);
      }
      Values values = before;
      row.read(values);
      EXPECT_EQ(values, before) << row.label;
      const bool asks_once = row.label == std::string("IHnum");
      judge(row, asks_once && !sends_fail ? 1 : failure.frames);
    }
  }
}

TEST_F(ListCommands, AddressIsKnownBeforeItsBoxStands) {
  std::vector<bool> seen;
  dialogs.Shown = [&seen] { seen.push_back(AddressSent); };
  SendAddress("?????", false);
  EXPECT_TRUE(AddressSent);
  SendAddress("AB", true);
  EXPECT_EQ(port.written.back(), WholeFrame(0x08, 1, "AB   "));
  EXPECT_TRUE(AddressSent);
  SendAddress("wrong", false);
  EXPECT_FALSE(AddressSent);
  EXPECT_EQ(seen, std::vector{false});
  EXPECT_EQ(BoxText(), "Address:  [RDS] address was wrong   ");
}

std::string Page() {
  std::string text(kIhCharacters, ' ');
  std::iota(text.begin(), text.end(), '\0');
  text[0] = 'A';
  text[kIhCharacters - 1] = 'Z';
  return text;
}

std::string Block(int block) {
  return Page().substr(static_cast<std::size_t>(block) * kIhBlockCharacters, kIhBlockCharacters);
}

TEST_F(ListCommands, PageTravelsInSeventeenFrames) {
  SendIh(13, Page(), 7);
  ASSERT_EQ(port.written.size(), 17U);
  for (int block = 0; block < kIhBlocks; ++block) {
    EXPECT_EQ(port.written[static_cast<std::size_t>(block)],
              WholeFrame(0x12, block, "00D" + Block(block)));
  }
  EXPECT_EQ(port.written.back(), WholeFrame(0x12, 1, "00D0007"));
  EXPECT_NEAR(time.Elapsed(), 0.2, 0.01);

  // As the Coder has kept it; the rotation as far as it is digits.
  const std::pair<const char*, int> rotations[] = {
      {"0007", 7}, {"    ", 0}, {"  12", 12}, {"12x4", 12}};
  for (const auto& [digits, value] : rotations) {
    the_coder->SetItem(0x12, 13 * 256 + 16, Text("00D" + std::string(digits)));
    port.written.clear();
    const double begin = time.Elapsed();
    std::string text;
    std::int16_t rotation = -1;
    ReadIh(13, text, rotation);
    EXPECT_EQ(text, Page());
    EXPECT_EQ(rotation, value) << digits;
    ASSERT_EQ(port.written.size(), 17U);
    EXPECT_EQ(port.written[15], WholeFrame(0x12, 15, "00D"));
    EXPECT_EQ(port.written[16], WholeFrame(0x12, 0, "00D    "));
    EXPECT_NEAR(time.Elapsed() - begin, 16 * 0.2, 0.01);
  }
}

TEST_F(ListCommands, TranslateTextsForACoderThatDoesNot) {
  WriteFile(ProgramFile(), std::string(kLocal) + "[RDS Setup]\r\nRadio Characters=On\r\n");
  configData->GetIni();
  // What radios lack, and what goes out for it; all other bytes come back.
  const std::string lacking =
      "^`~"
      "\x81\x82\x83\x84\x85\x86\x87\x88\x8B\x8D\x8F\x90\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9B\x9D"
      "\x9F"
      "\xA0\xA2\xA5\xA6\xA8\xAB\xAC\xAE\xB4\xB6\xB7\xB8\xBB\xD7\xFF\x1F";
  const std::string plain = R"(''-?'f".++''???''""*---T'?Y cY|""-R'P.,"xy)"
                            "\xAD";
  std::string back = Page();
  for (char& c : back) {
    const std::size_t place = lacking.find(c);
    if (place != std::string::npos) c = plain.at(place);
  }
  SendIh(0, Page(), 0);
  std::string text;
  std::int16_t rotation = 0;
  ReadIh(0, text, rotation);
  EXPECT_EQ(text, back);

  // A name of 8 places, at the head of whatever carries texts.
  const Bytes sent = Text("Caf\x82\xAB\x24' ");
  the_coder->SetSizes({255, 15, 0x1A, 0xA0, 0x1000, 0x64, 9, 12, 0x10E});
  for (const Row& row : kRows) {
    if (row.send == nullptr || row.values.text.empty() || row.label[0] == 'T') continue;
    SCOPED_TRACE(row.label);
    Values values = row.values;
    values.text.replace(0, 8, "Caf\xE9$\xA4\x92 ");
    row.send(values);
    EXPECT_FALSE(std::ranges::search(port.written.back(), sent).empty());
    row.read(values);
    EXPECT_EQ(values.text.substr(0, 8), "Caf\xE9$\xA4' ");
  }

  // What only radios have comes back plain.
  the_coder->SetItem(0x17, 1, Text("\xCB\xDB\xA1\xAC\x5E\xFF\x7F\x8F"));
  ReadPtyn(text, 1);
  EXPECT_EQ(text, "Cca<- \x7FI\x03");
}

}  // namespace
}  // namespace corvalis::test
