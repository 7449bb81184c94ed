#include "air/cycle_figures.h"

#include <algorithm>
#include <numeric>

#include "air/formatted.h"

namespace corvalis::air {

namespace {

constexpr int kB = StationFacts::kB;
constexpr double kGroupSeconds = 104 / 1187.5;

constexpr int kNameSegments = 4;
constexpr int kMostSegments = 16;  // of a radio text
constexpr int kLongText = 64;
constexpr int kShortText = 32;

int Places(const StationFacts::Group& group) { return group.enabled ? group.repetitions : 0; }
int Places(const StationFacts& facts, int group) {
  return Places(facts.groups.at(static_cast<std::size_t>(group)));
}
int AllPlaces(const StationFacts& facts) {
  return std::accumulate(facts.groups.begin(), facts.groups.end(), 0,
                         [](int sum, const auto& group) { return sum + Places(group); });
}
double Seconds(const StationFacts& facts, int groups, int places) {
  return places == 0 ? 0 : groups * kGroupSeconds * AllPlaces(facts) / places;
}

}  // namespace

double SecondsOf(const StationFacts& facts, int groups, int kind) {
  return Seconds(facts, groups, Places(facts, kind));
}

double NameSeconds(const StationFacts& facts) {
  return Seconds(facts, kNameSegments, Places(facts, 0) + Places(facts, kB));
}

double TextSeconds(const StationFacts& facts, std::size_t length) {
  const bool is_long = Places(facts, 2) > 0;
  // A text that does not fill all of it has an end.
  const int segments = static_cast<int>(length / (is_long ? 4 : 2)) + 1;
  return SecondsOf(facts, std::min(segments, kMostSegments), is_long ? 2 : kB + 2);
}

CycleFigures FiguresOf(const StationFacts& facts) {
  CycleFigures figures;
  figures.places = AllPlaces(facts);
  figures.name_seconds = NameSeconds(facts);
  const bool is_short = Places(facts, 2) == 0 && Places(facts, kB + 2) > 0;
  figures.text_length = is_short ? kShortText : kLongText;
  figures.text_seconds = TextSeconds(facts, static_cast<std::size_t>(figures.text_length));
  return figures;
}

std::string Words(const CycleFigures& figures) {
  std::string words =
      Formatted("%d %s in the cycle", figures.places, figures.places == 1 ? "place" : "places");
  if (figures.name_seconds > 0)
    words += Formatted(", a whole name every %.1f s", figures.name_seconds);
  if (figures.text_seconds > 0) {
    words += Formatted(", a radio text of %d characters in %.1f s", figures.text_length,
                       figures.text_seconds);
  }
  return words;
}

}  // namespace corvalis::air
