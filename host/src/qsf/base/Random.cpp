#include "qsf/base/Random.h"

#include <cmath>
#include <random>
#include <utility>

namespace qsf {

namespace {

// The generator's sequence is fixed by the C++ standard; the mappings onto ranges are our own, because those of the
// standard library differ from one library to the next.
std::mt19937_64& generator() {
  static std::mt19937_64 instance{0};
  return instance;
}

std::uint32_t draw32() { return static_cast<std::uint32_t>(generator()() >> 32); }

/// Uniform in [0, size), without the bias of a plain remainder: draws that fall into the incomplete last share are
/// repeated.
std::uint32_t drawBelow(std::uint32_t size) {
  const std::uint32_t incomplete = (0u - size) % size;
  for (;;) {
    const std::uint64_t product = static_cast<std::uint64_t>(draw32()) * size;
    if (static_cast<std::uint32_t>(product) >= incomplete) return static_cast<std::uint32_t>(product >> 32);
  }
}

}

void Random::setSeed(std::uint64_t seed) { generator().seed(seed); }

std::uint32_t Random::getRandomUint(std::uint32_t minimum, std::uint32_t maximum) {
  if (minimum > maximum) std::swap(minimum, maximum);
  const std::uint32_t size = maximum - minimum + 1; // wraps to 0 for the whole range
  return minimum + (size == 0 ? draw32() : drawBelow(size));
}

int Random::getRandomInt(int minimum, int maximum) {
  // Moved so that the smallest int is 0: the order stays and nothing overflows.
  constexpr std::uint32_t offset = 0x80000000u;
  const std::uint32_t drawn =
      getRandomUint(static_cast<std::uint32_t>(minimum) + offset, static_cast<std::uint32_t>(maximum) + offset);
  return static_cast<int>(drawn - offset);
}

float Random::getRandomFloat(float minimum, float maximum) {
  if (minimum > maximum) std::swap(minimum, maximum);
  // One draw in every case, so that a strange bound does not shift the draws behind it.
  const double share = static_cast<double>(generator()() >> 11) * 0x1.0p-53;
  const double span = static_cast<double>(maximum) - static_cast<double>(minimum);
  if (!std::isfinite(span) || span <= 0.0) return minimum;
  const float drawn = static_cast<float>(minimum + share * span);
  // Rounding to a float may reach the open end.
  return drawn < maximum ? drawn : std::nextafter(maximum, minimum);
}

}
