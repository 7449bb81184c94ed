// What a full AF list costs before it goes out: method A arranged and coded, and read back; method
// B coded.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>

#include "air/af_b_codes.h"
#include "air/af_codes.h"

namespace corvalis {
namespace {

// Every kind of entry in a bad order, as many as there is room for.
air::AfFrequencies FullList() {
  air::AfFrequencies list{};
  constexpr std::array kSome = {153.F, 0.F, 87.525F, 531.F, 107.975F, 99.05F};
  std::copy(kSome.begin(), kSome.end(), list.begin());
  for (std::size_t i = kSome.size(); i < air::kAfEntries - 5; ++i) {
    list.at(i) = 88.F + static_cast<float>(i);
  }
  return list;
}

void ArrangeAndCodeMethodA(benchmark::State& state) {
  const air::AfFrequencies full = FullList();
  for (auto run : state) {
    air::AfFrequencies list = full;
    air::ArrangeAfList(list);
    benchmark::DoNotOptimize(air::AfACodes(list));
  }
}
BENCHMARK(ArrangeAndCodeMethodA)->Unit(benchmark::kMicrosecond);

void ReadMethodA(benchmark::State& state) {
  const air::AfCodes codes = air::AfACodes(FullList());
  for (auto run : state) benchmark::DoNotOptimize(air::AfAFrequencies(codes));
}
BENCHMARK(ReadMethodA)->Unit(benchmark::kMicrosecond);

void CodeMethodB(benchmark::State& state) {
  air::AfBFrequencies list{.main = 100};
  for (std::size_t i = 0; i < air::AfBFrequencies::kShown; ++i) {
    list.others.at(i) = 94.F + static_cast<float>(i);
  }
  for (auto run : state) benchmark::DoNotOptimize(air::AfBCodes(list));
}
BENCHMARK(CodeMethodB)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace corvalis
