// How many groups a second a Coder can make, with a memory in which every group has something to
// say, and while that memory is written all the time; and how many can be written.

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "coder/air_format.h"
#include "coder/coder.h"
#include "coder/on_air.h"

namespace {

using namespace corvalis::coder;

void Put(Coder& coder, std::uint8_t command, int number, std::string_view text) {
  coder.SetItem(command, number, Bytes(text.begin(), text.end()));
}

Coder FullCoder() {
  Coder coder;
  for (const int group : {0, 1, 2, 3, 5, 6, 8, 10, 14, 30, 31}) Put(coder, kEnable, group, "0102");
  Put(coder, kEnable, 4, "0101");
  Put(coder, kCt, 0, "26112531700080926");
  for (int row = 0; row < 50; ++row) {
    Put(coder, kPsn, row, "05NAME    ");
    Put(coder, kRt, row, "20" + std::string(60, 'x') + "    ");
  }
  for (int list = 0; list < 100; ++list) {
    Put(coder, kAf, list, "F9" + std::string(50, '1'));
  }
  for (int item = 0; item < 255; ++item) Put(coder, kPin, item, "0000CC80");
  for (int list = 0; list < 10; ++list) {
    Put(coder, kEon, list, "NETWORK 110ACC80807D057FCD0606CCCDCD6487542B1");
  }
  for (int channel = 0; channel < 131; ++channel) Put(coder, kTdc, channel, "1A0000001");
  for (int page = 0; page < 14; ++page) {
    Put(coder, kIh, page * kPageStep + 15,
        "00" + std::string(1, "0123456789ABCD"[page]) + std::string(128, 'y'));
  }
  Put(coder, kTmcSystem, 0, "0A3F1001");
  for (int message = 0; message < 10; ++message) Put(coder, kTmc, message, "1F4FFFF1705F");
  Put(coder, kPtyn, 0, "THRILLER");
  return coder;
}

void BM_Groups(benchmark::State& state) {
  Coder coder = FullCoder();
  OnAir on_air(coder);
  std::uint64_t group = 0;
  for (auto _ : state) benchmark::DoNotOptimize(on_air.Next(GroupStart(group++)));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Groups);

// An item written before each group, as while a whole configuration comes in.
void BM_GroupsOfAChangingMemory(benchmark::State& state) {
  Coder coder = FullCoder();
  OnAir on_air(coder);
  std::uint64_t group = 0;
  constexpr std::pair<std::uint8_t, std::string_view> kWritten[] = {
      {kPsn, "05NAME    "}, {kPin, "0000CC80"}, {kTdc, "1A0000001"}, {kEnable, "0102"}};
  for (auto _ : state) {
    const auto& [command, body] = kWritten[group % 4];
    Put(coder, command, 0, body);
    benchmark::DoNotOptimize(on_air.Next(GroupStart(group++)));
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GroupsOfAChangingMemory);

// Groups in each form in which they leave.
void Write(benchmark::State& state, AirFormat& format) {
  const corvalis::air::Group group{{0x5201, 0x0408, 0xE0CD, 0x4C41}};
  for (auto _ : state) benchmark::DoNotOptimize(format.Write(group));
  state.SetItemsProcessed(state.iterations());
}
void BM_AsText(benchmark::State& state) { Write(state, *MakeTextFormat()); }
void BM_AsBits(benchmark::State& state) { Write(state, *MakeBitFormat()); }
void BM_AsSignal(benchmark::State& state) { Write(state, *MakeMpxFormat(false)); }
BENCHMARK(BM_AsText);
BENCHMARK(BM_AsBits);
BENCHMARK(BM_AsSignal);

}  // namespace
