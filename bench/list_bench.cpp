// Whole lists on the way to a Coder that paces as its line does, the opening of the screen of the
// lists, and the scrolling of a long grid.

#include <benchmark/benchmark.h>
#include <time.h>
#include <unistd.h>

#include <QApplication>
#include <QProcess>
#include <QTableView>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/configuration.h"
#include "desktop/program.h"
#include "link/list_commands.h"
#include "link/serial_management.h"
#include "link/transfer.h"
#include "programme/psn_page_data.h"

namespace corvalis {
namespace {

using SteadyClock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr double kBitsPerByte = 11;  // one to start, eight, two to stop
constexpr double kAckBytes = 1;
constexpr int kUnpaced = -1;
constexpr double kPause = 0.2;  // seconds after each list that is emptied, and each part of a page

/// The program in folders of its own, with a Coder at COM 1: with a baud rate on a two-way line at
/// that speed, or at none; else on a one-way path.
class Station {
 public:
  explicit Station(const std::string& file, int baud = 0) {
    const std::string folder = folder_.path().toStdString();
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder + "/config"));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder + "/data"));
    std::filesystem::create_directories(folder + "/config/corvalis");
    std::filesystem::create_directories(folder + "/data/corvalis");
    std::ofstream(folder + "/data/corvalis/corvalis.rds")
        << "[Serial Setup]\nSatellite=" << (baud == 0 ? "On" : "Off")
        << "\nBaudrate=" << (baud <= 0 ? 9600 : baud) << "\n"
        << file;
    QStringList options{"--open", "--link",
                        QString::fromStdString(folder + "/config/corvalis/com1")};
    if (baud > 0) options << "--pace";
    coder_.start(QStringLiteral(CORVALIS_CODER_PROGRAM), options);
    if (!coder_.waitForReadyRead()) throw std::runtime_error("the Coder does not start");
    program = std::make_unique<desktop::Program>();
    program->Start();
  }
  ~Station() {
    program.reset();
    // Its windows go before another program comes.
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    coder_.kill();
    coder_.waitForFinished();
  }
  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;

  PsnRtPinAfForm& Open() {
    program->Menu().PsnRtPinAfButton.Press();
    QApplication::processEvents();
    return *program->Menu().OpenedPsnRtPinAf();
  }

 private:
  QTemporaryDir folder_;
  QProcess coder_;

 public:
  std::unique_ptr<desktop::Program> program;
};

// Runs `run`, and tells how long it took over `bytes` on the line and `pauses` seconds.
void MeasureRun(benchmark::State& state, double bytes, double pauses,
                const std::function<void(PsnRtPinAfForm&)>& run) {
  const int baud = static_cast<int>(state.range(0));
  Station station("", baud);
  PsnRtPinAfForm& form = station.Open();
  double seconds = 0;
  for (auto _ : state) {
    const auto begin = SteadyClock::now();
    run(form);
    seconds = Seconds(SteadyClock::now() - begin).count();
  }
  if (LinkError != kLinkOk) state.SkipWithError("a frame failed");
  state.counters["over_line_and_pauses"] = seconds / (bytes * kBitsPerByte / baud + pauses);
}

void BM_FiveHundredRowsOfPages(benchmark::State& state) {
  constexpr int kPages = 10;
  constexpr int kRows = 50;
  MeasureRun(state, kPages * kRows * (16 + kAckBytes), 0, [](PsnRtPinAfForm& form) {
    RunSend(form.window, [] {
      RunItems(kPages * kRows, [](int item) {
        psnPageData->SetOneRds(static_cast<std::uint8_t>(item / kRows),
                               static_cast<std::int16_t>(item % kRows));
      });
    });
  });
}
BENCHMARK(BM_FiveHundredRowsOfPages)
    ->Arg(9600)
    ->Arg(19200)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kSecond);

void BM_AllItems(benchmark::State& state) {
  MeasureRun(state, 255 * (13 + kAckBytes), 0,
             [](PsnRtPinAfForm& form) { form.pin.Command15.Press(); });
}
BENCHMARK(BM_AllItems)
    ->Arg(9600)
    ->Arg(19200)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kSecond);

// With the grid following, as an operator sees it.
void BM_ReadAllItems(benchmark::State& state) {
  MeasureRun(state, 255 * (6 + kAckBytes + 13), 0, [](PsnRtPinAfForm& form) {
    form.SSTab1.SetTab(PsnRtPinAfForm::kPin);
    QApplication::processEvents();
    form.pin.Command23.Press();
  });
}
BENCHMARK(BM_ReadAllItems)
    ->Arg(9600)
    ->Arg(19200)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kSecond);

// The list, the question for the number of lists, and the other lists emptied.
void BM_FirstListOfMethodA(benchmark::State& state) {
  constexpr int kOthers = 99;
  MeasureRun(state, (1 + kOthers) * (57 + kAckBytes) + 5 + kAckBytes + 7, kOthers * kPause,
             [](PsnRtPinAfForm& form) { form.af_a.Command11.Press(); });
}
BENCHMARK(BM_FirstListOfMethodA)->Arg(9600)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

// An in-house page as it goes to the Coder, and as it comes back.
void BM_SendPage(benchmark::State& state) {
  const std::string page(kIhCharacters, 'x');
  MeasureRun(state, 16 * (136 + kAckBytes) + 12 + kAckBytes, kPause, [&page](PsnRtPinAfForm& form) {
    RunSend(form.window, [&page] { SendIh(3, page, 1); });
  });
}
BENCHMARK(BM_SendPage)->Arg(9600)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

void BM_ReadPage(benchmark::State& state) {
  MeasureRun(state, 16 * (8 + kAckBytes + 136) + 12 + kAckBytes + 12, 16 * kPause,
             [](PsnRtPinAfForm& form) {
               RunRead(form.window, [] {
                 std::string page;
                 std::int16_t rotation = 0;
                 ReadIh(3, page, rotation);
               });
             });
}
BENCHMARK(BM_ReadPage)->Arg(9600)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

double ProcessorSeconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// The example station with everything selected; the line's settings are those of the bench.
std::string WholeStation(bool pages) {
  std::ifstream example(CORVALIS_EXAMPLE);
  std::string file(std::istreambuf_iterator<char>(example), {});
  const std::size_t serial = file.find("[Serial Setup]");
  file.erase(serial, file.find('[', serial + 1) - serial);
  std::string flags;
  for (const char* name : {"Psn", "Rt", "Pin", "Af", "Tdc", "Pi", "Ct", "Tp", "Di", "Ecc", "Lic",
                           "Li", "Eon", "Ptyn", "Tmc"}) {
    flags += std::string("Preset") + name + "=On\n";
  }
  if (pages) flags += "PresetIh=On\n";
  return file.insert(file.find('\n', file.find("[RDS Setup]")) + 1, flags);
}

double ResidentMegabytes() {
  std::ifstream status("/proc/self/statm");
  double total = 0;
  double resident = 0;
  status >> total >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

// The whole station there, by the button, over what its bytes and pauses take on the line; and what
// of a processor the program takes meanwhile.
void MeasureStation(benchmark::State& state, ConfigurationRun way) {
  const int baud = static_cast<int>(state.range(0));
  Station station(WholeStation(true), baud);
  station.program->Menu().ConnectionButton.Press();
  QApplication::processEvents();
  ConnectionForm& form = *station.program->Menu().OpenedConnection();
  const ConfigurationLoad load = LoadOfConfiguration(way);
  double seconds = 0;
  double processor = 0;
  for (auto _ : state) {
    const double used = ProcessorSeconds();
    const auto begin = SteadyClock::now();
    (way == ConfigurationRun::kSend ? form.Command11 : form.Command1).Press();
    seconds = Seconds(SteadyClock::now() - begin).count();
    processor = ProcessorSeconds() - used;
  }
  if (LinkError != kLinkOk) state.SkipWithError("a frame failed");
  state.counters["items"] = load.items;
  state.counters["over_line_and_pauses"] = seconds / load.seconds;
  state.counters["processor_percent"] = 100 * processor / seconds;
}

void BM_SendStation(benchmark::State& state) { MeasureStation(state, ConfigurationRun::kSend); }
BENCHMARK(BM_SendStation)
    ->Arg(9600)
    ->Arg(19200)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kSecond);

void BM_ReadStation(benchmark::State& state) { MeasureStation(state, ConfigurationRun::kRead); }
BENCHMARK(BM_ReadStation)
    ->Arg(9600)
    ->Arg(19200)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kSecond);

// The memory at the end of a transfer in both ways, after ten more, and after another ten, at no
// line's speed.
void BM_MemoryOfTransfers(benchmark::State& state) {
  Station station(WholeStation(false), kUnpaced);
  station.program->Menu().ConnectionButton.Press();
  QApplication::processEvents();
  ConnectionForm& form = *station.program->Menu().OpenedConnection();
  const auto both_ways = [&form] {
    for (Button* button : {&form.Command11, &form.Command1}) {
      button->Press();
      // The transfer's window goes, as it does where the program's own loop runs.
      QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  };
  for (auto _ : state) {
    both_ways();
    state.counters["after_1_MB"] = ResidentMegabytes();
    for (int i = 0; i < 10; ++i) both_ways();
    state.counters["after_11_MB"] = ResidentMegabytes();
    for (int i = 0; i < 10; ++i) both_ways();
    state.counters["after_21_MB"] = ResidentMegabytes();
  }
  if (LinkError != kLinkOk) state.SkipWithError("a frame failed");
}
BENCHMARK(BM_MemoryOfTransfers)->Iterations(1)->UseRealTime()->Unit(benchmark::kSecond);

// A station with something in each of `texts` radio texts, in 10 pages of 50 rows and 255 items.
std::string FullLists(int texts) {
  std::string file;
  const auto add = [&file](const char* format, auto... values) {
    char line[100];
    std::snprintf(line, sizeof line, format, values...);
    file += line;
  };
  file += "[RDS Setup]\nPSN Pages Enable=On\nPSN Plan Enable=On\n";
  add("[RT]\nMaxRtNum=%d\n", texts);
  for (int row = 0; row < texts; ++row) {
    add("Rt%02d=15;%-64s;\n", row, "The weather: dry in the valleys, fog below 600 m until noon");
  }
  file += "[PSN Pages]\n";
  for (int row = 0; row < 500; ++row) {
    add("Psn%02d.%02d=05;On;ROW %4d;\n", row / 50, row % 50, row);
  }
  file += "[PIN]\n";
  for (int item = 0; item < 255; ++item) {
    add("Pin%03d=%02d;%02d:%02d;%02d;On\n", item, item % 28 + 1, item % 24, item % 60, item % 32);
  }
  return file;
}

void CountFrames(benchmark::State& state, const std::string& clock, std::vector<double> frames) {
  std::sort(frames.begin(), frames.end());
  state.counters[clock + "_median_ms"] = frames[frames.size() / 2];
  state.counters[clock + "_p95_ms"] = frames[frames.size() * 95 / 100];
  state.counters[clock + "_worst_ms"] = frames.back();
}

/// Whether the first grid of the screen has been painted since this was made.
class PaintedEye : public QObject {
 public:
  PaintedEye() { qApp->installEventFilter(this); }
  [[nodiscard]] bool Seen() const { return seen_; }
  bool eventFilter(QObject* object, QEvent* event) override {
    const QObject* parent = object->parent();
    if (event->type() == QEvent::Paint && parent != nullptr && parent->objectName() == "DBGrid1") {
      seen_ = true;
    }
    return false;
  }

 private:
  bool seen_ = false;
};

// From the press on the main menu until the screen has been painted, its first time.
void BM_OpenTheScreen(benchmark::State& state) {
  const std::string file = FullLists(50);
  for (auto _ : state) {
    state.PauseTiming();
    {
      Station station(file);
      QApplication::processEvents();
      const PaintedEye eye;
      state.ResumeTiming();
      station.Open();
      while (!eye.Seen()) QApplication::processEvents();
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
}
BENCHMARK(BM_OpenTheScreen)->Iterations(10)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_ScrollFiveHundredRows(benchmark::State& state) {
  constexpr int kRows = 500;
  Station station(FullLists(kRows));
  PsnRtPinAfForm& form = station.Open();
  form.SSTab1.SetTab(PsnRtPinAfForm::kRt);
  QApplication::processEvents();
  QTableView* table = nullptr;
  for (QWidget* widget : QApplication::allWidgets()) {
    if (widget->objectName() == "DBGrid3") table = qobject_cast<QTableView*>(widget);
  }
  if (table == nullptr) return state.SkipWithError("no grid");
  std::vector<double> wall;
  std::vector<double> processor;
  for (auto _ : state) {
    for (int row = 0; row < kRows; ++row) {
      const double used = ProcessorSeconds();
      const auto begin = SteadyClock::now();
      form.rt.DBGrid3.MoveTo(row, 1);
      table->viewport()->repaint();
      wall.push_back(Seconds(SteadyClock::now() - begin).count() * 1e3);
      processor.push_back((ProcessorSeconds() - used) * 1e3);
    }
    form.rt.DBGrid3.MoveTo(0, 1);
  }
  CountFrames(state, "wall", wall);
  CountFrames(state, "processor", processor);
}
BENCHMARK(BM_ScrollFiveHundredRows)->Iterations(4)->Unit(benchmark::kMillisecond);

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
