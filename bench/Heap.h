#pragma once

#include <cstddef>

namespace zilvo::bench {

/// What the program has taken from the heap so far: every operator new of the process is counted.
struct Heap {
    std::size_t allocations = 0;
    std::ptrdiff_t bytesAlive = 0;
};

Heap heapNow() noexcept;

} // namespace zilvo::bench
