#pragma once

#include <array>
#include <functional>
#include <random>
#include <vector>

#include "air/group.h"
#include "air/receiver.h"
#include "coder/coder.h"

namespace corvalis::test {

/// How blocks go missing: at random, or so many in a row.
struct Loss {
  const char* name = "none";
  double share = 0;  ///< of the blocks, 0 to 1
  double burst = 1;  ///< blocks in a row, on average

  /// Decides block after block.
  class Blocks {
   public:
    Blocks(const Loss& loss, unsigned seed) : loss_(loss), random_(seed) {}
    [[nodiscard]] bool IsNextMissing();

   private:
    const Loss& loss_;
    std::mt19937 random_;
    bool bad_ = false;
  };
};

inline constexpr std::array kLosses = {Loss{"1 %", 0.01, 1}, Loss{"10 %", 0.1, 1},
                                       Loss{"30 %", 0.3, 1}, Loss{"10 %, bursts of 50", 0.1, 50},
                                       Loss{"10 %, bursts of 400", 0.1, 400}};

/// So many seconds of a Coder's air; `minute` may change its memory at the edge of each.
[[nodiscard]] std::vector<air::Group> AirOf(coder::Coder& coder, int seconds,
                                            const std::function<void(int minute)>& minute = {});

/// Lets a radio hear it at the speed of the air, without the blocks that are missing; `second` is
/// called after each second, and ends it by false.
void Hear(const std::vector<air::Group>& groups, const Loss& loss, unsigned seed,
          air::Receiver& radio, const std::function<bool(double at)>& second = {});

}  // namespace corvalis::test
