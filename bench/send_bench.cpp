// What sends unattended, as a process on a pseudo-terminal: the time from a command to its first
// byte on the line, from a cold start and in the service; and ten clients that send a thousand
// lines a second for ten seconds: the service's memory, and how far TA was behind.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "coder/coder.h"

namespace corvalis {
namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration time) {
  return std::chrono::duration<double, std::milli>(time).count();
}

// A folder with a station file of a two-way link, and the Coder's end of its line.
class Site {
 public:
  Site() : master_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    std::string name = (std::filesystem::temp_directory_path() / "corvalis-bench-XXXXXX").string();
    std::array<char, 64> terminal{};
    if (mkdtemp(name.data()) == nullptr || grantpt(master_) != 0 || unlockpt(master_) != 0 ||
        ptsname_r(master_, terminal.data(), terminal.size()) != 0) {
      throw std::runtime_error("no line");
    }
    folder = name;
    line = terminal.data();
    // Kept open, and raw, between the programs that use it.
    slave_ = open(line.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios raw{};
    tcgetattr(slave_, &raw);
    cfmakeraw(&raw);
    tcsetattr(slave_, TCSANOW, &raw);
    std::filesystem::copy_file(CORVALIS_EXAMPLE, folder + "/station.rds");
  }
  ~Site() {
    close(slave_);
    close(master_);
    std::filesystem::remove_all(folder);
  }
  Site(const Site&) = delete;
  Site& operator=(const Site&) = delete;

  [[nodiscard]] pid_t Start(std::vector<std::string> words) const {
    std::vector<std::string> all = {CORVALIS_SEND_PROGRAM, "--file", folder + "/station.rds",
                                    "--port", line};
    all.insert(all.end(), words.begin(), words.end());
    std::vector<char*> arguments;
    for (std::string& word : all) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
      execv(arguments[0], arguments.data());
      _exit(127);
    }
    return child;
  }

  // Bytes from the line, waiting for them at most ten seconds.
  [[nodiscard]] std::vector<std::uint8_t> Read() const {
    pollfd waits{master_, POLLIN, 0};
    std::vector<std::uint8_t> bytes(4096);
    const bool came = poll(&waits, 1, 10'000) == 1;
    const ssize_t count = came ? read(master_, bytes.data(), bytes.size()) : 0;
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    return bytes;
  }
  void Answer(const std::vector<std::uint8_t>& bytes) const {
    if (write(master_, bytes.data(), bytes.size()) < 0) std::abort();
  }
  // Takes what comes until `enough`, as a Coder.
  template <typename Enough>
  void Serve(coder::Coder& coder, Enough enough) const {
    while (!enough()) {
      const auto bytes = Read();
      if (bytes.empty()) throw std::runtime_error("nothing came");
      Answer(coder.Take(bytes));
    }
  }

  std::string folder;
  std::string line;

 private:
  int master_;
  int slave_ = -1;
};

int Connect(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(static_cast<char*>(address.sun_path), sizeof address.sun_path - 1);
  for (int tries = 0; tries < 1000; ++tries) {
    const int client = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
      return client;
    }
    close(client);
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  throw std::runtime_error("the service does not come up");
}

void Say(int client, const std::string& line) {
  if (write(client, line.data(), line.size()) < 0) std::abort();
}

void Report(benchmark::State& state, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  state.counters["median_ms"] = times[times.size() / 2];
  state.counters["p99_ms"] = times[(times.size() - 1) * 99 / 100];
}

void End(pid_t program) {
  kill(program, SIGTERM);
  waitpid(program, nullptr, 0);
}

void ColdCommandToFirstByte(benchmark::State& state) {
  const Site site;
  std::vector<double> times;
  for (auto _ : state) {
    coder::Coder coder;
    int frames = 0;
    coder.Happened = [&](const coder::Event&) { ++frames; };
    const auto start = Clock::now();
    const pid_t program = site.Start({"ta", "on"});
    const auto bytes = site.Read();
    times.push_back(Milliseconds(Clock::now() - start));
    site.Answer(coder.Take(bytes));
    site.Serve(coder, [&] { return frames == 3; });
    waitpid(program, nullptr, 0);
  }
  Report(state, times);
}
BENCHMARK(ColdCommandToFirstByte)->Iterations(100)->Unit(benchmark::kMillisecond);

void LineToFirstByteInTheService(benchmark::State& state) {
  const Site site;
  coder::Coder coder;
  int frames = 0;
  coder.Happened = [&](const coder::Event&) { ++frames; };
  const pid_t program = site.Start({"--listen", site.folder + "/socket"});
  const int client = Connect(site.folder + "/socket");
  site.Serve(coder, [&] { return frames == 2; });
  std::vector<double> times;
  for (auto _ : state) {
    const auto start = Clock::now();
    Say(client, "rt 1 \"Now: Blue Harbour - The Tides\"\n");
    const auto bytes = site.Read();
    times.push_back(Milliseconds(Clock::now() - start));
    const int before = frames;
    site.Answer(coder.Take(bytes));
    if (frames == before) site.Serve(coder, [&] { return frames > before; });
    std::array<char, 16> answer{};
    if (read(client, answer.data(), answer.size()) != 3) state.SkipWithError("no answer");
  }
  Report(state, times);
  close(client);
  End(program);
}
BENCHMARK(LineToFirstByteInTheService)->Iterations(2000)->Unit(benchmark::kMillisecond);

double MegabytesAtMost(pid_t program) {
  std::ifstream status("/proc/" + std::to_string(program) + "/status");
  double kilobytes = 0;
  for (std::string word; status >> word;) {
    if (word == "VmHWM:") status >> kilobytes;
  }
  return kilobytes / 1024;
}

// Ten clients of eleven items each at a hundred lines a second, and a Coder at 9600 bits a second.
void TenClientsAThousandLinesASecond(benchmark::State& state) {
  constexpr int kClients = 10;
  constexpr int kLines = 1000;  // of each
  constexpr auto kPause = std::chrono::milliseconds(10);
  const Site site;
  for (auto _ : state) {
    coder::Coder coder;
    std::atomic<int> frames = 0;
    std::atomic<Clock::rep> ta_asked = 0;  // the moment, of one that is not on the line yet
    std::vector<Clock::rep> begun;         // frames since the last TA
    std::ptrdiff_t ta_behind = 0;
    coder.Happened = [&](const coder::Event& event) {
      ++frames;
      if (event.received.size() < 2 || event.received[1] != 0x0E) return;
      begun.pop_back();
      const Clock::rep asked = ta_asked.exchange(0);
      if (asked != 0) {
        ta_behind = std::max(
            ta_behind, std::ranges::count_if(begun, [&](Clock::rep at) { return at > asked; }));
      }
      begun.clear();
    };
    const pid_t program = site.Start({"--listen", site.folder + "/socket"});
    std::atomic<bool> done = false;
    std::thread line([&] {
      while (!done) {
        const auto bytes = site.Read();
        if (bytes.empty()) continue;
        if (bytes[0] == 0x02) begun.push_back(Clock::now().time_since_epoch().count());
        constexpr double kSecondsPerByte = 11.0 / 9600;
        std::this_thread::sleep_for(
            std::chrono::duration<double>(kSecondsPerByte * static_cast<double>(bytes.size())));
        site.Answer(coder.Take(bytes));
      }
    });
    std::vector<std::thread> clients;
    std::atomic<int> answers = 0;
    for (int number = 0; number < kClients; ++number) {
      clients.emplace_back([&, number] {
        const int client = Connect(site.folder + "/socket");
        std::thread reader([&, client] {
          std::array<char, 4096> bytes{};
          for (ssize_t count = 1; count > 0;) {
            count = read(client, bytes.data(), bytes.size());
            answers += static_cast<int>(
                std::count(bytes.begin(), bytes.begin() + std::max<ssize_t>(count, 0), '\n'));
          }
        });
        auto next = Clock::now();
        for (int i = 0; i < kLines; ++i) {
          if (number == 0 && i % 10 == 0) {
            Say(client, i % 20 == 0 ? "ta on\n" : "ta off\n");
            Clock::rep none = 0;
            ta_asked.compare_exchange_strong(none, Clock::now().time_since_epoch().count());
          } else {
            Say(client, "rt " + std::to_string(number) + " \"" + std::to_string(i) + "\"\n");
          }
          std::this_thread::sleep_until(next += kPause);
        }
        shutdown(client, SHUT_WR);
        reader.join();
        close(client);
      });
    }
    for (std::thread& client : clients) client.join();
    const double megabytes = MegabytesAtMost(program);
    End(program);
    done = true;
    line.join();
    int newest = 0;
    for (int number = 0; number < kClients; ++number) {
      const auto held = coder.Item(0x07, number);
      newest += std::string(held->begin() + 2, held->begin() + 5) == "999" ? 1 : 0;
    }
    state.counters["megabytes"] = megabytes;
    state.counters["answers"] = answers.load();
    state.counters["newest_of_10"] = newest;
    state.counters["ta_frames_behind"] = static_cast<double>(ta_behind);
    state.counters["frames"] = frames.load();
  }
}
BENCHMARK(TenClientsAThousandLinesASecond)->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace corvalis

BENCHMARK_MAIN();
