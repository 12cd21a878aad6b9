#pragma once

#include <cstddef>

namespace zorvane {

/// Counts what the program allocates from now on. Test programs that use it have
/// AllocationCounter.cpp among their sources.
class AllocationCounter {
  public:
    std::size_t Count() const { return allocations - countAtStart_; }
    std::size_t Bytes() const { return bytes - bytesAtStart_; }

    /// What the whole program has asked of `operator new` so far.
    static inline std::size_t allocations = 0, bytes = 0;

  private:
    std::size_t countAtStart_ = allocations, bytesAtStart_ = bytes;
};

} // namespace zorvane
