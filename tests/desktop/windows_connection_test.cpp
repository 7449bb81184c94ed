// A whole station on its way to a Coder and back, through the real windows and a real line.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QRegularExpression>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "config/config_data.h"
#include "desktop/running_program.h"
#include "support/places.h"

namespace corvalis::test {
namespace {

const QStringList kTicks = {"PsnCheck", "Check3",  "PtynCheck", "Check2",  "Check1", "EccCheck",
                            "LicCheck", "Check11", "Check8",    "Check5",  "Check4", "EonCheck",
                            "LiCheck",  "Check6",  "Check7",    "TmcCheck"};

std::string Example(const std::string& name) {
  std::ifstream file(kExamples + ("/" + name), std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

Lines operator+(Lines lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

// The keys of a file, as "Section/Key".
using Keys = std::map<std::string, std::string>;
Keys KeysOf(const std::string& file) {
  Keys keys;
  std::string section;
  std::istringstream lines(file);
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with('[')) {
      section = line.substr(1, line.size() - 2);
    } else if (const std::size_t equals = line.find('='); equals != std::string::npos) {
      keys[section + "/" + line.substr(0, equals)] = line.substr(equals + 1);
    }
  }
  return keys;
}

// `text` with the first `old`, if there is one, replaced.
std::string With(std::string text, const std::string& old, const std::string& fresh) {
  const std::size_t at = text.find(old);
  return at == std::string::npos ? text : text.replace(at, old.size(), fresh);
}

// What becomes of a value on its way.
std::string AsItComesBack(const std::string& key, const Keys& sent) {
  const std::string& value = sent.at(key);
  if (key.starts_with("PSN Pages/Psn")) {
    // A row that is not active travels with the time 0, and one of another page with the time that
    // the same row has on the page on the screen.
    if (value.substr(3, 2) != "On") return "00" + value.substr(2);
    return sent.at("PSN Pages/Psn00" + key.substr(15)).substr(0, 2) + value.substr(2);
  }
  // A date without a year goes out with the year 00.
  if (key.starts_with("PSN Plan/")) return With(value, "-0000;", "-2000;");
  // Not arranged: a frequency of two bytes begins at an even place, behind a filler.
  if (key == "AF Method A/FreqList") {
    return With(value.substr(0, value.size() - 8), "101.325", "000.000;101.325");
  }
  return value;
}

class WindowsConnectionTest : public RunningProgram {
 protected:
  // In the open screen.
  void TickAll() const {
    for (const QString& name : kTicks) {
      auto* box = hand.Window(kConnection).findChild<QAbstractButton*>(name);
      ASSERT_NE(box, nullptr) << name.toStdString();
      if (!box->isChecked()) hand.Click(kConnection, name);
      EXPECT_TRUE(box->isChecked()) << name.toStdString();
    }
  }
};

TEST_F(WindowsConnectionTest, AStationComesBackFromItsCoder) {
  // Few of what costs seconds: a page is read in blocks with pauses, and the first sending of
  // method A empties all other lists.
  StartWithCoder({"--count", "af=1,ih=1"}, Example("station.rds"));
  hand.Click(kMain, "ConnectionButton");
  TickAll();
  // One of the two methods, by the mouse and by the keyboard.
  hand.Click(kConnection, "AFBOption");
  EXPECT_FALSE(configData->AfMethodA());
  hand.Control(kConnection, "AFAOption").setFocus();
  Press(Qt::Key_Space);
  EXPECT_TRUE(configData->AfMethodA());
  EXPECT_FALSE(hand.Window(kConnection).findChild<QAbstractButton*>("AFBOption")->isChecked());
  hand.Click(kConnection, "Command11");
  // The Coder has not been addressed: each page tries its first row, and so does the plan.
  EXPECT_EQ(Boxes(), Lines(10, "PSNPage: [RDS] before send address  ") +
                         Lines{"PSNPlan: [RDS] before send address  "});
  hand.Click(kConnection, "Command4");
  hand.Click(kConnection, "Command11");
  hand.Close(kConnection);
  hand.Click(kMain, "SaveButton");
  const Keys sent = KeysOf(ReadFile("corvalis.rds"));

  program.reset();
  Start(kLocalFile);
  hand.Click(kMain, "ConnectionButton");
  hand.Click(kConnection, "Command4");
  TickAll();
  hand.Click(kConnection, "Command1");
  hand.Close(kConnection);
  hand.Click(kMain, "SaveButton");
  Keys read = KeysOf(ReadFile("corvalis.rds"));

  // What does not travel.
  const std::pair<const char*, const char*> gone[] = {
      {"Groups/.*", "the sequence of groups has a screen of its own"},
      {"Language/.*|Serial Setup/.*", "of the place, not of the Coder"},
      {"RDS Setup/(TA|PTY|Music)", "sent live, on a screen of their own"},
      {"RDS Setup/.*Enable", "the model, which the file alone tells"},
      {"PTYN/.*", "never written to a file"},
      {"Ih Pages/.*", "only read: the Coder had a page of its own"},
      {"AF Method B/.*", "the station works with method A"},
      {"PSN Pages/Scroll.*", "what a scrolling text was made with"},
      {"EON/Max.*", "read under another key than written"},
  };
  const auto travels = [&gone](const std::string& key) {
    return std::none_of(std::begin(gone), std::end(gone), [&key](const auto& one) {
      return QRegularExpression(QRegularExpression::anchoredPattern(QString(one.first)))
          .match(QString::fromStdString(key))
          .hasMatch();
    });
  };
  int compared = 0;
  for (const auto& [key, value] : sent) {
    if (!travels(key)) continue;
    ++compared;
    EXPECT_EQ(read[key], AsItComesBack(key, sent)) << key;
  }
  EXPECT_GT(compared, 900);
}

}  // namespace
}  // namespace corvalis::test
