// The time from a frame to the Coder's ACK in the real program, with and without the air beside it,
// and the processor time and memory that the air costs.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "link/frame.h"

namespace corvalis {
namespace {

using Clock = std::chrono::steady_clock;

// The program, and the line to it.
class RunningCoder {
 public:
  explicit RunningCoder(const std::vector<std::string>& options) {
    std::array<int, 2> out{};
    if (pipe(out.data()) != 0) throw std::runtime_error("no pipe");
    process_ = fork();
    if (process_ == 0) {
      dup2(out[1], STDOUT_FILENO);
      std::vector<std::string> words = {CORVALIS_CODER_PROGRAM, "--open"};
      words.insert(words.end(), options.begin(), options.end());
      std::vector<char*> arguments;
      for (std::string& word : words) arguments.push_back(word.data());
      arguments.push_back(nullptr);
      execv(arguments[0], arguments.data());
      _exit(127);
    }
    close(out[1]);
    std::string ready;
    for (char c = 0; read(out[0], &c, 1) == 1 && c != '\n';) ready += c;
    out_ = out[0];
    line_ = open(ready.substr(ready.find('/')).c_str(), O_RDWR | O_NOCTTY);
    if (line_ < 0) throw std::runtime_error("no line");
  }
  ~RunningCoder() {
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
    close(line_);
    close(out_);
  }
  RunningCoder(const RunningCoder&) = delete;
  RunningCoder& operator=(const RunningCoder&) = delete;

  // Microseconds from a frame written to its ACK.
  [[nodiscard]] double Exchange() const {
    std::vector<std::uint8_t> frame = {kStart, 0x01, 0, '5', '2', '0', '1', kEnd};
    frame.push_back(FrameChecksum(frame));
    const auto begun = Clock::now();
    std::uint8_t answer = 0;
    if (write(line_, frame.data(), frame.size()) < 0 || read(line_, &answer, 1) != 1 ||
        answer != kAck) {
      throw std::runtime_error("no ACK");
    }
    return std::chrono::duration<double, std::micro>(Clock::now() - begun).count();
  }

  // Of the process: seconds of the processor, and kilobytes held at the most.
  [[nodiscard]] double Processor() const {
    std::ifstream file("/proc/" + std::to_string(process_) + "/schedstat");
    double nanoseconds = 0;
    file >> nanoseconds;
    return nanoseconds / 1e9;
  }
  [[nodiscard]] double Memory() const {
    std::ifstream file("/proc/" + std::to_string(process_) + "/status");
    for (std::string word; file >> word;) {
      if (word != "VmHWM:") continue;
      double kilobytes = 0;
      file >> kilobytes;
      return kilobytes;
    }
    return 0;
  }

 private:
  pid_t process_ = 0;
  int line_ = -1;
  int out_ = -1;
};

// A FIFO that somebody reads.
class Listening {
 public:
  explicit Listening(const char* name)
      : path_(std::filesystem::temp_directory_path() / (name + std::to_string(getpid()))) {
    mkfifo(path_.c_str(), 0600);
    reader_ = open(path_.c_str(), O_RDONLY | O_NONBLOCK);
    thread_ = std::thread([this] {
      std::array<char, 65536> bytes{};
      while (!over_) {
        pollfd polled{reader_, POLLIN, 0};
        poll(&polled, 1, 20);
        if (read(reader_, bytes.data(), bytes.size()) == 0) {
          std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
      }
    });
  }
  ~Listening() {
    over_ = true;
    thread_.join();
    close(reader_);
    std::filesystem::remove(path_);
  }
  Listening(const Listening&) = delete;
  Listening& operator=(const Listening&) = delete;
  [[nodiscard]] std::string Path() const { return path_; }

 private:
  std::filesystem::path path_;
  int reader_ = -1;
  std::atomic<bool> over_ = false;
  std::thread thread_;
};

std::vector<std::string> Options(int air, const Listening& text, const Listening& signal) {
  std::vector<std::string> options;
  if (air >= 1) options.insert(options.end(), {"--air", text.Path()});
  if (air >= 2) options.insert(options.end(), {"--mpx", signal.Path()});
  return options;
}

// 0: no air; 1: as text; 2: as text and signal.
void BM_FrameToAck(benchmark::State& state) {
  const Listening text("corvalis-text");
  const Listening signal("corvalis-signal");
  const RunningCoder coder(Options(static_cast<int>(state.range(0)), text, signal));
  std::vector<double> times;
  for (auto _ : state) {
    times.push_back(coder.Exchange());
    state.SetIterationTime(times.back() / 1e6);
  }
  std::ranges::sort(times);
  const auto part = [&times](double p) {
    return times[static_cast<std::size_t>(p * static_cast<double>(times.size() - 1))];
  };
  state.counters["median_us"] = part(0.5);
  state.counters["p99_us"] = part(0.99);
  state.counters["worst_us"] = times.back();
}
BENCHMARK(BM_FrameToAck)->DenseRange(0, 2)->Iterations(30000)->UseManualTime();

void BM_OnTheAir(benchmark::State& state) {
  constexpr std::chrono::seconds kTime{10};
  const Listening text("corvalis-text");
  const Listening signal("corvalis-signal");
  const RunningCoder coder(Options(static_cast<int>(state.range(0)), text, signal));
  for (auto _ : state) {
    const double before = coder.Processor();
    std::this_thread::sleep_for(kTime);
    state.counters["percent_of_a_core"] =
        100 * (coder.Processor() - before) / std::chrono::duration<double>(kTime).count();
    state.counters["memory_kB"] = coder.Memory();
  }
}
BENCHMARK(BM_OnTheAir)->DenseRange(0, 2)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace corvalis

BENCHMARK_MAIN();
