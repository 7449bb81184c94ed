// The time from a Coder's ACK to the next frame on the wire, with a plain read and write on the
// same kind of line beside it, and the processor time of a wait for a Coder that is silent.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <termios.h>
#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "config/config_data.h"
#include "desktop/qt_dialogs.h"
#include "link/serial_management.h"
#include "machine/qt_serial_port.h"
#include "machine/qt_time.h"
#include "platform/platform.h"

namespace corvalis {
namespace {

using SteadyClock = std::chrono::steady_clock;

constexpr int kFrames = 2000;
constexpr std::size_t kFrameBytes = 15;

// A pseudo-terminal, seen from the Coder's end.
class Terminal {
 public:
  Terminal() : master_(posix_openpt(O_RDWR | O_NOCTTY)) {
    std::array<char, 64> name{};
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0 ||
        ptsname_r(master_, name.data(), name.size()) != 0) {
      throw std::runtime_error("no pseudo-terminal");
    }
    path_ = name.data();
    slave_ = open(path_.c_str(), O_RDWR | O_NOCTTY);
    termios raw{};
    tcgetattr(slave_, &raw);
    cfmakeraw(&raw);
    tcsetattr(slave_, TCSANOW, &raw);
  }
  ~Terminal() {
    close(slave_);
    close(master_);
  }
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  [[nodiscard]] const std::string& Path() const { return path_; }
  [[nodiscard]] int Slave() const { return slave_; }

  // Acknowledges `frames` frames. Returns the microseconds from each acknowledgement to the first
  // byte of the frame that follows it.
  [[nodiscard]] std::vector<double> Acknowledge(int frames) const {
    std::vector<double> times;
    std::array<std::uint8_t, kFrameBytes> frame{};
    SteadyClock::time_point sent;
    for (int i = 0; i < frames; ++i) {
      std::size_t got = 0;
      while (got < frame.size()) {
        const ssize_t count = read(master_, frame.data() + got, frame.size() - got);
        if (count <= 0) return times;
        if (got == 0 && i > 0) {
          const std::chrono::duration<double, std::micro> time = SteadyClock::now() - sent;
          times.push_back(time.count());
        }
        got += static_cast<std::size_t>(count);
      }
      sent = SteadyClock::now();
      if (write(master_, &kAck, 1) != 1) return times;
    }
    return times;
  }

 private:
  int master_;
  int slave_ = -1;
  std::string path_;
};

// Everything the link needs of a machine, with COM 1 at the terminal.
class LinkBench {
 public:
  explicit LinkBench(const Terminal& terminal) {
    std::string folder =
        (std::filesystem::temp_directory_path() / "corvalis-bench-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr) throw std::runtime_error("no temporary folder");
    machine_.clock = &time_;
    machine_.pump = &time_;
    machine_.dialogs = &dialogs_;
    machine_.profiles = &profiles_;
    machine_.port = &port_;
    machine_.program_folder = folder;
    machine_.settings_folder = folder;
    InstallPlatform(&machine_);
    std::filesystem::create_symlink(terminal.Path(), folder + "/com1");
    configData = new ConfigData;
    configData->SetSatellite(false);
    port_.CommEventRaised = OnComm;
    AutoSettingActive = true;  // no boxes
    OpenLink(port_);
    if (!LinkOpen) throw std::runtime_error("the port does not open");
  }
  ~LinkBench() {
    ReleaseLink();
    delete configData;
    configData = nullptr;
    InstallPlatform(nullptr);
    std::filesystem::remove_all(machine_.settings_folder);
  }
  LinkBench(const LinkBench&) = delete;
  LinkBench& operator=(const LinkBench&) = delete;

 private:
  machine::QtTime time_;
  desktop::QtDialogs dialogs_;
  ProfileStore profiles_;
  machine::QtSerialPort port_;
  Platform machine_;
};

void Report(benchmark::State& state, std::vector<double> times) {
  if (times.empty()) {
    state.SkipWithError("nothing came");
    return;
  }
  std::sort(times.begin(), times.end());
  const auto at = [&times](std::size_t percent) {
    return times[(times.size() - 1) * percent / 100];
  };
  state.counters["median_us"] = at(50);
  state.counters["p95_us"] = at(95);
  state.counters["p99_us"] = at(99);
}

std::vector<std::uint8_t> AnyFrame() {
  std::vector<std::uint8_t> frame(kFrameBytes);
  frame[0] = kStart;
  frame[1] = static_cast<std::uint8_t>(CommandCode::kPsn);
  frame[frame.size() - 2] = kEnd;
  return frame;
}

// Runs `send` for each frame, with a Coder that acknowledges at the other end.
template <typename Send>
void MeasureFrames(benchmark::State& state, const Terminal& terminal, Send send) {
  std::vector<double> times;
  for (auto _ : state) {
    std::vector<double> run;
    std::thread coder([&] { run = terminal.Acknowledge(kFrames); });
    for (int i = 0; i < kFrames; ++i) send();
    coder.join();
    times.insert(times.end(), run.begin(), run.end());
  }
  Report(state, times);
}

void AckToNextFrame(benchmark::State& state) {
  const Terminal terminal;
  const LinkBench link(terminal);
  std::vector<std::uint8_t> frame = AnyFrame();
  MeasureFrames(state, terminal, [&] { TransferFrame(frame); });
  if (LinkError != kLinkOk) state.SkipWithError("a frame failed");
}
BENCHMARK(AckToNextFrame)->Iterations(3)->Unit(benchmark::kMillisecond);

void AckToNextFramePlain(benchmark::State& state) {
  const Terminal terminal;
  const std::vector<std::uint8_t> frame = AnyFrame();
  MeasureFrames(state, terminal, [&] {
    std::uint8_t answer = 0;
    if (write(terminal.Slave(), frame.data(), frame.size()) < 0) std::abort();
    if (read(terminal.Slave(), &answer, 1) != 1) std::abort();
  });
}
BENCHMARK(AckToNextFramePlain)->Iterations(3)->Unit(benchmark::kMillisecond);

void RunPendingWithNothingPending(benchmark::State& state) {
  machine::QtTime time;
  for (auto _ : state) time.RunPending();
}
BENCHMARK(RunPendingWithNothingPending);

double ProcessorSeconds() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
  };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void WaitForSilentCoder(benchmark::State& state) {
  const Terminal terminal;
  const LinkBench link(terminal);
  std::vector<std::uint8_t> frame = AnyFrame();
  const double before = ProcessorSeconds();
  const auto start = SteadyClock::now();
  for (auto _ : state) TransferFrame(frame);
  const std::chrono::duration<double> took = SteadyClock::now() - start;
  const double used = ProcessorSeconds() - before;
  state.counters["processor_ms"] = used * 1e3;
  state.counters["percent_of_a_core"] = used / took.count() * 100;
  if (LinkError != kErrorTxTimeout) state.SkipWithError("no time-out");
}
BENCHMARK(WaitForSilentCoder)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace corvalis

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
