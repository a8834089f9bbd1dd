#pragma once
#include "qsf/Export.h"

#include <cstdint>

namespace qsf {

/// The game's one random source. Seeded per run, so that the same inputs give the same draws on every machine.
class QSF_API Random {
public:
  static void setSeed(std::uint64_t seed);
  /// Uniform in [minimum, maximum], both included. Swapped bounds are put in order.
  static int getRandomInt(int minimum, int maximum);
  static std::uint32_t getRandomUint(std::uint32_t minimum, std::uint32_t maximum);
  /// Uniform in [minimum, maximum).
  static float getRandomFloat(float minimum, float maximum);
};

}
