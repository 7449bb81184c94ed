#include "link/list_size.h"

#include <gtest/gtest.h>

#include "config/config_data.h"
#include "config/ini_management.h"
#include "link/serial_management.h"
#include "support/test_machine.h"

namespace corvalis::test {
namespace {

std::int16_t coders_count = 0;  // 0: the Coder does not answer
int asked = 0;

void Ask(std::int16_t& count) {
  ++asked;
  if (coders_count != 0) count = coders_count;
}

constexpr ListSize::Source kSource{"PSN", "MaxPsnNum", 50, Ask, 500, 3};

class ListSizes : public LinkTest {
 protected:
  void SetUp() override {
    Start(kLocal);
    LinkOpen = true;
    coders_count = 0;
  }
};

TEST_F(ListSizes, TheCoderIsAskedWhereItCanAnswer) {
  for (int bits = 0; bits < 32; ++bits) {
    const auto bit = [bits](int number) { return (bits >> number & 1) != 0; };
    configData->SetModem(bit(0));
    configData->SetModemHookOn(bit(1));
    configData->SetSatellite(bit(2));
    LinkOpen = bit(3);
    asked = 0;
    ListSize(kSource).Load(bit(4));
    EXPECT_EQ(asked == 1, bit(4) && (bit(0) ? bit(1) : !bit(2) && bit(3))) << bits;
  }
}

TEST_F(ListSizes, TheCodersCountGoesBeforeTheFilesBeforeTheFixedOne) {
  const std::tuple<const char*, int, int> cases[] = {
      {"", 0, 50},     {"abc", 0, 50},   {"0", 0, 50},     {"-3", 0, 50},   {"40000", 0, 50},
      {"20", 0, 20},   {"020", 0, 20},   {"20", 30, 30},   {"", 30, 30},    {"20", -1, 20},
      {"500", 30, 30}, {"501", -1, 500}, {"20", 501, 500}, {"abc", -1, 50}, {"3;", 0, 50}};
  for (const auto& [file, coder, wanted] : cases) {
    WriteIniKey("PSN", "MaxPsnNum", file);
    coders_count = static_cast<std::int16_t>(coder);
    ListSize size(kSource);
    size.Load();
    EXPECT_EQ(size.Count(), wanted) << file << " " << coder;
  }
}

TEST_F(ListSizes, IsStoredWithItsDigitsAndReadAgain) {
  coders_count = 7;
  ListSize size(kSource);
  size.Load();
  size.Store();
  EXPECT_EQ(ReadIniKey("PSN", "MaxPsnNum"), "007");
  coders_count = 0;
  size.Load();
  EXPECT_EQ(size.Count(), 7);
  WriteIniKey("PSN", "MaxPsnNum", "nonsense");
  size.Load();
  EXPECT_EQ(size.Count(), 7);  // what can't be converted changes nothing
}

TEST_F(ListSizes, AFailedQuestionKeepsTheLastAnswerWhereThatIsMeant) {
  for (const bool keeps : {false, true}) {
    ListSize size({.section = "PSN",
                   .key = "MaxPsnNum",
                   .fallback = 50,
                   .read_count = Ask,
                   .limit = 50,
                   .keeps_answer = keeps});
    coders_count = 7;
    size.Load();
    coders_count = 0;
    size.Load();
    EXPECT_EQ(size.Count(), keeps ? 7 : 50);
    size.Load(false);  // not asked at all
    EXPECT_EQ(size.Count(), 50);
    size.Load();
    EXPECT_EQ(size.Count(), 50);
  }
}

}  // namespace
}  // namespace corvalis::test
