#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "coder/coder.h"
#include "coder/line.h"
#include "platform/platform.h"

namespace corvalis::test {

using Bytes = std::vector<std::uint8_t>;

/// A clock that stands still until a wait makes it jump, and the pump of those waits. What is to
/// happen later stands in a schedule, on the steady clock.
class JumpingTime : public Clock, public Pump {
 public:
  [[nodiscard]] double Timer() const override;
  [[nodiscard]] double Steady() const override { return steady_; }
  [[nodiscard]] DateTime Now() const override;
  void RunPending() override;
  void RunUntil(double deadline) override;

  /// Puts the time of day at `seconds` after midnight; the steady clock does not notice.
  void SetTimer(double seconds) { now_ = seconds; }
  /// So many seconds pass with nobody handling what comes in them.
  void Stall(double seconds) { JumpTo(steady_ + seconds); }
  /// `event` is to run, inside a pump, `seconds` from now.
  void After(double seconds, std::function<void()> event);
  /// Seconds that all waits have taken so far.
  [[nodiscard]] double Elapsed() const { return steady_; }

 private:
  bool RunDue();
  void JumpTo(double steady);

  double steady_ = 0;       // since the test began
  double now_ = 12 * 3600;  // the time of day, counting on beyond midnight
  std::multimap<double, std::function<void()>> schedule_;
};

/// Boxes and beeps, as the operator would have seen and heard them.
class RecordedDialogs : public Dialogs {
 public:
  void Show(const Box& box) override {
    boxes.push_back(box);
    if (Shown) Shown();
  }
  void Beep() override { ++beeps; }

  std::vector<Box> boxes;
  int beeps = 0;
  std::function<void()> Shown;
};

/// A port whose line ends at a simulated Coder in memory. Every `Output` is kept.
class MemoryPort : public SerialPort {
 public:
  explicit MemoryPort(JumpingTime& time) : time_(time) {}

  PortError SetCommPort(int number) override;
  [[nodiscard]] int CommPort() const override { return number_; }
  PortError SetPortOpen(bool open) override;
  [[nodiscard]] bool PortOpen() const override { return open_; }
  PortError SetSettings(const std::string& settings) override;
  [[nodiscard]] std::string Settings() const override { return settings_; }
  PortError SetInputLen(int length) override;
  PortError SetInputMode(int mode) override;
  PortError SetRThreshold(int bytes) override;
  PortError SetRTSEnable(bool on) override;
  [[nodiscard]] int InBufferCount() const override { return static_cast<int>(input_.size()); }
  PortError ClearInput() override;
  std::vector<std::uint8_t> Input() override;
  PortError Output(std::span<const std::uint8_t> bytes) override;
  [[nodiscard]] int CommEvent() const override { return comm_event_; }

  /// What lies at the other end; null for nobody.
  coder::Line* line = nullptr;
  /// Instead of a Coder: gets each output and gives the answer.
  std::function<Bytes(const Bytes&)> answer;
  /// Where the other end can be heard, by port number and settings; null for everywhere.
  std::function<bool(int number, const std::string& settings)> heard_on;
  /// Errors of opening, by port number.
  std::map<int, std::string> missing;
  /// Everything that was done to the port, in order: "CommPort 1", "ClearInput", "Output 9" ...
  std::vector<std::string> operations;
  /// The operation that fails, in the same words.
  std::string refused;
  /// Everything that was written, one entry for each `Output`.
  std::vector<Bytes> written;
  /// The next `Output` fails with this.
  PortError output_error;
  /// Runs at the end of each `Output`.
  std::function<void()> Wrote;

  /// Bytes come from the line, and the receive event with them.
  void Receive(const Bytes& bytes, int event = kCommEventReceive);

 private:
  PortError Do(const std::string& operation);

  JumpingTime& time_;
  int number_ = 1;
  bool open_ = false;
  std::string settings_ = "9600,N,8,1";
  int threshold_ = 0;
  int comm_event_ = 0;
  std::vector<std::uint8_t> input_;
};

/// A platform of a test's own, in folders of its own, with a link that nobody has opened.
class MachineTest : public testing::Test {
 protected:
  MachineTest();
  ~MachineTest() override;

  [[nodiscard]] std::string ProgramFile() const { return machine.program_folder + "/corvalis.rds"; }
  static void WriteFile(const std::string& path, const std::string& text);
  [[nodiscard]] static std::string ReadFile(const std::string& path);

  JumpingTime time;
  RecordedDialogs dialogs;
  MemoryPort port{time};
  ProfileStore profiles;
  Platform machine;
  std::string folder;  ///< removed at the end
};

/// A Coder on the line, and a station record and texts of the test's own.
class LinkTest : public MachineTest {
 protected:
  /// `file` is the text of the default configuration file.
  void Start(const std::string& file, coder::Faults faults = {}, bool open = true);
  /// Opens the port for the record.
  void Open();
  ~LinkTest() override;

  std::unique_ptr<coder::Coder> the_coder;
  std::unique_ptr<coder::Line> line;

  static constexpr const char* kLocal = "[Serial Setup]\r\nSatellite=Off\r\n";
  static constexpr const char* kSatellite = "[Serial Setup]\r\nSatellite=On\r\n";
};

/// "02 01 00" as bytes.
[[nodiscard]] Bytes Hex(const std::string& text);

}  // namespace corvalis::test
