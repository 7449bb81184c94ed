// A station's keys written and read one by one, beside a floor: the least that each key costs
// without any promise about what a killed program leaves.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/profile_store.h"

namespace corvalis {
namespace {

struct Entry {
  std::string section;
  std::string key;
  std::string value;
};

/// As many keys as asked for in as many sections, 34 bytes a key.
std::vector<Entry> Entries(std::int64_t keys, std::int64_t sections) {
  std::vector<Entry> entries;
  for (std::int64_t i = 0; i < keys; ++i) {
    char name[16];
    std::snprintf(name, sizeof name, "Psn%05d", static_cast<int>(i));
    entries.push_back({"Section " + std::to_string(i * sections / keys), name,
                       "05;On;STATION;" + std::to_string(100000 + i) + ";"});
  }
  return entries;
}

class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "corvalis-bench-XXXXXX").string();
    if (::mkdtemp(name.data()) != nullptr) path_ = name;
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  [[nodiscard]] std::string File() const { return path_ / "station.rds"; }

 private:
  std::filesystem::path path_;
};

bool WriteAll(ProfileStore& store, const std::string& file, const std::vector<Entry>& entries) {
  bool good = true;
  for (const Entry& entry : entries) {
    good = store.Write(file, entry.section, entry.key, entry.value) && good;
  }
  return good;
}

enum class Save { kNewFile, kSameLength, kOtherLength, kUnchanged };

/// `range(0)` keys in `range(1)` sections, from the first key to the end of the series.
void Write(benchmark::State& state, Save save, bool in_series) {
  const Folder folder;
  const auto entries = Entries(state.range(0), state.range(1));
  ProfileStore store;
  for (auto _ : state) {
    state.PauseTiming();
    std::filesystem::remove(folder.File());
    if (save != Save::kNewFile) {
      const ProfileStore::Series series(store);
      WriteAll(store, folder.File(), entries);
    }
    auto wanted = entries;
    for (Entry& entry : wanted) {
      if (save == Save::kSameLength) entry.value[0] = '9';
      if (save == Save::kOtherLength) entry.value += "+";
    }
    state.ResumeTiming();
    std::optional<ProfileStore::Series> series;
    if (in_series) series.emplace(store);
    if (!WriteAll(store, folder.File(), wanted)) state.SkipWithError("a write failed");
  }
}

/// One open, write and close for each key, of the key's line alone.
void WriteFloor(benchmark::State& state) {
  const Folder folder;
  const auto entries = Entries(state.range(0), state.range(1));
  for (auto _ : state) {
    std::filesystem::remove(folder.File());
    for (const Entry& entry : entries) {
      const std::string line = entry.key + "=" + entry.value + "\r\n";
      const int file = ::open(folder.File().c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
      if (::write(file, line.data(), line.size()) < 0) state.SkipWithError("a write failed");
      ::close(file);
    }
  }
}

void Read(benchmark::State& state) {
  const Folder folder;
  const auto entries = Entries(state.range(0), state.range(1));
  ProfileStore writer;
  {
    const ProfileStore::Series series(writer);
    WriteAll(writer, folder.File(), entries);
  }
  for (auto _ : state) {
    ProfileStore store;  // knows nothing of the file yet
    for (const Entry& entry : entries) {
      if (store.Read(folder.File(), entry.section, entry.key) != entry.value) {
        state.SkipWithError("a wrong value");
      }
    }
  }
}

/// One look at the file for each key, which every reader owes to the other programs.
void ReadFloor(benchmark::State& state) {
  const Folder folder;
  for (auto _ : state) {
    for (std::int64_t i = 0; i < state.range(0); ++i) {
      benchmark::DoNotOptimize(::access(folder.File().c_str(), R_OK));
    }
  }
}

// A station, ten stations in one file, and a file of language texts.
void Sizes(benchmark::internal::Benchmark* bench) {
  bench->Args({1240, 14})->Args({12400, 14})->Args({12400, 140})->Args({469, 23});
  bench->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(0.3);
}

BENCHMARK(WriteFloor)->Apply(Sizes);
BENCHMARK_CAPTURE(Write, NewFile, Save::kNewFile, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Write, SameLength, Save::kSameLength, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Write, OtherLength, Save::kOtherLength, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Write, Unchanged, Save::kUnchanged, true)->Apply(Sizes);
BENCHMARK_CAPTURE(Write, NewFileWithoutSeries, Save::kNewFile, false)
    ->Args({469, 23})
    ->Args({1240, 14})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);
BENCHMARK(ReadFloor)->Apply(Sizes);
BENCHMARK(Read)->Apply(Sizes);

}  // namespace
}  // namespace corvalis
