// The real port, on pseudo-terminals: opening, settings, events, and lines that go away.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <tuple>

#include "desktop/own_line.h"
#include "machine/port_names.h"
#include "machine/qt_serial_port.h"
#include "platform/platform.h"

namespace corvalis::test {
namespace {

namespace fs = std::filesystem;

using machine::QtSerialPort;

// An administrator may open everything, so the tests of what may not be opened are somebody else.
class AsNobody {
 public:
  AsNobody() : user_(geteuid()) {
    if (user_ == 0 && seteuid(kNobody) != 0) throw std::runtime_error("no other user");
  }
  ~AsNobody() { EXPECT_EQ(seteuid(user_), 0); }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t user_;
};

class PortTest : public testing::Test {
 protected:
  PortTest() {
    chmod(folder.c_str(), 0755);  // for somebody else too
    machine.settings_folder = folder;
    InstallPlatform(&machine);
  }
  ~PortTest() override { InstallPlatform(nullptr); }

  [[nodiscard]] std::string Link() const { return folder + "/com1"; }
  // Plugs a line in, in place of the last.
  void Join(const OwnLine& line) {
    fs::remove(Link());
    fs::create_symlink(line.Path(), Link());
  }
  std::unique_ptr<OwnLine> OpenLine() {
    auto line = std::make_unique<OwnLine>();
    Join(*line);
    EXPECT_FALSE(port.SetPortOpen(true));
    return line;
  }
  void ExpectRefusal(const std::string& device, const char* words) {
    const PortError error = port.SetPortOpen(true);
    EXPECT_NE(error.number, 0);
    EXPECT_EQ(error.description, "COM 1 (" + device + "): " + words);
    EXPECT_FALSE(port.PortOpen());
  }
  // Lets events run until `done`; the test's own time-out ends what never comes.
  static void RunUntil(const std::function<bool()>& done) {
    while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

  QTemporaryDir temporary;
  const std::string folder = temporary.path().toStdString();
  Platform machine;
  QtSerialPort port;
};

TEST_F(PortTest, NamesTheDeviceOfEachPort) {
  const std::string devices = folder + "/dev";
  fs::create_directory(devices);
  const auto device = [&](int number) { return machine::DeviceOfPort(number, folder, devices); };
  EXPECT_EQ(device(4), devices + "/ttyS3");
  std::ofstream(devices + "/ttyUSB3").flush();
  EXPECT_EQ(device(4), devices + "/ttyUSB3");
  std::ofstream(devices + "/ttyUSB1").flush();
  fs::create_symlink("dev/ttyUSB3", folder + "/adapter");
  fs::create_symlink("adapter", folder + "/com2");
  EXPECT_EQ(device(2), devices + "/ttyUSB3");
  fs::create_symlink("dev/gone", Link());  // leads nowhere, and stands for what is to come there
  EXPECT_EQ(device(1), devices + "/gone");
}

TEST_F(PortTest, SaysWhyItCannotOpen) {
  fs::create_symlink("/dev/no-such-line", Link());
  ExpectRefusal("/dev/no-such-line", "No such file or directory");
  fs::remove(Link());
  std::ofstream(Link()).flush();
  ExpectRefusal(Link(), "Inappropriate ioctl for device");
  const OwnLine line;
  Join(line);
  chmod(line.Path().c_str(), 0);
  const AsNobody nobody;
  ExpectRefusal(line.Path(), "Permission denied");
}

TEST_F(PortTest, KeepsTheLineForItselfAndLeavesItToTheProgramThatHasIt) {
  const auto line = OpenLine();
  QtSerialPort second;
  const std::string busy = "COM 1 (" + line->Path() + "): Device or resource busy";
  EXPECT_EQ(second.SetPortOpen(true).description, busy);
  {
    const AsNobody nobody;
    chmod(line->Path().c_str(), 0666);
    EXPECT_EQ(open(line->Path().c_str(), O_RDWR | O_NOCTTY), -1);
  }
  ASSERT_FALSE(port.SetPortOpen(false));
  EXPECT_FALSE(line->Settings().c_cflag & HUPCL);  // a call stays up while the port is reopened

  const int other = open(line->Path().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  ASSERT_EQ(ioctl(other, TIOCEXCL), 0);
  ExpectRefusal(line->Path(), "Device or resource busy");
  ioctl(other, TIOCNXCL);
  close(other);
  EXPECT_FALSE(second.SetPortOpen(true));
}

TEST_F(PortTest, BringsItsSettingsToTheLine) {
  const std::tuple<const char*, speed_t, bool> cases[] = {{"2400,N,8,2", B2400, true},
                                                          {"4800,E,8,1", B4800, false},
                                                          {"9600,O,8,1", B9600, false},
                                                          {"19200,N,8,1", B19200, false}};
  ASSERT_FALSE(port.SetSettings("4800,N,8,2"));  // before the opening too
  const auto line = OpenLine();
  EXPECT_EQ(line->Settings().c_ospeed, B4800);
  EXPECT_TRUE(line->Settings().c_cflag & CSTOPB);
  for (const auto& [text, speed, two_stop_bits] : cases) {
    EXPECT_FALSE(port.SetSettings(text)) << text;
    EXPECT_EQ(line->Settings().c_ospeed, speed) << text;
    EXPECT_EQ((line->Settings().c_cflag & CSTOPB) != 0, two_stop_bits) << text;
    EXPECT_EQ(line->Settings().c_lflag & (ICANON | ECHO), 0U);
  }
  for (const char* wrong : {"", "9600,N,8", "0,N,8,1", "9600,X,8,1", "9600,N,8,3", "9600,N,8,1,"}) {
    EXPECT_TRUE(port.SetSettings(wrong)) << wrong;
  }
  EXPECT_EQ(port.Settings(), "19200,N,8,1");
  EXPECT_FALSE(port.SetRTSEnable(true));  // a line without modem lines
  EXPECT_TRUE(port.PortOpen());
}

TEST_F(PortTest, RaisesReceiveEventsInsideThePumpAlone) {
  const auto line = OpenLine();
  int events = 0;
  port.CommEventRaised = [&] { ++events; };
  port.SetRThreshold(3);
  line->Send({1, 2});
  RunUntil([&] { return port.InBufferCount() == 2; });
  line->Send({3});
  EXPECT_EQ(events, 0);
  RunUntil([&] { return events > 0; });
  EXPECT_EQ(port.CommEvent(), kCommEventReceive);
  port.SetInputLen(2);
  EXPECT_EQ(port.Input(), (Bytes{1, 2}));
  port.SetInputLen(0);
  EXPECT_EQ(port.Input(), (Bytes{3}));

  line->Send({4, 5, 6});
  EXPECT_FALSE(port.ClearInput());  // also what nobody has fetched from the line yet
  line->Send({7, 8, 9});
  RunUntil([&] { return events > 1; });
  EXPECT_EQ(port.Input(), (Bytes{7, 8, 9}));

  port.SetRThreshold(0);
  line->Send(Bytes(3000, 1));
  RunUntil([&] { return port.InBufferCount() == 1024; });
  EXPECT_EQ(events, 2);
}

TEST_F(PortTest, OutputWaitsForTheLineAndLetsEventsRun) {
  const auto line = OpenLine();
  Bytes bytes(100'000);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<std::uint8_t>(i * 7 / 3);
  Bytes received;
  QSocketNotifier reader(line->Descriptor(), QSocketNotifier::Read);
  QObject::connect(&reader, &QSocketNotifier::activated, &reader, [&] {
    const Bytes more = line->Receive();
    received.insert(received.end(), more.begin(), more.end());
  });
  EXPECT_FALSE(port.Output(bytes));
  RunUntil([&] { return received.size() >= bytes.size(); });
  EXPECT_EQ(received, bytes);
}

TEST_F(PortTest, AVanishedLineClosesThePort) {
  // In the middle of an output that nobody reads ...
  auto line = OpenLine();
  QTimer::singleShot(0, [&] { line->Unplug(); });
  EXPECT_EQ(port.Output(Bytes(100'000)).number, kPortNotOpen);
  EXPECT_FALSE(port.PortOpen());
  EXPECT_EQ(port.ClearInput().number, kPortNotOpen);
  // ... seen at the write itself ...
  line = OpenLine();
  line->Unplug();
  EXPECT_EQ(port.Output(Bytes{1}).number, kPortNotOpen);
  EXPECT_FALSE(port.PortOpen());
  // ... and while nothing is done.
  line = OpenLine();
  line->Unplug();
  RunUntil([&] { return !port.PortOpen(); });
}

}  // namespace
}  // namespace corvalis::test
