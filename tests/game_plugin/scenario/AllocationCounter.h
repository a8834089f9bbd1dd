#pragma once
#include <cstddef>

/// How often this test program has called operator new.
std::size_t getNumberOfAllocations();
/// Bytes that operator new has given and that have not come back, as the C library rounds them.
std::size_t getLiveBytes();
