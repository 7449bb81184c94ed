// How many groups a second a radio takes: the air of the sample station, with blocks missing, and
// noise. With --losses, instead, how long it takes to hear everything, as a table; with --noise N,
// what N random groups and as many bytes of random text leave behind.

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "air/hex_text.h"
#include "air/receiver.h"
#include "coder/memory_text.h"
#include "support/heard_facts.h"
#include "support/spoilt_air.h"

namespace {

using namespace corvalis;

std::vector<air::Group> SampleAir(int seconds) {
  std::ifstream file(CORVALIS_TEST_DATA "/lake-fm.memory");
  coder::Coder coder;
  const std::string memory{std::istreambuf_iterator<char>(file), {}};
  const std::string wrong = coder::ReadMemory(memory, coder);
  if (!wrong.empty()) std::fprintf(stderr, "%s\n", wrong.c_str());
  return test::AirOf(coder, seconds);
}

air::HeardGroup Noise(std::mt19937_64& random, bool of_one_station) {
  const std::uint64_t bits = random();
  air::HeardGroup group;
  for (std::size_t i = 0; i < air::kBlocks; ++i) {
    group.blocks[i] = static_cast<std::uint16_t>(bits >> 16 * i);
  }
  if (of_one_station) group.blocks[0] = 0x5201;
  return group;
}

void Take(benchmark::State& state, const std::vector<air::HeardGroup>& groups) {
  air::Receiver radio;
  double at = 0;
  std::size_t i = 0;
  for (auto _ : state) {
    radio.Hear(groups[i], at += 104 / 1187.5);
    if (++i == groups.size()) i = 0;
  }
  benchmark::DoNotOptimize(radio.Heard());
  state.SetItemsProcessed(state.iterations());
}

void BM_GroupsOfTheSample(benchmark::State& state) {
  const test::Loss loss{"", static_cast<double>(state.range(0)) / 100, 1};
  test::Loss::Blocks missing(loss, 1);
  std::vector<air::HeardGroup> groups;
  for (const air::Group& group : SampleAir(1800)) {
    groups.push_back(air::Heard(group));
    for (auto& block : groups.back().blocks) {
      if (missing.IsNextMissing()) block.reset();
    }
  }
  Take(state, groups);
}
BENCHMARK(BM_GroupsOfTheSample)->Arg(0)->Arg(10)->Arg(30);

void BM_Noise(benchmark::State& state) {
  std::mt19937_64 random(1);
  std::vector<air::HeardGroup> groups(100000);
  for (auto& group : groups) group = Noise(random, state.range(0) != 0);
  Take(state, groups);
}
BENCHMARK(BM_Noise)->Arg(0)->Arg(1);

// What the names say of the time of day comes and goes.
bool IsOfTheTime(const std::string& fact) { return fact.find(':') == 5 && fact[0] == 'P'; }

// Seconds until each of these was heard, all those that begin so; -1 for never.
double SecondsUntil(const std::vector<air::Group>& groups, const std::set<std::string>& wanted,
                    const test::Loss& loss, unsigned seed) {
  air::Receiver radio;
  double heard = -1;
  test::Hear(groups, loss, seed, radio, [&](double at) {
    const auto facts = test::HeardFacts(radio.Heard());
    if (std::includes(facts.begin(), facts.end(), wanted.begin(), wanted.end())) heard = at;
    return heard < 0;
  });
  return heard;
}

void PrintLosses() {
  constexpr const char* kItems[] = {"PI",  "TP", "stereo", "PS",  "RT",  "CT",      "PIN",
                                    "ECC", "AF", "EON",    "TMC", "AID", "channel", "page"};
  const auto groups = SampleAir(3600);
  air::Receiver all;
  test::Hear({groups.begin(), groups.begin() + 6852}, {}, 0, all);
  std::printf("seconds until all of it was heard, median of 9, of an hour (-: never)\n%-22s", "");
  for (const char* item : kItems) std::printf("%8s", item);
  std::printf("\n");
  std::vector<test::Loss> losses{{}};
  losses.insert(losses.end(), test::kLosses.begin(), test::kLosses.end());
  for (const test::Loss& loss : losses) {
    std::printf("%-22s", loss.name);
    for (const std::string_view item : kItems) {
      std::set<std::string> wanted;
      for (const std::string& fact : test::HeardFacts(all.Heard())) {
        if (fact.rfind(item, 0) == 0 && fact[item.size()] != 'N' && !IsOfTheTime(fact)) {
          wanted.insert(fact);
        }
      }
      std::vector<double> seconds;
      for (unsigned seed = 0; seed < 9; ++seed) {
        const double took = SecondsUntil(groups, wanted, loss, seed);
        seconds.push_back(took < 0 ? 1e9 : took);
      }
      std::sort(seconds.begin(), seconds.end());
      seconds[4] < 1e9 ? std::printf("%8.0f", seconds[4]) : std::printf("%8s", "-");
    }
    std::printf("\n");
    std::fflush(stdout);
  }
}

std::size_t Held() { return mallinfo2().uordblks; }

void PrintNoise(std::uint64_t count) {
  std::mt19937_64 random(2);
  for (const bool of_one_station : {false, true}) {
    air::Receiver radio;
    double at = 0;
    for (std::uint64_t i = 1; i <= count; ++i) {
      air::HeardGroup group = Noise(random, of_one_station);
      if (i % 3 == 0) group.blocks[random() % air::kBlocks].reset();
      radio.Hear(group, at += i % 1000 == 0 ? 20 : 104 / 1187.5);
      if (i % (count / 5) == 0) {
        std::printf("%llu groups of noise%s: %zu facts, %zu bytes held\n",
                    static_cast<unsigned long long>(i), of_one_station ? " of one station" : "",
                    test::HeardFacts(radio.Heard()).size(), Held());
      }
    }
  }
  air::Receiver radio;
  std::uint64_t bytes = 0;
  std::size_t groups = 0;
  while (bytes < count) {
    // Mostly a group with some bytes changed, so that some still are groups.
    std::string line = air::HexLine(Noise(random, true));
    for (auto changes = random() % 4; changes > 0; --changes) {
      const std::size_t at = random() % line.size();
      const auto byte = static_cast<char>(random());
      random() % 2 == 0 ? line.replace(at, 1, 1, byte) : line.insert(at, random() % 9, byte);
    }
    bytes += line.size() + 1;
    if (const auto group = air::ReadHexLine(line)) {
      radio.Hear(*group, static_cast<double>(bytes));
      ++groups;
    }
  }
  std::printf("%llu bytes of random text: %zu groups in them, %zu bytes held\n",
              static_cast<unsigned long long>(bytes), groups, Held());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::string_view(argv[1]) == "--losses") {
    PrintLosses();
    return 0;
  }
  if (argc > 2 && std::string_view(argv[1]) == "--noise") {
    PrintNoise(std::stoull(argv[2]));
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
