// How long the screen texts take to load: all 469, from a file that has them and into a folder
// that has none.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <memory>

#include "config/config_data.h"
#include "config/language_data.h"
#include "platform/platform.h"

namespace corvalis {
namespace {

class IdlePump : public Pump {
 public:
  void RunPending() override {}
  void RunUntil(double) override {}
};

class StoppedClock : public Clock {
 public:
  [[nodiscard]] double Timer() const override { return 0; }
  [[nodiscard]] double Steady() const override { return 0; }
  [[nodiscard]] DateTime Now() const override { return {}; }
};

/// A station record on a folder of its own.
class Station {
 public:
  Station() {
    std::string name = (std::filesystem::temp_directory_path() / "corvalis-bench-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    machine_.pump = &pump_;
    machine_.clock = &clock_;
    machine_.profiles = &profiles_;
    machine_.program_folder = name;
    machine_.settings_folder = name;
    InstallPlatform(&machine_);
    record_ = std::make_unique<ConfigData>();
    configData = record_.get();
  }
  ~Station() {
    configData = nullptr;
    InstallPlatform(nullptr);
    std::filesystem::remove_all(machine_.program_folder);
  }
  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;

  void RemoveFile() const {
    std::filesystem::remove(configData->Path() + "/" + configData->LanguageFileName());
  }

 private:
  IdlePump pump_;
  StoppedClock clock_;
  ProfileStore profiles_;
  Platform machine_;
  std::unique_ptr<ConfigData> record_;
};

void LoadExistingFile(benchmark::State& state) {
  const Station station;
  LanguageData texts;
  for (auto run : state) texts.InitLanguage();
}
BENCHMARK(LoadExistingFile)->Unit(benchmark::kMillisecond);

void WriteMissingFile(benchmark::State& state) {
  const Station station;
  LanguageData texts;
  for (auto run : state) {
    state.PauseTiming();
    station.RemoveFile();
    state.ResumeTiming();
    texts.InitLanguage();
  }
}
BENCHMARK(WriteMissingFile)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace corvalis
