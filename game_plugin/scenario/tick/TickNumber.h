#pragma once
#include <cstdint>

namespace script {

/// Number of the tick that runs, from 1; of all ticks of all scripts no two have the same. For entries that do
/// something once in a tick of their script.
std::uint64_t runningTick();

}
