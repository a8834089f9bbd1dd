#pragma once
#include <cstddef>

/// How often this test program has called operator new.
std::size_t getNumberOfAllocations();
