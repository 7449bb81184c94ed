#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desktop/coder_process.h"
#include "desktop/program.h"
#include "desktop/tour/hand.h"

namespace corvalis::test {

using Lines = std::vector<std::string>;

/// The windows, by their names.
inline const QString kMain = QStringLiteral("MainForm");
inline const QString kStation = QStringLiteral("CtTpDiPiForm");
inline const QString kTexts = QStringLiteral("PsnRtPinAfForm");
inline const QString kConnection = QStringLiteral("ConnectionForm");
inline const QString kNetworks = QStringLiteral("EonLiForm");
inline const QString kChannels = QStringLiteral("TdcIhForm");
inline const QString kOnAir = QStringLiteral("TaPtyMsForm");
inline const QString kGroups = QStringLiteral("EditGroupsForm");
inline const QString kSetup = QStringLiteral("RS232CForm");
inline const QString kTransfer = QStringLiteral("SerialCommunicationForm");
inline const QString kWait = QStringLiteral("WaitForm");

/// A file for a two-way line at port 1 that any `corvalis-coder` understands.
inline constexpr const char* kLocalFile =
    "[Serial Setup]\nSatellite=Off\nSerialPort=1\nBaudrate=9600\nParity=N\nStopBit=2\n";

/// Frames that a Coder on a two-way line answers while the program starts: the ENQ and the counts.
inline constexpr int kAnswersOfStart = 11;

/// The program in folders of its own, with an operator's hand on its real windows and a simulated
/// Coder at its real port.
class RunningProgram : public testing::Test {
 protected:
  RunningProgram();
  ~RunningProgram() override;

  /// Puts a `corvalis-coder` with these options at port `number`, before the program starts.
  void PlugCoder(const QStringList& options, int number = 1);
  /// Has port 1 lead to a device, or to nothing.
  void Plug(const std::string& device) const;
  /// Starts the program with this text as its default file.
  void Start(const std::string& default_file);
  /// The two, for the usual case; what ran before ends.
  void StartWithCoder(const QStringList& options, const std::string& default_file = kLocalFile);

  /// Files of the program's own folder.
  void WriteFile(const std::string& name, const std::string& text) const;
  [[nodiscard]] std::string ReadFile(const std::string& name) const;

  /// Opens the screen of one value each, at the page of PI, ECC and LIC.
  void OpenIdentity() const;

  /// The window of that name, if it is on the screen; else null.
  [[nodiscard]] static QWidget* OnScreen(const QString& name);
  /// A press of the window's close box. What the program makes of it is another matter.
  static void PressCloseBox(const QString& name);
  /// A click on a control of a window that lies beneath another.
  static void ClickBeneath(const QString& window, const QString& control);
  /// Presses the close boxes of these windows. They must stay.
  static void ExpectNotToClose(const QStringList& windows);
  /// Does `work`, and `ExpectNotToClose` all the while that the wait screen is up, as it must be.
  static void InHaste(const QStringList& windows, const std::function<void()>& work);
  /// A key for whatever has the keyboard.
  static void Press(Qt::Key key);
  /// Alt and the letter that is marked in `text`.
  static void StrikeMnemonic(const QString& text);
  [[nodiscard]] static QString Focus();
  [[nodiscard]] bool Usable(const QString& window, const QString& control) const;

  /// The texts of the boxes shown since the last look. At the end of a test there must be none.
  [[nodiscard]] Lines Boxes() { return std::exchange(boxes_, {}); }

  /// The body of an item in the Coder's memory ("PI 00"), as a text; empty if it has none.
  [[nodiscard]] std::string Held(const std::string& item);

  desktop::Hand hand{{}};
  std::unique_ptr<CoderProcess> coder;
  std::unique_ptr<desktop::Program> program;
  /// What to do while a box is shown. Each is answered at once, then, by the key ESC.
  std::function<void()> during_box;
  int beeps = 0;
  /// What to do once when the next transfer screen is up.
  std::function<void()> during_transfer;

 private:
  class Watcher;
  class Ear;

  void End();
  [[nodiscard]] std::string LinkOf(int number) const;
  void TearDown() override { EXPECT_EQ(Boxes(), Lines{}); }

  QTemporaryDir temporary_;
  const std::string folder_ = temporary_.path().toStdString();
  Lines boxes_;
  std::unique_ptr<Watcher> watcher_;
  std::unique_ptr<Ear> ear_;
};

}  // namespace corvalis::test
