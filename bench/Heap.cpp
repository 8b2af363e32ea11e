#include "bench/Heap.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

zilvo::bench::Heap heap;

} // namespace

namespace zilvo::bench {

Heap heapNow() noexcept {
    return heap;
}

} // namespace zilvo::bench

void* operator new(std::size_t size) {
    void* memory = std::malloc(size);
    if (!memory) throw std::bad_alloc();
    ++heap.allocations;
    heap.bytesAlive += static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
    return memory;
}

void operator delete(void* memory) noexcept {
    heap.bytesAlive -= static_cast<std::ptrdiff_t>(malloc_usable_size(memory));
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}
