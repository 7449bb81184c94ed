// The tab of the transparent data channels: what its cells take, and what its buttons move.

#include <gtest/gtest.h>

#include <functional>

#include "networks/networks_screen.h"
#include "networks/tdc_ih_form.h"

namespace corvalis::test {
namespace {

// The columns of the first grid; those of the second stand one further left.
constexpr int kAddress = 1, kCommand = 2, kOn = 3, kSecond = -1;

std::string Ones(int bits) { return std::string(static_cast<std::size_t>(bits), '1'); }

class TdcTabTest : public NetworksTest<TdcIhForm> {
 protected:
  TdcTab& Tab() { return form->tdc; }
  Grid& First() { return Tab().DBGrid1; }
  Grid& Second() { return Tab().DBGrid2; }
  void Strike(Grid& grid, int row, int column, const std::string& keys) {
    ASSERT_TRUE(form->window.MoveFocus(&grid));
    ASSERT_TRUE(grid.MoveTo(row, column));
    grid.Type(keys);
  }
  // The numbers of the frames that have left.
  std::vector<int> Numbers() {
    std::vector<int> numbers;
    for (const Bytes& frame : Written()) numbers.push_back(frame[2]);
    return numbers;
  }
  static void Add(std::vector<int>& numbers, int from, int to) {
    for (int number = from; number <= to; ++number) numbers.push_back(number);
  }
  static std::vector<int> AllNumbers(int passes = 1) {
    std::vector<int> numbers;
    for (int pass = 0; pass < passes; ++pass) {
      numbers.push_back(0);
      Add(numbers, 32, 130);
    }
    for (int pass = 0; pass < passes; ++pass) Add(numbers, 0, 30);
    return numbers;
  }
};

TEST_F(TdcTabTest, ACellTakesTheKeysOfItsColumn) {
  OpenScreen(kLocal);
  struct Case {
    Grid* grid;
    int column;
    std::string keys, typed;  // "-": the cell was not opened
    int beeps;
  };
  const Case cases[] = {
      {&First(), 0, "0", "-", 0},
      {&First(), kAddress, "f", "F", 0},
      {&First(), kAddress, "g1-\b2", "12", 3},
      {&First(), kAddress, "0a1c", "0A1", 1},
      {&First(), kCommand, "2\b ", "-", 3},
      {&First(), kCommand, Ones(20) + "0", Ones(20), 1},
      {&First(), kOn, "on \b!", "on!", 0},
      {&Second(), kCommand + kSecond, "\b01a", "01", 2},
      {&Second(), kCommand + kSecond, Ones(32) + "00", Ones(32), 2},
      {&Second(), kOn + kSecond, "1x\b", "1", 0},
  };
  for (const Case& one : cases) {
    SCOPED_TRACE(one.grid->Name() + " " + std::to_string(one.column) + " " + one.keys);
    dialogs.beeps = 0;
    Strike(*one.grid, 1, one.column, one.keys);
    EXPECT_EQ(one.grid->Opened() ? one.grid->Editor().Text() : "-", one.typed);
    EXPECT_EQ(dialogs.beeps, one.beeps);
    one.grid->Escape();
  }
  dialogs.beeps = 0;
  for (const auto& [grid, column] : {std::pair{&First(), kAddress}, {&Second(), 1}}) {
    Strike(*grid, 1, column, "");
    grid->Paste("1");
    EXPECT_FALSE(grid->Opened());
    grid->Type("0");
    grid->Editor().Paste("1");
    EXPECT_EQ(grid->Editor().Text(), "0");
    grid->Escape();
  }
  EXPECT_EQ(dialogs.beeps, 4);
  // What is selected makes room.
  Strike(First(), 1, kAddress, "123");
  First().Editor().Select(0, 2);
  First().Type("c");
  EXPECT_EQ(First().Editor().Text(), "C3");
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(TdcTabTest, ARowWithAShortCommandIsNotLeft) {
  OpenScreen(kLocal);
  struct Case {
    Grid* grid;
    int column, bits;
    std::function<std::string()> stored;
  };
  const Case cases[] = {{&First(), kCommand, 20, [] { return tdc0Data->Command(4); }},
                        {&Second(), kCommand + kSecond, 32, [] { return tdcData->Command(4); }}};
  for (const auto& [grid, column, bits, stored] : cases) {
    SCOPED_TRACE(grid->Name());
    dialogs.beeps = 0;
    Strike(*grid, 4, column, Ones(bits - 1));
    EXPECT_FALSE(grid->MoveTo(5, column));
    EXPECT_EQ(grid->Row(), 4);
    EXPECT_EQ(grid->Shown(4, column), Ones(bits - 1));
    EXPECT_EQ(dialogs.beeps, 1);
    EXPECT_NE(stored()[0], '1');
    EXPECT_TRUE(grid->Escape());
    EXPECT_TRUE(grid->MoveTo(5, column));
    Strike(*grid, 4, column, Ones(bits));
    EXPECT_TRUE(grid->MoveTo(5, column));
    EXPECT_EQ(stored(), Ones(bits));
    EXPECT_EQ(dialogs.beeps, 1);
  }
}

TEST_F(TdcTabTest, ALeftRowIsStored) {
  OpenScreen(kLocal);
  for (const auto& [typed, shown] :
       {std::pair{"1f", "01F"}, {"5", "005"}, {"FFF", "FFF"}, {"000", "000"}}) {
    Strike(First(), 2, kAddress, typed);
    EXPECT_TRUE(First().MoveTo(3, kAddress));
    EXPECT_EQ(First().Shown(2, kAddress), shown);
    EXPECT_EQ(tdc0Data->Address(2), std::stoi(typed, nullptr, 16));
  }
  for (const auto& [typed, on] : {std::pair{"1", true},
                                  {"0", false},
                                  {"1", true},
                                  {"11", false},
                                  {"1 ", false},
                                  {"On", false}}) {
    SCOPED_TRACE(typed);
    Strike(First(), 2, kOn, typed);
    First().MoveTo(3, kOn);
    EXPECT_EQ(tdc0Data->Active(2), on);
    Strike(Second(), 2, kOn + kSecond, typed);
    Second().MoveTo(3, kOn + kSecond);
    EXPECT_EQ(tdcData->Active(2), on);
    EXPECT_EQ(Second().Shown(2, kOn + kSecond), on ? "1" : "0");
  }
  // An address that is rubbed out is the old one.
  tdc0Data->SetAddress(2, 0xABC);
  Strike(First(), 2, kAddress, "");
  First().Clear();
  EXPECT_TRUE(First().MoveTo(3, kAddress));
  EXPECT_EQ(tdc0Data->Address(2), 0xABC);
  EXPECT_EQ(First().Shown(0, 0) + First().Shown(99, 0), "0099");
  EXPECT_EQ(Second().Shown(0, 0) + Second().Shown(30, 0), "0131");
  // The screen closes on what is being typed.
  Strike(Second(), 30, kOn + kSecond, "1");
  form->window.Close();
  EXPECT_TRUE(tdcData->Active(30));
}

TEST_F(TdcTabTest, TheGridGoneIntoLastIsTheSelectedOne) {
  OpenScreen(kLocal);
  Hold(0x11, "1ABC11111", 34);
  Hold(0x11, "1F000000F", 30);
  First().MoveTo(3, 0);
  Second().MoveTo(30, 0);
  Tab().Command2.Press();
  EXPECT_EQ(Numbers(), std::vector<int>{34});
  EXPECT_EQ(First().Shown(3, kAddress) + First().Shown(3, kOn), "ABC1");
  form->window.MoveFocus(&Second());
  EXPECT_EQ(Tab().TdcSelectedLabel.Caption(), "Channel 31");
  Tab().Command5.Press();
  Tab().Command2.Press();
  EXPECT_EQ(Numbers(), (std::vector<int>{30, 30}));
  EXPECT_EQ(Held(0x11, 30), "000000000");
  form->window.MoveFocus(&First());
  Tab().Command5.Press();
  EXPECT_EQ(Numbers(), std::vector<int>{34});
  EXPECT_EQ(Tab().TdcSelectedLabel.Caption(), "Channel 0, 03");
  // Only what is stored is sent; and the tab says what is not.
  const auto marks = [this] {
    return Tab().Tdc0MarkLabel.Caption() + "/" + Tab().TdcMarkLabel.Caption();
  };
  EXPECT_EQ(marks(), "selected/");
  Strike(First(), 3, kOn, "0");
  EXPECT_EQ(marks(), "selected, not taken yet/");
  Tab().Command5.Press();
  Tab().Command6.Press();
  EXPECT_EQ(Held(0x11, 34).front(), '1');
  form->window.MoveFocus(&Second());
  EXPECT_EQ(marks(), "row 03, not taken yet/selected");
  form->window.MoveFocus(&First());
  EXPECT_TRUE(First().Escape());
  EXPECT_EQ(marks(), "selected/");
  form->window.MoveFocus(&Second());
  form->SSTab1.Choose(1);
  form->window.Close();
  form->Load();
  EXPECT_EQ(form->SSTab1.Tab(), 0);
  First().MoveTo(9, 0);
  Written();
  Tab().Command5.Press();
  EXPECT_EQ(Numbers(), std::vector<int>{40});
  EXPECT_EQ(marks(), "selected/");
}

TEST_F(TdcTabTest, AllRowsTravelInTheirOrderAndThePlaceIsKept) {
  OpenScreen(kLocal);
  tdcData->SetCommand(0, Ones(32));
  First().SetView(0, 10);
  Second().SetView(0, 5);
  First().MoveTo(45, kCommand);
  Second().MoveTo(7, 1);
  const auto place = [this] {
    return std::vector<int>{First().Row(), First().FirstRow(), Second().Row(), Second().FirstRow()};
  };
  const std::vector<int> before = place();
  Tab().Command6.Press();
  EXPECT_EQ(Numbers(), AllNumbers());
  EXPECT_EQ(Held(0x11, 0), "0FFFFFFFF");  // two rows have this number: the later one stands
  EXPECT_EQ(place(), before);
  Hold(0x11, "1FFF00000", 130);
  Tab().Command3.Press();
  EXPECT_EQ(Numbers(), AllNumbers());
  EXPECT_EQ(First().Shown(99, kAddress), "FFF");
  EXPECT_EQ(place(), before);
  EXPECT_EQ(time.Elapsed(), 0);  // none of the runs has pauses
  EXPECT_EQ(Boxes(), no_boxes);
}

TEST_F(TdcTabTest, ABurstGoesThroughOneTableBeforeTheOther) {
  OpenScreen(std::string(kSatellite) + "Burst=2\n");
  AddressSent = true;
  Tab().Command4.Press();
  EXPECT_EQ(Numbers(), AllNumbers(2));
}

}  // namespace
}  // namespace corvalis::test
