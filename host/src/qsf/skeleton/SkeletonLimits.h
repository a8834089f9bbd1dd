#pragma once
#include <cstddef>

namespace qsf {

/// As many bones as OGRE takes in a skeleton.
inline constexpr std::size_t MOST_BONES = 256;
/// Coordinates beyond this, either way, are a fault of the file: OGRE ends the process over what can't be calculated.
inline constexpr float FARTHEST = 1e9f;

}
