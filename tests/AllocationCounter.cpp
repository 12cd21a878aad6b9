#include "AllocationCounter.h"

#include <cstdlib>
#include <new>

void* operator new(std::size_t size) {
    ++zorvane::AllocationCounter::allocations;
    zorvane::AllocationCounter::bytes += size;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
