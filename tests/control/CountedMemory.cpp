#include "control/CountedMemory.h"

#include <cstdlib>
#include <new>

namespace zorvane {

namespace {

CountedMemory counted;

} // namespace

const CountedMemory& MemoryAskedFor() { return counted; }

} // namespace zorvane

void* operator new(std::size_t size) {
    ++zorvane::counted.allocations;
    zorvane::counted.bytes += size;
    if (void* const memory = std::malloc(size > 0 ? size : 1)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
