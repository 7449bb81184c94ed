// All windows, for whoever does not see them or needs larger letters: every control has a name,
// every state is in words, and every text has room in letters of any size.

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

#include "config/config_data.h"
#include "desktop/running_program.h"
#include "desktop/widgets/mnemonics.h"

namespace corvalis::test {
namespace {

constexpr const char* kGroupsFile =
    "[Serial Setup]\nSatellite=Off\nSerialPort=1\nBaudrate=9600\nParity=N\nStopBit=2\n"
    "[RDS Setup]\nGroups Enable=On\nGroups B Enable=On\nTA=On\nMusic=Off\n"
    "[Groups]\nGroup00A=03;On\nGroup02A=09;On\n";

QString Said(QWidget& widget, QAccessible::Text what) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  if (spoken == nullptr) return {};
  // A list that drops down is called by its label, and its own name is what it shows.
  if (what == QAccessible::Name && spoken->role() == QAccessible::ComboBox) {
    const auto labels = spoken->relations(QAccessible::Label);
    if (!labels.isEmpty()) return labels.first().first->text(what);
  }
  return spoken->text(what);
}

class WindowsAccessTest : public RunningProgram {
 protected:
  ~WindowsAccessTest() override { QApplication::setFont(font_); }

  // Hands each control that is to be seen to `look`, window by window and page by page.
  void ForEachControl(const std::function<void(QWidget&)>& look) {
    const auto look_at = [&look](const QString& name) {
      QWidget* window = OnScreen(name);
      ASSERT_NE(window, nullptr) << name.toStdString();
      SCOPED_TRACE(name.toStdString());
      for (QWidget* widget : window->findChildren<QWidget*>()) {
        const QString control = widget->objectName();
        if (control.isEmpty() || control.startsWith(u"qt_") || !widget->isVisible()) continue;
        SCOPED_TRACE(control.toStdString());
        look(*widget);
      }
    };
    look_at(kMain);
    for (const auto& [button, window] : {std::pair(QStringLiteral("TaPtyMsButton"), kOnAir),
                                         std::pair(QStringLiteral("CtTpDiPiButton"), kStation),
                                         std::pair(QStringLiteral("EditGroupsButton"), kGroups),
                                         std::pair(QStringLiteral("RS232CButton"), kSetup)}) {
      hand.Click(kMain, button);
      const auto* tabs = hand.Window(window).findChild<QTabBar*>();
      for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
        if (tabs != nullptr) hand.TurnToTab(window, tab);
        look_at(window);
      }
      if (window == kOnAir) {
        during_transfer = [&look_at] { look_at(kTransfer); };
        hand.Click(window, "Command8");
        EXPECT_EQ(during_transfer, nullptr);
      }
      hand.Close(window);
    }
  }

 private:
  const QFont font_ = QApplication::font();
};

TEST_F(WindowsAccessTest, EveryControlHasAName) {
  StartWithCoder({"--open"}, kGroupsFile);
  int controls = 0;
  ForEachControl([&controls](QWidget& widget) {
    ++controls;
    const auto* bar = widget.findChild<QTabBar*>();
    if (bar == nullptr) bar = qobject_cast<QTabBar*>(&widget);
    if (bar == nullptr) {
      EXPECT_FALSE(Said(widget, QAccessible::Name).isEmpty());
    } else {
      for (int tab = 0; tab < bar->count(); ++tab) EXPECT_FALSE(bar->tabText(tab).isEmpty());
    }
  });
  EXPECT_GT(controls, 150);
}

TEST_F(WindowsAccessTest, EveryStateIsInWords) {
  StartWithCoder({"--open"}, kGroupsFile);
  const auto expect = [this](const QString& window, const char* control, const char* name,
                             const QString& value) {
    QWidget& widget = hand.Control(window, control);
    EXPECT_EQ(Said(widget, QAccessible::Name).toStdString(), name) << control;
    EXPECT_EQ(Said(widget, QAccessible::Value).toStdString(), value.toStdString()) << control;
  };
  hand.Click(kMain, "TaPtyMsButton");
  const auto on_air = [&](const char* ta, const char* ms, const char* pty) {
    expect(kOnAir, configData->Ta() ? "Check3" : "Check4", ta, "");
    expect(kOnAir, configData->Music() ? "Check1" : "Check2", ms, "");
    expect(kOnAir, "Combo1", "PTY", pty);
  };
  on_air("TA: ON", "M/S: Speech", "0    No program type or undefined");
  hand.Click(kOnAir, "Command2");
  hand.Click(kOnAir, "Command6");
  hand.Choose(kOnAir, "Combo1", "1    News");
  on_air("TA: OFF", "M/S: Music", "1    News");
  hand.Close(kOnAir);

  hand.Click(kMain, "EditGroupsButton");
  for (const auto& [box, on] : {std::pair("Check1(2)", true), std::pair("Check1(18)", false)}) {
    QWidget& widget = hand.Control(kGroups, box);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&widget)->state().checked, on) << box;
  }
  hand.StepUp(kGroups, "VScroll2(18)");
  expect(kGroups, "VScroll2(18)", "Group 2B, repetitions", "001");
  expect(kGroups, "Text1(18)", "Group 2B, repetitions", "001");
  expect(kGroups, "PercentBar(2)", "Share of group 2", "75");
  hand.Close(kGroups);

  OpenIdentity();
  hand.StepUp(kStation, "VScroll3");
  expect(kStation, "VScroll3", "ID Number", hand.Shown(kStation, "IDNumberText"));
  expect(kStation, "CountryCombo", "Country", hand.Shown(kStation, "CountryCombo"));
  hand.TurnToTab(kStation, 0);
  hand.Click(kStation, "Command1");  // the Coder's factory date
  const QString said = Said(hand.Control(kStation, "Calendar1"), QAccessible::Name);
  EXPECT_TRUE(said.contains(QStringLiteral("2000"))) << said.toStdString();
}

TEST_F(WindowsAccessTest, EveryTextHasRoomInLettersOfAnySize) {
  int line = 0;
  for (const double points : {9.0, 12.0, 18.0}) {
    SCOPED_TRACE(points);
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
    StartWithCoder({"--open"}, kGroupsFile);
    ForEachControl([](QWidget& widget) {
      const QFontMetrics letters = widget.fontMetrics();
      EXPECT_GE(letters.height(), QFontMetrics(QApplication::font()).height());
      const QRect& in = widget.parentWidget()->rect();
      EXPECT_TRUE(in.contains(widget.geometry()));
      QString text;
      if (const auto* button = qobject_cast<QAbstractButton*>(&widget)) text = button->text();
      // Air above and below the letters, also of large ones.
      if (!text.isEmpty() && qobject_cast<QPushButton*>(&widget) != nullptr) {
        EXPECT_GE(widget.height() * 4, letters.height() * 7);
      }
      if (const auto* label = qobject_cast<QLabel*>(&widget)) text = label->text();
      const auto* box = qobject_cast<QLineEdit*>(&widget);
      if (box != nullptr && box->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed) {
        text = box->text();
      }
      text = desktop::PlainCaption(text);
      if (text.isEmpty()) return;
      EXPECT_GE(widget.height(), letters.height());
      EXPECT_GE(widget.width(), letters.horizontalAdvance(text));
    });
    EXPECT_GT(QFontMetrics(font).height(), line);
    line = QFontMetrics(font).height();
  }
}

}  // namespace
}  // namespace corvalis::test
