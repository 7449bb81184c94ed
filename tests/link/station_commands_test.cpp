// The bytes of the station commands, and what is made of the answers.

#include "link/station_commands.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "config/config_data.h"
#include "link/body.h"
#include "link/engine_fixture.h"

namespace corvalis::test {
namespace {

using namespace std::chrono_literals;
using std::chrono::local_days;

constexpr std::array<std::uint8_t, kTdcPayload> kPayload{2, 3, 5, 6, 0x15, 0, 0xFF, 'A'};

class StationCommands : public EngineTest {
 protected:
  void SetUp() override { StartLocal(); }

  // The Coder answers the next read with this body.
  void Answer(std::uint8_t code, std::uint8_t index, const std::string& body) {
    Bytes frame{kStart, code, index};
    frame.insert(frame.end(), body.begin(), body.end());
    frame.push_back(kEnd);
    port.answer = [answer = Acknowledged(Sealed(frame))](const Bytes&) { return answer; };
  }
};

TEST_F(StationCommands, WriteTheseBytes) {
  const DateTime sunday = local_days{2026y / std::chrono::November / 15} + 13h + 45min + 59s;
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { SendPi(0xD, 2, 0x0A); }, "02 01 00 44 32 30 41 03 07"},
      {[] { SendTp(true); }, "02 02 00 31 03 32"},
      {[] { SendTa(false); }, "02 0E 00 30 03 3F"},
      {[] { SendMs(true); }, "02 0F 00 31 03 3F"},
      {[] { SendDi(0x1F); }, "02 04 00 46 03 43"},
      {[] { SendPty(31); }, "02 0D 00 31 46 03 7B"},
      {[] { SendEcc(0xE0); }, "02 19 00 45 30 03 6D"},
      {[] { SendLic(0x15); }, "02 1A 00 31 35 03 1F"},
      {[] { SendLi(true, false, true, 0x0AB); }, "02 1B 00 31 30 31 30 41 42 03 19"},
      {[=] { SendCt(sunday, 7, 8, 99, -24); },
       "02 10 00 32 36 31 31 31 35 37 31 33 34 35 30 38 39 39 30 30 03 2D"},
      {[=] { SendCt(sunday, 7, 8, 9, 24); },
       "02 10 00 32 36 31 31 31 35 37 31 33 34 35 30 38 30 39 34 38 03 28"},
      {[] { SendEnable(31, true, 0xC3); }, "02 09 1F 30 31 43 33 03 66"},
      {[] { SendTdc(3, kPayload, false); }, "02 11 03 30 02 03 05 06 15 00 FF 41 03 8A"},
  };
  for (const auto& [send, bytes] : cases) {
    send();
    EXPECT_EQ(port.written.back(), Hex(bytes));
  }
}

TEST_F(StationCommands, NoByteIsWrittenOrReadBeyondABody) {
  Frame frame = Frame::Write(CommandCode::kPi);
  EXPECT_THROW(BodyWriter(frame.Body().subspan(3)).Hex(0xAB, 2), std::out_of_range);
  EXPECT_THROW(BodyWriter(frame.Body().first(0)).Raw(kPayload), std::out_of_range);
  EXPECT_THROW(BodyReader(frame.Body()).Raw(5), std::out_of_range);
  EXPECT_EQ(frame.Bytes()[7], kEnd);
}

TEST_F(StationCommands, ReadPi) {
  Answer(0x01, 0, "D20A");
  std::int16_t country = 5;
  std::int16_t coverage = 5;
  std::int16_t number = 5;
  ReadPi(country, coverage, number);
  EXPECT_EQ(std::tuple(country, coverage, number), std::tuple(0xD, 2, 0x0A));
  Answer(0x01, 0, "G2x0");
  ReadPi(country, coverage, number);
  EXPECT_EQ(std::tuple(country, coverage, number), std::tuple(-1, 2, -1));
}

TEST_F(StationCommands, ReadSwitchesDifferInWhatTheyTakeAsTrue) {
  const std::tuple<char, bool, bool> cases[] = {
      {'0', false, false}, {'1', true, true}, {'2', false, true}};
  for (const auto& [byte, tp_wanted, ta_wanted] : cases) {
    bool tp = !tp_wanted;
    bool ta = !ta_wanted;
    bool ms = !ta_wanted;
    Answer(0x02, 0, {byte});
    corvalis::ReadTp(tp);
    Answer(0x0E, 0, {byte});
    ReadTa(ta);
    Answer(0x0F, 0, {byte});
    ReadMs(ms);
    EXPECT_EQ(std::tuple(tp, ta, ms), std::tuple(tp_wanted, ta_wanted, ta_wanted)) << byte;
  }
}

TEST_F(StationCommands, ReadTheOthers) {
  std::uint8_t byte = 1;
  Answer(0x19, 0, "E0");
  ReadEcc(byte);
  EXPECT_EQ(byte, 224);
  Answer(0x1A, 0, "zz");
  ReadLic(byte);
  EXPECT_EQ(byte, 224);  // no digits: what it held

  std::int16_t value = 0;
  Answer(0x04, 0, "B");
  ReadDi(value);
  EXPECT_EQ(value, 11);
  Answer(0x0D, 0, "1F");
  ReadPty(value);
  EXPECT_EQ(value, 31);

  bool active = false;
  Answer(0x09, 5, "x1C3");
  ReadEnable(5, active, value);
  EXPECT_EQ(port.written.back(), Hex("02 09 05 03 0D"));
  EXPECT_TRUE(active);
  EXPECT_EQ(value, 0xC3);

  bool la = false;
  bool egi = true;
  bool il = false;
  Answer(0x1B, 0, "101FFF");
  ReadLi(la, egi, il, value);
  EXPECT_EQ(std::tuple(la, egi, il, value), std::tuple(true, false, true, 0xFFF));

  std::array<std::uint8_t, kTdcPayload> payload{};
  Answer(0x11, 31, "1" + std::string(kPayload.begin(), kPayload.end()));
  ReadTdc(31, payload, active);
  EXPECT_EQ(payload, kPayload);
}

TEST_F(StationCommands, ReadCt) {
  DateTime when{};
  std::int16_t day = 0;
  std::int16_t date_psn = 0;
  std::int16_t hour_psn = 0;
  std::int16_t offset = 0;
  const auto read = [&](const std::string& date, const std::string& rest) {
    Answer(0x10, 0, date + rest);
    ReadCt(when, day, date_psn, hour_psn, offset);
  };
  const std::pair<const char*, std::chrono::year> years[] = {
      {"29", 2029y}, {"30", 1930y}, {"00", 2000y}};
  for (const auto& [digits, year] : years) {
    read(std::string(digits) + "022872359", "080900");
    EXPECT_EQ(when, DateTime(local_days{year / std::chrono::February / 28} + 23h + 59min));
  }
  EXPECT_EQ(std::tuple(day, date_psn, hour_psn, offset), std::tuple(7, 8, 9, -24));

  const DateTime before = when;
  for (const char* impossible : {"26023011200", "26130111200", "26010112400", "26010112360"}) {
    read(impossible, "111248");
    EXPECT_EQ(when, before);
    EXPECT_EQ(offset, 24);
  }
}

TEST_F(StationCommands, RecordKeepsItsDiIfTheReadFails) {
  ConfigData& c = *configData;
  for (const bool value : {true, false}) {
    c.SetMono(value);
    c.SetArtificialHead(value);
    c.SetCompressed(value);
    c.SetStaticPty(value);
    port.answer = [](const Bytes&) { return Refusal(7); };
    c.GetDiRds();
    EXPECT_EQ(std::tuple(c.Mono(), c.ArtificialHead(), c.Compressed(), c.StaticPty()),
              std::tuple(value, value, value, value));
  }
}

TEST_F(StationCommands, RecordLeavesAClosedLinkAlone) {
  LinkOpen = false;
  for (void (ConfigData::*operation)() :
       {&ConfigData::GetPiRds, &ConfigData::SetPiRds, &ConfigData::GetEccRds,
        &ConfigData::SetEccRds, &ConfigData::GetLicRds, &ConfigData::SetLicRds,
        &ConfigData::GetTpRds, &ConfigData::SetTpRds, &ConfigData::GetDiRds, &ConfigData::SetDiRds,
        &ConfigData::GetCtRds, &ConfigData::SetCtRds}) {
    (configData->*operation)();
  }
  EXPECT_EQ(LinkError, kLinkOk);
  EXPECT_TRUE(dialogs.boxes.empty());
}

TEST_F(StationCommands, DiValueHasTwoInvertedBits) {
  const std::tuple<bool, bool, bool, bool, char> cases[] = {{false, false, false, true, '1'},
                                                            {true, true, false, true, '2'},
                                                            {false, false, true, false, 'D'}};
  ConfigData& c = *configData;
  for (const auto& [mono, head, compressed, is_static, digit] : cases) {
    c.SetMono(mono);
    c.SetArtificialHead(head);
    c.SetCompressed(compressed);
    c.SetStaticPty(is_static);
    c.SetDiRds();
    EXPECT_EQ(port.written.back()[3], digit);

    c = ConfigData();
    c.GetDiRds();  // the Coder kept it
    EXPECT_EQ(std::tuple(c.Mono(), c.ArtificialHead(), c.Compressed(), c.StaticPty()),
              std::tuple(mono, head, compressed, is_static));
  }
}

}  // namespace
}  // namespace corvalis::test
