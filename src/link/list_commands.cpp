#include "link/list_commands.h"

#include <algorithm>

#include "config/conversions.h"
#include "config/words.h"
#include "link/catalogue.h"
#include "link/radio_text.h"
#include "link/run_progress.h"
#include "platform/platform.h"

namespace corvalis {

namespace {

constexpr unsigned kLowBits = 15;  // of a digit
constexpr int kPtynIndexes = 32;
constexpr int kFirstPlanDay = 6;  // field of the Monday
constexpr int kPlanDays = 7;

constexpr int kPinDayUnit = 2048;
constexpr int kPinHourUnit = 64;

constexpr std::string_view kIh = "IH";
constexpr int kIhPageDigits = 3;
constexpr int kIhRotationDigits = 4;
constexpr int kIhRotationMax = 9999;
constexpr std::size_t kIhShortBody = kIhPageDigits + kIhRotationDigits;
constexpr std::uint8_t kIhMarkerSend = 1;
constexpr std::uint8_t kIhMarkerRead = 0;
constexpr float kIhPause = 0.2F;

// A rotation time and a text.
void WriteText(BodyWriter& body, std::uint8_t rotation, std::string_view text, int characters) {
  body.Dec2(rotation).Text(ToCoder(text), characters);
}

void ReadText(BodyReader& body, std::uint8_t& rotation, std::string& text, int characters) {
  rotation = Narrow<std::uint8_t>(body.Dec2()).value_or(rotation);
  text = FromCoder(body.Text(characters));
}

// A digit of the plan: written into the low bits of "0", read from the low four bits of any byte.
std::uint8_t PlanDigit(unsigned value) { return static_cast<std::uint8_t>('0' | value); }

unsigned PlanDigit(BodyReader& body) { return body.Byte() & kLowBits; }

// Bytes as they stand.
void SendPayload(CommandCode code, std::uint8_t index, std::string_view label,
                 std::string_view payload, int bytes) {
  SendItem(code, index, label, [&](BodyWriter& body) { body.Text(payload, bytes); });
}

void ReadPayload(CommandCode code, std::uint8_t index, std::string_view label, std::string& payload,
                 int bytes) {
  ReadItem(code, index, label, [&](BodyReader& body) { payload = body.Text(bytes); });
}

// The payload of another network, whose first field is its name.
std::string WithName(std::string_view payload, std::string (*translated)(std::string_view)) {
  const std::string name = translated(payload.substr(0, kPsnCharacters));
  return std::string(payload).replace(0, name.size(), name);
}

// All of a count's body are its digits.
void ReadCount(CommandCode code, std::string_view label, std::int16_t& count,
               int attempts = kReadAttempts) {
  const std::size_t size = FrameSize(code);
  const auto read = [&](BodyReader& body) {
    count = Short(body.Hex(static_cast<int>(size) - kFrameOverhead));
  };
  ReadItem(Frame::Request(code), size, label, read, attempts);
}

// Between two frames of a page. Bytes that come unasked meanwhile, more than the queue holds, are
// no failure of the frame before.
void LetEventsRun(float pause) {
  const std::int16_t outcome = LinkError;
  Machine().pump->RunPending();
  if (pause > 0) WaitSeconds(pause);
  LinkError = outcome;
}

// The number of an in-house page, in the three digits that every frame of it has.
BodyWriter& WriteIhPage(BodyWriter& body, std::int16_t page) {
  return body.Hex(static_cast<std::uint16_t>(page), kIhPageDigits);
}

std::int16_t IhRotation(std::string_view text) {
  int value = 0;
  for (const char c : text) {
    if (c == ' ') continue;
    if (c < '0' || c > '9') break;
    value = value * 10 + (c - '0');
  }
  return Short(value);
}

}  // namespace

void SendPsn(std::uint8_t index, std::uint8_t rotation, std::string_view text) {
  SendItem(CommandCode::kPsn, index, "PSN",
           [&](BodyWriter& body) { WriteText(body, rotation, text, kPsnCharacters); });
}

void ReadPsn(std::uint8_t index, std::uint8_t& rotation, std::string& text) {
  ReadItem(CommandCode::kPsn, index, "PSN",
           [&](BodyReader& body) { ReadText(body, rotation, text, kPsnCharacters); });
}

void SendRt(std::uint8_t index, std::uint8_t rotation, std::string_view text) {
  SendItem(CommandCode::kRt, index, "RT",
           [&](BodyWriter& body) { WriteText(body, rotation, text, kRtCharacters); });
}

void ReadRt(std::uint8_t index, std::uint8_t& rotation, std::string& text) {
  ReadItem(CommandCode::kRt, index, "RT",
           [&](BodyReader& body) { ReadText(body, rotation, text, kRtCharacters); });
}

void SendPsnPage(std::uint8_t page, std::uint8_t index, std::uint8_t rotation,
                 std::string_view text) {
  SendItem(CommandCode::kPsnPage, index, "PSNPage", [&](BodyWriter& body) {
    body.Dec1(page & kLowBits);
    WriteText(body, rotation, text, kPsnCharacters);
  });
}

void ReadPsnPage(std::uint8_t page, std::uint8_t index, std::uint8_t& rotation, std::string& text) {
  const Frame request = Filled(Frame::Request(CommandCode::kPsnPage, index, 1),
                               [&](BodyWriter& body) { body.Dec1(page); });
  ReadItem(request, FrameSize(CommandCode::kPsnPage), "PSNPage", [&](BodyReader& body) {
    body.Byte();
    ReadText(body, rotation, text, kPsnCharacters);
  });
}

void SendPsnPageActive(std::uint8_t page) {
  SendItem(CommandCode::kPsnPageActive, 0, "PSNPageActive",
           [&](BodyWriter& body) { body.Dec1(page & kLowBits); });
}

void ReadPsnPageActive(std::int16_t& page) {
  ReadItem(CommandCode::kPsnPageActive, 0, "PSNPageActive",
           [&](BodyReader& body) { page = Short(body.Dec1()); });
}

void SendPsnPlan(std::uint8_t index, const PlanFields& fields) {
  SendItem(CommandCode::kPsnPlan, index, "PSNPlan", [&](BodyWriter& body) {
    body.Byte(PlanDigit(fields.front() & 1U));
    for (std::size_t i = 1; i < kFirstPlanDay; ++i) {
      body.Byte(PlanDigit(fields[i] / 10U)).Byte(PlanDigit(fields[i] % 10U));
    }
    for (std::size_t i = kFirstPlanDay; i < kFirstPlanDay + kPlanDays; ++i) {
      body.Byte(PlanDigit(fields[i] & 1U));
    }
    body.Hex(fields.back(), 2);
  });
}

void ReadPsnPlan(std::uint8_t index, PlanFields& fields) {
  ReadItem(CommandCode::kPsnPlan, index, "PSNPlan", [&](BodyReader& body) {
    const auto one = [&body] { return static_cast<std::uint8_t>(PlanDigit(body)); };
    const auto two = [&body](unsigned base) {
      const unsigned high = PlanDigit(body);
      return static_cast<std::uint8_t>(high * base + PlanDigit(body));
    };
    fields.front() = one();
    for (std::size_t i = 1; i < kFirstPlanDay; ++i) fields[i] = two(10);
    for (std::size_t i = kFirstPlanDay; i < kFirstPlanDay + kPlanDays; ++i) fields[i] = one();
    fields.back() = two(16);
  });
}

void SendPin(std::int16_t index, std::int16_t day, std::chrono::minutes time, std::int32_t type,
             bool issued) {
  const auto number = static_cast<std::uint16_t>(index);
  const auto bits = static_cast<std::uint32_t>(type);
  const auto digit = [](std::uint32_t value) { return static_cast<std::int32_t>(value); };
  SendItem(CommandCode::kPin, static_cast<std::uint8_t>(number % 256), "PIN",
           [&](BodyWriter& body) {
             body.Hex(number / 256, 1)
                 .Flag(issued)
                 .Hex(digit(bits / 256), 1)
                 .Hex(digit(bits % 256), 1)
                 .Text(PinCode(day, time), 4);
           });
}

void ReadPin(std::int16_t index, std::int16_t& day, std::chrono::minutes& time, std::int32_t& type,
             bool& issued) {
  const auto number = static_cast<std::uint16_t>(index);
  const Frame request =
      Filled(Frame::Request(CommandCode::kPin, static_cast<std::uint8_t>(number % 256), 1),
             [&](BodyWriter& body) { body.Hex(number / 256, 1); });
  ReadItem(request, FrameSize(CommandCode::kPin), "PIN", [&](BodyReader& body) {
    body.Byte();
    issued = body.Flag();
    type = body.Hex(1) * 16;
    type += body.Hex(1);
    const std::int32_t code = body.Hex(4);
    const std::int32_t hour = code % kPinDayUnit / kPinHourUnit;
    const std::int32_t minute = code % kPinHourUnit;
    const bool exists = code >= 0 && hour < 24 && minute < 60;
    day = exists ? Short(code / kPinDayUnit) : std::int16_t{0};
    time = std::chrono::minutes(exists ? hour * 60 + minute : 0);
  });
}

void SendAf(std::uint8_t list, const air::AfCodes& codes) {
  SendItem(CommandCode::kAf, list, "AF", [&](BodyWriter& body) {
    for (const std::uint8_t code : codes) body.Hex(code, 2);
  });
}

void ReadAf(std::uint8_t list, air::AfCodes& codes) {
  ReadItem(CommandCode::kAf, list, "AF", [&](BodyReader& body) {
    for (std::uint8_t& code : codes) code = Narrow<std::uint8_t>(body.Hex(2)).value_or(code);
  });
}

void SendEon(std::uint8_t list, std::string_view payload) {
  SendPayload(CommandCode::kEon, list, "EON", WithName(payload, ToCoder), kEonPayload);
}
void ReadEon(std::uint8_t list, std::string& payload) {
  ReadItem(CommandCode::kEon, list, "EON",
           [&](BodyReader& body) { payload = WithName(body.Text(kEonPayload), FromCoder); });
}

void SendEonTa(std::uint8_t list, bool on) {
  SendItem(CommandCode::kEonTa, list, "EON-TA", [&](BodyWriter& body) { body.Flag(on); });
}
void ReadEonTa(std::uint8_t list, bool& on) {
  ReadItem(CommandCode::kEonTa, list, "EON-TA", [&](BodyReader& body) { on = body.Flag(); });
}

void SendPtyn(std::string_view text, std::uint8_t index) {
  SendPayload(CommandCode::kPtyn, index % kPtynIndexes, "PTYN", ToCoder(text), kPtynCharacters);
}
void ReadPtyn(std::string& text, std::uint8_t index) {
  ReadItem(CommandCode::kPtyn, index % kPtynIndexes, "PTYN", [&](BodyReader& body) {
    text = FromCoder(body.Text(kPtynCharacters));
    text += static_cast<char>(kEnd);
  });
}

void SendTmcSystem(std::string_view payload) {
  SendPayload(CommandCode::kTmcSystem, 0, "TMC System", payload, kTmcSystemPayload);
}
void ReadTmcSystem(std::string& payload) {
  ReadPayload(CommandCode::kTmcSystem, 0, "TMC System", payload, kTmcSystemPayload);
}

void SendTmc(std::uint8_t index, std::string_view payload) {
  SendPayload(CommandCode::kTmc, index, "TMC", payload, kTmcPayload);
}
void ReadTmc(std::uint8_t index, std::string& payload) {
  ReadPayload(CommandCode::kTmc, index, "TMC", payload, kTmcPayload);
}

void SendAddress(std::string_view block, bool is_new) {
  Frame frame = Filled(Frame::Write(CommandCode::kAddress, is_new ? 1 : 0),
                       [&](BodyWriter& body) { body.Text(block, kCoderIdCharacters); });
  TransferFrame(frame.Bytes());
  AddressSent = LinkError == kLinkOk;  // known while the box stands
  if (!AddressSent) ReportLinkError("Address");
}

void SendIh(std::int16_t page, std::string_view text, std::int16_t rotation) {
  const std::string characters = Padded(ToCoder(text), kIhCharacters);
  RunLoop frames(kIhBlocks + 1, LaterWord("frame %1 of %2"));
  for (std::uint8_t block = 0; block < kIhBlocks; ++block) {
    frames.At(block);
    const std::size_t begin = std::size_t{block} * kIhBlockCharacters;
    SendItem(CommandCode::kIh, block, kIh, [&](BodyWriter& body) {
      WriteIhPage(body, page).Text(std::string_view(characters).substr(begin), kIhBlockCharacters);
    });
    if (LinkError != kLinkOk) return;
    LetEventsRun(0);
  }
  frames.At(kIhBlocks);
  const auto end = [&](BodyWriter& body) {
    const int value = std::clamp<int>(rotation, 0, kIhRotationMax);
    WriteIhPage(body, page).Text(Digits(value, kIhRotationDigits), kIhRotationDigits);
  };
  WriteToCoder(Filled(Frame::Write(CommandCode::kIh, kIhMarkerSend, kIhShortBody), end), kIh);
  LetEventsRun(kIhPause);
}

void ReadIh(std::int16_t page, std::string& text, std::int16_t& rotation) {
  std::string characters;
  RunLoop frames(kIhBlocks + 1, LaterWord("frame %1 of %2"));
  for (std::uint8_t block = 0; block < kIhBlocks; ++block) {
    frames.At(block);
    LetEventsRun(0);
    const Frame request = Filled(Frame::Request(CommandCode::kIh, block, kIhPageDigits),
                                 [&](BodyWriter& body) { WriteIhPage(body, page); });
    ReadItem(request, FrameSize(CommandCode::kIh), kIh, [&](BodyReader& body) {
      body.Raw(kIhPageDigits);
      characters += body.Text(kIhBlockCharacters);
    });
    if (LinkError != kLinkOk) return;
    LetEventsRun(kIhPause);
  }
  frames.At(kIhBlocks);
  const Frame request =
      Filled(Frame::Request(CommandCode::kIh, kIhMarkerRead, kIhShortBody),
             [&](BodyWriter& body) { WriteIhPage(body, page).Text("", kIhRotationDigits); });
  ReadItem(request, kIhShortLastIndex + 1, kIh, [&](BodyReader& body) {
    body.Raw(kIhPageDigits);
    text = FromCoder(characters);
    rotation = IhRotation(body.Text(kIhRotationDigits));
  });
}

void ReadRtNum(std::int16_t& count) { ReadCount(CommandCode::kMaxRtNum, "RTnum", count); }
void ReadPinNum(std::int16_t& count) { ReadCount(CommandCode::kMaxPinNum, "PINnum", count); }
void ReadAfNum(std::int16_t& count) { ReadCount(CommandCode::kMaxAfListNum, "AFnum", count); }
void ReadIhNum(std::int16_t& count) { ReadCount(CommandCode::kMaxIhPagesNum, "IHnum", count, 1); }
void ReadPsnNum(std::int16_t& count) { ReadCount(CommandCode::kMaxPsnNum, "PSNnum", count); }
void ReadEonNum(std::int16_t& count) { ReadCount(CommandCode::kMaxEonNum, "EONnum", count); }
void ReadPsnPageNumber(std::int16_t& count) {
  ReadCount(CommandCode::kMaxPsnPageNumber, "PSNPageNumber", count);
}
void ReadPsnPlanNumber(std::int16_t& count) {
  ReadCount(CommandCode::kMaxPsnPlanNumber, "PSNPlanNumber", count);
}
void ReadTmcNum(std::int16_t& count) { ReadCount(CommandCode::kMaxTmcNumber, "TMCnum", count); }

}  // namespace corvalis
