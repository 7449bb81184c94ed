// All windows, for whoever does not see them or needs larger letters: every control has a name,
// every state is in words, and every text has room in letters of any size.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <utility>

#include "config/config_data.h"
#include "desktop/running_program.h"
#include "desktop/widgets/look/mnemonics.h"
#include "programme/pin_tab.h"
#include "support/places.h"

namespace corvalis::test {
namespace {

// Its last section can be gone on with.
constexpr const char* kGroupsFile =
    "[Serial Setup]\nSatellite=Off\nSerialPort=1\nBaudrate=9600\nParity=N\nStopBit=2\n"
    "[Groups]\nGroup00A=03;On\nGroup02A=09;On\n"
    "[RDS Setup]\nGroups Enable=On\nGroups B Enable=On\nTA=On\nMusic=Off\n";

QString Said(QWidget& widget, QAccessible::Text what) {
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&widget);
  if (spoken == nullptr) return {};
  // A list that drops down is called by its label, and its own name is what it shows.
  if (what == QAccessible::Name && spoken->role() == QAccessible::ComboBox) {
    const auto labels = spoken->relations(QAccessible::Label);
    return labels.isEmpty() ? QString() : labels.first().first->text(what);
  }
  return spoken->text(what);
}

class WindowsAccessTest : public RunningProgram {
 protected:
  ~WindowsAccessTest() override { QApplication::setFont(font_); }

  // Hands each window to `look`, page by page, in all languages that there are.
  void ForEachPage(const std::function<void(QWidget&)>& look) {
    for (const char* language : {"English", "German", "French", "Italian"}) {
      SCOPED_TRACE(language);
      std::ifstream file(std::string(kExamples) + "/" + language + ".ini", std::ios::binary);
      StartIn({std::istreambuf_iterator<char>(file), {}});
      LookThrough(look);
    }
  }
  void StartIn(const std::string& language_file) {
    WriteFile("Language.ini", language_file);
    StartWithCoder({"--open"}, kGroupsFile);
  }
  void LookThrough(const std::function<void(QWidget&)>& look) {
    const auto look_at = [&look](const QString& name) {
      SCOPED_TRACE(name.toStdString());
      ASSERT_NE(OnScreen(name), nullptr);
      look(*OnScreen(name));
    };
    look_at(kMain);
    for (const auto& [button, window] : {std::pair(QStringLiteral("TaPtyMsButton"), kOnAir),
                                         std::pair(QStringLiteral("PsnRtPinAfButton"), kTexts),
                                         std::pair(QStringLiteral("PsnRtPinAfButton"), kTexts),
                                         std::pair(QStringLiteral("CtTpDiPiButton"), kStation),
                                         std::pair(QStringLiteral("ConnectionButton"), kConnection),
                                         std::pair(QStringLiteral("EonLiButton"), kNetworks),
                                         std::pair(QStringLiteral("TdcIhButton"), kChannels),
                                         std::pair(QStringLiteral("EditGroupsButton"), kGroups),
                                         std::pair(QStringLiteral("RS232CButton"), kSetup)}) {
      hand.Click(kMain, button);
      const auto* tabs = hand.Window(window).findChild<QTabBar*>();
      for (int tab = 0; tab < (tabs == nullptr ? 1 : tabs->count()); ++tab) {
        SCOPED_TRACE(tab);
        if (tabs != nullptr && !tabs->isTabVisible(tab)) continue;
        if (tabs != nullptr) hand.TurnToTab(window, tab);
        look_at(window);
      }
      if (window == kOnAir) {
        during_transfer = [&look_at] { look_at(kTransfer); };
        hand.Click(window, "Command8");
        EXPECT_EQ(during_transfer, nullptr);
      }
      hand.Close(window);
      if (window == kTexts) configData->SetAfMethodA(!configData->AfMethodA());
    }
  }

  // Hands each control that is to be seen to `look`.
  void ForEachControl(const std::function<void(QWidget&)>& look) {
    ForEachPage([&look](const QWidget& window) {
      for (QWidget* widget : window.findChildren<QWidget*>()) {
        const QString control = widget->objectName();
        if (control.isEmpty() || control.startsWith(u"qt_") || !widget->isVisible()) continue;
        SCOPED_TRACE(control.toStdString());
        look(*widget);
      }
    });
  }

 private:
  const QFont font_ = QApplication::font();
};

TEST_F(WindowsAccessTest, EveryControlHasAName) {
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

// A language file in which everything that the program looks up stands between two marks.
std::string MarkedFile() {
  std::string file;
  std::string last;
  const auto add = [&file](const std::string& key) { file += key + "=\xAB" + key + "\xBB\n"; };
  for (const auto& [section, key] : {
#define CORVALIS_TEXT(section, key, getter, preset) \
  std::pair<std::string, std::string>(section, key),
#include "config/language_texts.inc"
#undef CORVALIS_TEXT
       }) {
    if (std::exchange(last, section) != section) file += "[" + section + "]\n";
    add(key);
  }
  QProcess words;
  words.start(QString::fromUtf8(kExamples) + QStringLiteral("/../tests/words.sh"), {"--list"});
  EXPECT_TRUE(words.waitForFinished());
  file += "[Words]\n";
  for (const QByteArray& word : words.readAllStandardOutput().split('\n')) {
    if (!word.isEmpty()) add(word.toStdString());
  }
  return file;
}

// What is left of a text without what has been looked up and what is the same in every language:
// the abbreviations of the standard, and the names and fixed texts of the system.
QString Left(QString text) {
  static const QRegularExpression marked(QStringLiteral("\u00AB[^\u00AB\u00BB]*\u00BB"));
  static const QRegularExpression fixed(
      QStringLiteral("\\b(AF|CT|DI|ECC|EON|IH|LI|LIC|MS|M/S|PI|PIN|PSN|PTY|PTYN|RT|TA|TDC|TMC|TP|"
                     "COM \\d|MHz|kHz|Addr|Command|On|Tmc Nr|Location|Event|Duration|Direction|"
                     "Extent|Diversion|Repetition|TRANSPARENT DATA CHANNEL|Satellite|Local|Modem|"
                     "Tone|Pulse|Hook|Hang up|Main Menu|CORVALIS|KOR|Serial Communication)\\b"));
  while (text.contains(marked)) text.remove(marked);
  return text.remove(fixed).remove(QRegularExpression(QStringLiteral("[^A-Za-z]")));
}

TEST_F(WindowsAccessTest, EveryTextOfOursIsLookedUp) {
  StartIn(MarkedFile());
  std::set<std::string> left;
  LookThrough([&left](QWidget& window) {
    const auto take = [&left](const QWidget& widget, const QString& text) {
      if (Left(text).size() < 2) return;
      left.insert(widget.window()->objectName().toStdString() + " " +
                  widget.objectName().toStdString() + ": " + text.toStdString());
    };
    take(window, window.windowTitle());
    for (auto* widget : window.findChildren<QWidget*>()) {
      if (!widget->isVisible() || widget->objectName() == u"PathLabel" ||
          widget->objectName().startsWith(u"qt_"))
        continue;
      take(*widget, widget->toolTip());
      take(*widget, Said(*widget, QAccessible::Name));
      take(*widget, Said(*widget, QAccessible::Description));
      if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
        take(*widget, desktop::PlainCaption(button->text()));
      } else if (const auto* group = qobject_cast<QGroupBox*>(widget)) {
        take(*widget, desktop::PlainCaption(group->title()));
      } else if (const auto* bar = qobject_cast<QTabBar*>(widget)) {
        for (int i = 0; i < bar->count(); ++i)
          take(*widget, desktop::PlainCaption(bar->tabText(i)));
      } else if (const auto* table = qobject_cast<QTableView*>(widget)) {
        for (int i = 0; i < table->model()->columnCount(); ++i) {
          take(*widget, table->model()->headerData(i, Qt::Horizontal).toString());
        }
      }
    }
  });
  EXPECT_EQ(left, std::set<std::string>{});
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
  expect(kOnAir, "Check3", "TA: ON", "");
  hand.Click(kOnAir, "Command2");
  hand.Click(kOnAir, "Command6");
  hand.Choose(kOnAir, "Combo1", "1    News");
  expect(kOnAir, "Check4", "TA: OFF", "");
  expect(kOnAir, "Check1", "M/S: Music", "");
  expect(kOnAir, "Combo1", "PTY", "1    News");
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

  hand.Click(kMain, "PsnRtPinAfButton");
  hand.TurnToTab(kTexts, 3);
  auto& items = dynamic_cast<QTableView&>(hand.Control(kTexts, "DBGrid4"));
  const QModelIndex type = items.model()->index(0, PinTab::kTypeColumn);
  QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualRect(type).center());
  EXPECT_EQ(Said(hand.Control(kTexts, "Combo1"), QAccessible::Name).toStdString(), "Type");
  hand.Close(kTexts);

  StartWithCoder({"--open"}, std::string(kGroupsFile) + "[EON]\nPsn0=Caf\xE9\x92\n");
  hand.Click(kMain, "EonLiButton");
  expect(kNetworks, "EonPsnRadioLabel",
         "On a radio: CafŊê (if the Coder does not translate): é becomes Ŋ, ’ becomes ê", "");
  hand.Close(kNetworks);

  OpenIdentity();
  hand.StepUp(kStation, "VScroll3");
  expect(kStation, "VScroll3", "ID Number", hand.Shown(kStation, "IDNumberText"));
  expect(kStation, "CountryCombo", "Country", hand.Shown(kStation, "CountryCombo"));
  hand.TurnToTab(kStation, 0);
  hand.Click(kStation, "Command1");  // the Coder's factory date
  EXPECT_TRUE(Said(hand.Control(kStation, "Calendar1"), QAccessible::Name).contains(u"2000"));
}

// The stops of Tab in `window`, from its first.
std::vector<QWidget*> Stops(const QWidget& window) {
  std::vector<QWidget*> stops;
  for (QWidget* next = window.nextInFocusChain(); next != &window;
       next = next->nextInFocusChain()) {
    const bool stop = (next->focusPolicy() & Qt::TabFocus) != 0 && next->focusProxy() == nullptr;
    if (stop && next->isEnabled() && next->isVisibleTo(&window)) stops.push_back(next);
  }
  return stops;
}

TEST_F(WindowsAccessTest, TabGoesThroughEveryWindowAsItReads) {
  StartWithCoder({"--open"}, kGroupsFile);
  QStringList menu;
  for (const QWidget* stop : Stops(hand.Window(kMain))) menu << stop->objectName();
  EXPECT_EQ(menu.join(u' ').toStdString(),
            "TaPtyMsButton PsnRtPinAfButton CtTpDiPiButton EonLiButton TdcIhButton "
            "EditGroupsButton ConnectionButton RS232CButton "
            "Drive1 Dir1 File1 Text105 NewButton OpenButton SaveButton");
  ForEachPage([](const QWidget& window) {
    const QWidget* last = nullptr;
    for (const QWidget* stop : Stops(window)) {
      const QWidget* before = std::exchange(last, stop);
      if (before == nullptr || before->isAncestorOf(stop)) continue;
      const QRect a(before->mapTo(&window, QPoint()), before->size());
      const QRect b(stop->mapTo(&window, QPoint()), stop->size());
      const bool one_line = a.top() <= b.bottom() && b.top() <= a.bottom();
      const bool backwards = b.right() < a.left() && one_line;
      const bool upwards = b.bottom() < a.top() && b.left() <= a.right();
      EXPECT_FALSE(backwards || upwards)
          << before->objectName().toStdString() << ", then " << stop->objectName().toStdString();
    }
  });
}

TEST_F(WindowsAccessTest, TabReachesEveryControlThatTakesAHand) {
  ForEachPage([](const QWidget& window) {
    const std::vector<QWidget*> stops = Stops(window);
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const bool takes_a_hand = qobject_cast<QAbstractButton*>(widget) != nullptr ||
                                qobject_cast<QLineEdit*>(widget) != nullptr ||
                                qobject_cast<QComboBox*>(widget) != nullptr ||
                                qobject_cast<QAbstractItemView*>(widget) != nullptr ||
                                qobject_cast<QPlainTextEdit*>(widget) != nullptr ||
                                qobject_cast<QTabBar*>(widget) != nullptr;
      const bool control = takes_a_hand && !widget->objectName().isEmpty() &&
                           !widget->objectName().startsWith(u"qt_") && widget->window() == &window;
      if (!control || !widget->isVisible() || !widget->isEnabled()) continue;
      EXPECT_NE(std::find(stops.begin(), stops.end(), widget), stops.end())
          << window.objectName().toStdString() << ' ' << widget->objectName().toStdString();
    }
  });
}

// True if a mnemonic leads to `stop`: its own, its label's or its group's.
bool HasMnemonic(const QWidget& window, QWidget& stop) {
  const auto marked = [](const QString& text) { return !QKeySequence::mnemonic(text).isEmpty(); };
  if (const auto* button = qobject_cast<QAbstractButton*>(&stop); button != nullptr) {
    if (marked(button->text())) return true;
  }
  if (qobject_cast<QTabBar*>(&stop) != nullptr) return true;
  for (const auto* label : window.findChildren<QLabel*>()) {
    const QWidget* buddy = label->buddy();
    if (buddy == nullptr || !label->isVisible() || !marked(label->text())) continue;
    if (buddy == &stop || buddy->focusProxy() == &stop) return true;
  }
  for (QWidget* part = stop.parentWidget(); part != nullptr; part = part->parentWidget()) {
    const auto* group = qobject_cast<QGroupBox*>(part);
    if (group != nullptr && marked(group->title())) return true;
  }
  return false;
}

TEST_F(WindowsAccessTest, EveryStopHasAMnemonicAndEachMnemonicIsUnique) {
  ForEachPage([](const QWidget& window) {
    std::set<QString> given;
    const auto take = [&given](const QString& text) {
      const QString key = QKeySequence::mnemonic(text).toString();
      EXPECT_TRUE(key.isEmpty() || given.insert(key).second) << text.toStdString();
    };
    for (const auto* widget : window.findChildren<QWidget*>()) {
      if (!widget->isVisible()) continue;
      if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
        for (int tab = 0; tab < bar->count(); ++tab) {
          if (!bar->isTabVisible(tab)) continue;
          EXPECT_FALSE(QKeySequence::mnemonic(bar->tabText(tab)).isEmpty());
          take(bar->tabText(tab));
        }
      } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        take(button->text());
      } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        if (label->buddy() != nullptr) take(label->text());
      } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
        take(group->title());
      }
    }
    if (window.objectName() == kGroups) return;  // more boxes than letters: they have Tab
    for (QWidget* stop : Stops(window)) {
      if (qobject_cast<QAbstractSpinBox*>(stop) != nullptr) continue;  // beside its box
      EXPECT_TRUE(HasMnemonic(window, *stop))
          << stop->metaObject()->className() << ' ' << stop->objectName().toStdString();
    }
  });
}

TEST_F(WindowsAccessTest, EveryTextHasRoomInLettersOfAnySize) {
  int line = 0;
  for (const double points : {9.0, 12.0, 18.0}) {
    SCOPED_TRACE(points);
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    QApplication::setFont(font);
    ForEachControl([](QWidget& widget) {
      const QFontMetrics letters = widget.fontMetrics();
      EXPECT_GE(widget.font().pointSizeF(), QApplication::font().pointSizeF());
      const QRect& in = widget.parentWidget()->rect();
      EXPECT_TRUE(in.contains(widget.geometry()));
      QString text;
      if (const auto* button = qobject_cast<QAbstractButton*>(&widget)) {
        text = desktop::PlainCaption(button->text());
      }
      // Air above and below the letters, also of large ones.
      if (!text.isEmpty() && qobject_cast<QPushButton*>(&widget) != nullptr) {
        EXPECT_GE(widget.height() * 4, letters.height() * 7);
      }
      if (const auto* label = qobject_cast<QLabel*>(&widget)) {
        // Without a field to lead to, a label marks no letter and an "&" stands for itself.
        text = label->buddy() == nullptr ? label->text() : desktop::PlainCaption(label->text());
      }
      const auto* box = qobject_cast<QLineEdit*>(&widget);
      if (box != nullptr && box->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed) {
        text = box->text();
      }
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
