// What a station file costs that a radio is held against: read, and compared with all that was
// heard of ten minutes; and how fast groups come from a file to what is known of them.

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "air/hex_text.h"
#include "coder/memory_text.h"
#include "coder/on_air.h"
#include "platform/platform.h"
#include "radio/comparison.h"
#include "radio/prepared.h"
#include "radio/tuner.h"

namespace {

using namespace corvalis;
using namespace corvalis::radio;

constexpr int kTenMinutes = 6850;  // groups

// The groups of the sample station, as a file.
std::string AirFile() {
  std::ifstream file(CORVALIS_SAMPLE_MEMORY, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  coder::Coder held;
  if (!coder::ReadMemory(text.str(), held).empty()) std::abort();
  coder::OnAir on_air(held);
  const std::string path = std::filesystem::temp_directory_path() / "corvalis-radio-bench.txt";
  std::ofstream air(path);
  for (std::uint64_t group = 0; group < kTenMinutes; ++group) {
    air << air::HexLine(on_air.Next(coder::GroupStart(group))) << "\n";
  }
  return path;
}

void HearAll(Tuner& tuner, const std::string& path) {
  if (!tuner.Open(path).empty()) std::abort();
  while (tuner.Listen(0)) {
  }
}

struct StillClock : corvalis::Clock {
  [[nodiscard]] double Timer() const override { return 0; }
  [[nodiscard]] double Steady() const override { return 0; }
  [[nodiscard]] DateTime Now() const override { return {}; }
};

class Machinery {
 public:
  Machinery() {
    machine_.profiles = &profiles_;
    machine_.clock = &clock_;
    InstallPlatform(&machine_);
  }
  ~Machinery() { InstallPlatform(nullptr); }
  Machinery(const Machinery&) = delete;
  Machinery& operator=(const Machinery&) = delete;

 private:
  StillClock clock_;
  ProfileStore profiles_;
  Platform machine_;
};

void BM_ReadStationFile(benchmark::State& state) {
  const Machinery machinery;
  Prepared prepared;
  for (auto _ : state) {
    if (!ReadPrepared(CORVALIS_EXAMPLE, prepared).empty()) std::abort();
  }
}
BENCHMARK(BM_ReadStationFile)->Unit(benchmark::kMillisecond);

void BM_Compare(benchmark::State& state) {
  const Machinery machinery;
  Prepared prepared;
  if (!ReadPrepared(CORVALIS_EXAMPLE, prepared).empty()) std::abort();
  Tuner tuner;
  HearAll(tuner, AirFile());
  for (auto _ : state) benchmark::DoNotOptimize(Compare(prepared, tuner.Heard(), DateTime{}));
}
BENCHMARK(BM_Compare)->Unit(benchmark::kMicrosecond);

void BM_HearFile(benchmark::State& state) {
  const std::string path = AirFile();
  Tuner tuner;
  for (auto _ : state) HearAll(tuner, path);
  state.SetItemsProcessed(state.iterations() * kTenMinutes);
}
BENCHMARK(BM_HearFile)->Unit(benchmark::kMillisecond);

}  // namespace
