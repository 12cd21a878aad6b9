#pragma once

#include <cstddef>

namespace zorvane {

/// What the whole program has asked of `operator new` so far. Needs CountedMemory.cpp in the
/// program.
struct CountedMemory {
    std::size_t allocations = 0;
    std::size_t bytes = 0;
};
const CountedMemory& MemoryAskedFor();

} // namespace zorvane
