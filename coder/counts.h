#pragma once

#include <array>
#include <string_view>

namespace corvalis::coder {

/// How many items a Coder holds of each list whose size differs between models. What is preset is
/// a full model.
struct Counts {
  int psn = 50;   ///< programme service names, and the rows of each of their pages
  int page = 10;  ///< pages of names
  int plan = 20;  ///< rows of the plan of pages
  int rt = 50;    ///< radio texts
  int pin = 255;  ///< programme items
  int af = 100;   ///< lists of alternative frequencies; method A is list 0
  int eon = 10;   ///< other networks
  int tmc = 10;   ///< traffic messages
  int ih = 14;    ///< in-house pages
};

/// A count's name for people, and the most that the digits of its answer can tell.
struct CountName {
  std::string_view name;
  int Counts::*count;
  int most;
};

inline constexpr std::array kCountNames = {
    CountName{"psn", &Counts::psn, 0xFF},   CountName{"page", &Counts::page, 0xF},
    CountName{"plan", &Counts::plan, 0xFF}, CountName{"rt", &Counts::rt, 0xFF},
    CountName{"pin", &Counts::pin, 0xFF},   CountName{"af", &Counts::af, 0xFF},
    CountName{"eon", &Counts::eon, 0xFF},   CountName{"tmc", &Counts::tmc, 0xFF},
    CountName{"ih", &Counts::ih, 0xFFF},
};

}  // namespace corvalis::coder
