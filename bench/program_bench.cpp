// The program as a person waits for it: from its start to the main menu, and Save and Open on the
// main menu. It runs on whatever screen Qt finds; a virtual one will do (xvfb-run), and without any
// it draws into memory (QT_QPA_PLATFORM=offscreen).

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include "desktop/program.h"

extern char** environ;

namespace {

namespace fs = std::filesystem;

/// Folders of the benchmark's own, with a terminal as COM 1 at which nobody answers. The default
/// configuration is for a one-way path, so nothing is waited for.
class Home {
 public:
  Home() : terminal_(posix_openpt(O_RDWR | O_NOCTTY)) {
    std::string name = (fs::temp_directory_path() / "corvalis-bench-XXXXXX").string();
    if (terminal_ < 0 || grantpt(terminal_) != 0 || unlockpt(terminal_) != 0 ||
        mkdtemp(name.data()) == nullptr) {
      throw std::runtime_error("no terminal or no folder");
    }
    folder_ = name;
    fs::create_directories(folder_ / "config/corvalis");
    fs::create_symlink(ptsname(terminal_), folder_ / "config/corvalis/com1");
    setenv("XDG_CONFIG_HOME", (folder_ / "config").c_str(), 1);
    setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
  }
  ~Home() {
    close(terminal_);
    fs::remove_all(folder_);
  }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;

  /// Gives the program this default configuration.
  void Configure(const std::string& text) const {
    fs::create_directories(folder_ / "data/corvalis");
    std::ofstream(File()) << text;
  }
  /// Gives it the sample station, with this in place of its "Satellite=Off".
  void ConfigureExample(const std::string& satellite) const {
    std::ifstream example(CORVALIS_EXAMPLE);
    std::string text{std::istreambuf_iterator<char>(example), {}};
    const std::string stands = "Satellite=Off";
    const std::size_t at = text.find(stands);
    if (at == std::string::npos) throw std::runtime_error("no sample station");
    Configure(text.replace(at, stands.size(), satellite));
  }
  [[nodiscard]] fs::path Port() const { return folder_ / "config/corvalis/com1"; }
  /// Makes every value of the default configuration another one, as a program did it long ago.
  void ChangeEveryValue() const {
    std::ifstream old(File());
    std::string changed;
    for (std::string line; std::getline(old, line);) {
      const std::size_t equals = line.find('=');
      if (equals != std::string::npos) line.insert(equals + 1, "#");
      changed += line + "\n";
    }
    old.close();
    std::ofstream(File(), std::ios::binary) << changed;
    fs::last_write_time(File(), fs::file_time_type::clock::now() - std::chrono::hours(1));
  }
  /// As before the first start: no configuration, no language file.
  void Forget() const { fs::remove_all(folder_ / "data"); }

 private:
  [[nodiscard]] fs::path File() const { return folder_ / "data/corvalis/corvalis.rds"; }

  int terminal_;
  fs::path folder_;
};

/// A Coder at the port of `home`, in the place of the terminal, which answers at once.
class AnsweringCoder {
 public:
  explicit AnsweringCoder(const Home& home) {
    fs::remove(home.Port());
    process_.start(QStringLiteral(CORVALIS_CODER_PROGRAM),
                   {"--open", "--link", QString::fromStdString(home.Port().string())});
    if (!process_.waitForReadyRead()) throw std::runtime_error("the Coder does not start");
  }
  ~AnsweringCoder() {
    process_.terminate();
    process_.waitForFinished();
  }
  AnsweringCoder(const AnsweringCoder&) = delete;
  AnsweringCoder& operator=(const AnsweringCoder&) = delete;

 private:
  QProcess process_;
};

void Start() {
  std::string program = CORVALIS_TOUR_PROGRAM;
  std::string only = "--start";
  char* words[] = {program.data(), only.data(), nullptr};
  pid_t child = 0;
  int status = 0;
  if (posix_spawn(&child, program.c_str(), nullptr, nullptr, words, environ) != 0 ||
      waitpid(child, &status, 0) != child || status != 0) {
    throw std::runtime_error("the program does not start");
  }
}

// The whole life of a process that ends as soon as its main menu has been painted.
void BM_StartToMainMenu(benchmark::State& state) {
  const Home home;
  const bool first = state.range(0) != 0;
  if (!first) Start();
  for (auto _ : state) {
    if (first) {
      state.PauseTiming();
      home.Forget();
      state.ResumeTiming();
    }
    Start();
  }
}
BENCHMARK(BM_StartToMainMenu)
    ->ArgName("first")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(10)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

// The same with the sample station, whose lists all ask the Coder for their counts.
void BM_StartWithCounts(benchmark::State& state) {
  const Home home;
  home.ConfigureExample("Satellite=Off");
  const AnsweringCoder coder(home);
  for (auto _ : state) Start();
}
BENCHMARK(BM_StartWithCounts)->Iterations(10)->UseRealTime()->Unit(benchmark::kMillisecond);

// What the sample station's own keys cost, without a Coder to ask.
void BM_StartWithExample(benchmark::State& state) {
  const Home home;
  home.ConfigureExample("Satellite=On");
  for (auto _ : state) Start();
}
BENCHMARK(BM_StartWithExample)->Iterations(10)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_SaveExample(benchmark::State& state) {
  const Home home;
  home.ConfigureExample("Satellite=Off");
  const AnsweringCoder coder(home);
  corvalis::desktop::Program program;
  program.Start();
  for (auto _ : state) {
    state.PauseTiming();
    home.ChangeEveryValue();
    state.ResumeTiming();
    program.Menu().SaveButton.Press();
  }
}
BENCHMARK(BM_SaveExample)->Iterations(100)->UseRealTime()->Unit(benchmark::kMillisecond);

// With the ENQ and all counts (1) or on a one-way path, that is, the file alone (0).
void BM_OpenExample(benchmark::State& state) {
  const Home home;
  const bool counts = state.range(0) != 0;
  home.ConfigureExample(counts ? "Satellite=Off" : "Satellite=On");
  const AnsweringCoder coder(home);
  corvalis::desktop::Program program;
  program.Start();
  program.Menu().SaveButton.Press();
  for (auto _ : state) program.Menu().OpenButton.Press();
}
BENCHMARK(BM_OpenExample)
    ->ArgName("counts")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(50)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

void BM_Save(benchmark::State& state) {
  const Home home;
  corvalis::desktop::Program program;
  program.Start();
  program.Menu().SaveButton.Press();
  for (auto _ : state) {
    state.PauseTiming();
    home.ChangeEveryValue();
    state.ResumeTiming();
    program.Menu().SaveButton.Press();
  }
}
BENCHMARK(BM_Save)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_Open(benchmark::State& state) {
  const Home home;
  corvalis::desktop::Program program;
  program.Start();
  program.Menu().SaveButton.Press();
  for (auto _ : state) program.Menu().OpenButton.Press();
}
BENCHMARK(BM_Open)->UseRealTime()->Unit(benchmark::kMillisecond);

// The main menu gets the keyboard back, and finds out whether anything is not saved.
void BM_MenuIsBack(benchmark::State& state) {
  const Home home;
  home.ConfigureExample("Satellite=On");
  corvalis::desktop::Program program;
  program.Start();
  corvalis::Window& menu = program.Menu().window;
  for (auto _ : state) {
    menu.SetEnabled(false);
    menu.SetEnabled(true);
  }
}
BENCHMARK(BM_MenuIsBack)->UseRealTime()->Unit(benchmark::kMillisecond);

double ProcessorSeconds() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return seconds(used.ru_utime) + seconds(used.ru_stime);
}

double ProcessorSecondsOfStart() {
  const double before = ProcessorSeconds();
  corvalis::desktop::Program program;
  program.Start();
  return ProcessorSeconds() - before;
}

// The 15 seconds of a start at a silent Coder, with the busy bar moving; the box at the end is
// answered at once.
void BM_WaitWithBusyBar(benchmark::State& state) {
  const Home home;
  const double start = ProcessorSecondsOfStart();  // at a one-way path, without a wait
  home.Configure("[Serial Setup]\r\nSatellite=Off\r\n");
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, [] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) box->accept();
  });
  answer.start(1000);
  for (auto _ : state) {
    const double used = ProcessorSecondsOfStart() - start;
    state.counters["processor_ms"] = used * 1e3;
    state.counters["percent_of_a_core"] = used / 15 * 100;
  }
}
BENCHMARK(BM_WaitWithBusyBar)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
