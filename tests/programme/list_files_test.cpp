// What the lists of the programme make of the file, and what they write there.

#include <gtest/gtest.h>

#include <functional>

#include "config/ini_management.h"
#include "config/language_data.h"
#include "programme/programme_screen.h"

namespace corvalis::test {
namespace {

class ListFilesTest : public ProgrammeTest {
 protected:
  ListFilesTest() { sizes = {.psn = 3, .page = 2, .plan = 3, .rt = 3, .pin = 3}; }

  // The program starts, also again.
  void Begin(const std::string& file, bool open = false) {
    delete std::exchange(configData, nullptr);
    delete std::exchange(languageData, nullptr);
    Start(file);
    if (open) Open();
  }
  void StartOn(const std::string& file) {
    Begin(file);
    Lists::Create();
  }
  // One operation on the disk for all of it.
  void Store(const std::function<void()>& store = Lists::SetIni) {
    const ProfileStore::Series series(profiles);
    store();
  }
};

TEST_F(ListFilesTest, ValuesAreReadAndWritten) {
  struct Case {
    const char *section, *key;
    std::string read, written;
  };
  const std::string weekend = "Off;Off;Off;Off;Off;On;On;";
  const Case cases[] = {
      {"PSN Pages", "Psn00.00", "", "00;Off;        ;"},
      {"PSN Pages", "Psn00.01", "05;oN;ABC;", "05;On;ABC     ;"},
      {"PSN Pages", "Psn00.01", "x;yes;AB;CD", "00;Off;AB      ;"},
      {"PSN Pages", "Psn01.02", "256;ON;123456789;", "00;On;12345678;"},
      {"PSN Pages", "Psn01.02", "199;ON", "199;On;        ;"},
      {"PSN Plan", "Plan000", "", "00:00;00-00-0000;Off;Off;Off;Off;Off;Off;Off;0;Off;"},
      {"PSN Plan", "Plan001", "07:30;31-12-1999;on;On;ON;x;;On;On;7;On;",
       "07:30;31-12-1999;Off;On;Off;Off;Off;On;On;7;On;"},
      {"PSN Plan", "Plan002", "x7:3;0;Off;Off;Off;Off;Off;On;On;300;on;",
       "00:03;00-00-0000;" + weekend + "0;Off;"},
      {"PSN Plan", "Plan002", "300:05;00-11-2026;" + weekend + "12;On",
       "30:00;00-11-2026;" + weekend + "12;On;"},
      {"RT", "Rt00", "", "00;" + In(64, "") + ";"},
      {"RT", "Rt01", "12;One;two;", "12;" + In(64, "One") + ";"},
      {"RT", "Rt02", "-1;" + std::string(70, 'R'), "00;" + std::string(64, 'R') + ";"},
      {"PIN", "Pin000", "", "00;00:00;00;Off"},
      {"PIN", "Pin001", "5;9:05;3;oN", "05;09:05;03;On"},
      {"PIN", "Pin002", "x;24:00;y;ON;", "00;00:00;00;On"},
      {"PIN", "Pin002", "-2;23:59;99999;Offer", "-02;23:59;99999;Off"},
      {"PTYN", "PtyN00", "", "--------"},
      {"PTYN", "PtyN31", "Sirens; now", "Sirens;"},
      {"PSN Pages", "MaxPsnPagesNum", "2", "2"},
      {"PSN Pages", "ScrollFrom", "", "10"},
      {"PSN Pages", "ScrollTo", "256", "49"},
      {"PSN Pages", "ScrollTime", "x", "3"},
      {"RT", "MaxRtNum", "3", "03"},
      {"RT", "MaxRtNum", "0", "50"},
      {"RT", "MaxRtNum", "-3", "50"},
      {"PIN", "MaxPinNum", "3", "003"},
      {"PIN", "MaxPinNum", "x", "255"},
      // As many as the items have numbers on the line.
      {"PSN Pages", "MaxPsnNum", "9999", "256"},
      {"PSN Pages", "MaxPsnPagesNum", "9999", "16"},
      {"PSN Plan", "MaxPsnPlanNum", "9999", "256"},
      {"RT", "MaxRtNum", "9999", "256"},
      {"PIN", "MaxPinNum", "9999", "4096"},
      {"AF Method B", "MaxAfBListNum", "9999", "256"}};
  for (const Case& one : cases) {
    SCOPED_TRACE(std::string(one.key) + "=" + one.read);
    const std::string line = std::string(one.key) + "=" + one.read + "\n";
    std::string file = Sized(std::string(kSatellite) + "[" + one.section + "]\n");
    file.insert(file.find(one.section) + std::string(one.section).size() + 2, line);
    StartOn(file);
    Store();
    EXPECT_EQ(ReadIniKey(one.section, one.key),
              one.written.substr(0, one.written.find_last_not_of(' ') + 1));
  }
}

TEST_F(ListFilesTest, TheListAndThePagesShareASection) {
  StartOn(
      Sized(std::string(kSatellite) + "[PSN Pages]\nPsn00.01=05;On;LIST;\nPsn01.01=06;On;PAGE;\n"));
  EXPECT_EQ(psnData->Data(1), "LIST    ");
  EXPECT_EQ(psnPageData->Data(0, 1) + psnPageData->Data(1, 1), "LIST    PAGE    ");
  psnPageData->SetData(1, 1, "X");
  psnData->SetData(1, "NEW");
  psnData->SetScrollTo(2);
  Store([] { psnData->SetIni(); });
  EXPECT_EQ(ReadIniKey("PSN Pages", "Psn01.01"), "06;On;PAGE;");
  psnPageData->SetCurrentPage(1);
  psnPageData->GetIni();
  EXPECT_EQ(psnPageData->Data(0, 1) + psnPageData->Data(1, 1), "NEW     PAGE    ");
  EXPECT_EQ(psnPageData->ScrollTo(), 2);
  EXPECT_EQ(psnPageData->CurrentPage(), 0);
}

TEST_F(ListFilesTest, ANonsenseFieldOfTheListItselfStays) {
  StartOn(Sized(std::string(kSatellite) + "[PSN Pages]\nScrollTo=20\nPsn00.01=05;On;OLD;\n"));
  WriteFile(ProgramFile(),
            "[PSN Pages]\nMaxPsnNum=x\nScrollTo=x\nScrollTime=\nPsn00.01=x;On;NEW;\n");
  psnData->SetScrollTime(9);
  psnData->GetIni();
  EXPECT_EQ(psnData->MaxPsnNum(), 3);
  EXPECT_EQ(psnData->ScrollTo(), 20);
  EXPECT_EQ(psnData->ScrollTime(), 3);     // missing, not nonsense
  EXPECT_EQ(psnData->RotationTime(1), 0);  // the rows are rebuilt from nothing
}

TEST_F(ListFilesTest, WhatWouldEndALineBecomesBlank) {
  StartOn(Sized(kSatellite));
  const std::string text("A\nB\rC\0D", 7);
  psnData->SetData(1, text);
  rtData->SetData(1, text + "\x81");
  ptynData->SetPtyn(text, 1);
  Store();
  Store([] { psnData->SetIni(); });
  Lists::Create();
  EXPECT_EQ(psnData->Data(1), "A B C D ");
  EXPECT_EQ(rtData->Data(1), In(64, "A B C D\x81"));
  EXPECT_EQ(ptynData->Ptyn(1), "A B C D ");
}

TEST_F(ListFilesTest, NumbersOfRowsGrow) {
  sizes = {.psn = 120, .page = 2, .plan = 120, .rt = 120, .pin = 300};
  OpenScreen(Sized(kSatellite));
  psnPageData->SetData(1, 119, "LAST");
  rtData->SetRotationTime(119, 255);
  pinData->SetMonthDay(299, 31);
  Store();
  EXPECT_EQ(ReadIniKey("PSN Pages", "Psn01.119"), "00;Off;LAST    ;");
  EXPECT_EQ(ReadIniKey("RT", "Rt119").substr(0, 4), "255;");
  EXPECT_EQ(ReadIniKey("PIN", "Pin299"), "31;00:00;00;Off");
  form->pin.DBGrid4.MoveTo(299, 1);
  EXPECT_EQ(form->psn.DBGrid1.Shown(119, 0) + form->rt.DBGrid3.Shown(119, 0) +
                form->plan.PsnPlanDBGrid.Shown(119, 0) + form->pin.PinSelectedLabel.Caption(),
            "PSN 119RT 119119PIN 299");
  AddressSent = true;
  form->pin.Command8.Press();
  EXPECT_EQ(Written().at(0).at(3), '1');  // the high part of its number
}

TEST_F(ListFilesTest, TheCoderIsAskedForItsSizes) {
  const std::tuple<std::string, Bytes, int> cases[] = {
      {kSatellite, {}, 3},
      {std::string(kLocal) + "[RDS Setup]\n", Hex("0C 14 1E 20 14 0A 0B"), 5},
      {std::string(kLocal) + "[RDS Setup]\nPSN Plan Enable=Off\n", Hex("0C 14 1E 14 0A 0B"), 5},
      {std::string(kLocal) + kNoPages, Hex("0C 14 14 0A 0B"), 5},
      {"[Serial Setup]\nSatellite=Off\nModem=On\n", {}, 3}};
  for (const auto& [file, asked, rows] : cases) {
    Begin(Sized(file), true);
    the_coder->SetSizes({.psn = 5, .page = 2, .plan = 5, .rt = 5, .pin = 5});
    port.written.clear();
    Lists::Create();
    Bytes codes;
    for (const Bytes& frame : Written()) codes.push_back(frame.at(1));
    EXPECT_EQ(codes, asked) << file;
    EXPECT_EQ(psnPageData->MaxPsnNum(), rows);
    EXPECT_EQ(pinData->MaxPinNum(), rows);
  }
  // A refused question falls back on the file.
  Begin(Sized(kLocal), true);
  port.answer = [](const Bytes&) { return Hex("15 02 00 07 03 06"); };
  Lists::Create();
  EXPECT_EQ(psnData->MaxPsnNum(), 3);
  EXPECT_EQ(Boxes().size(), 7U);
}

TEST_F(ListFilesTest, YearsTravelInTwoDigits) {
  StartOn(Sized(kSatellite));
  const std::tuple<int, int, int> cases[] = {{1999, 99, 1999}, {2005, 5, 2005}, {1990, 90, 1990},
                                             {2089, 89, 2089}, {0, 0, 2000},    {99, 0, 2000}};
  for (const auto& [year, sent, read] : cases) {
    PsnPlanRow row;
    row.year = static_cast<std::int16_t>(year);
    EXPECT_EQ(row.Fields().at(5), sent);
    row.SetFields(row.Fields());
    EXPECT_EQ(row.year, read);
  }
  psnPageData->SetDay(1, 7);  // a slip that is kept
  EXPECT_EQ(psnPageData->Time(1) + " " + psnPageData->TimeDate(1), "00:07 00-00-0000");
}

}  // namespace
}  // namespace corvalis::test
