#pragma once

#include <cstddef>

namespace zorvane {

/// Counts what the program allocates from now on. Test programs that use it have
/// AllocationCounter.cpp among their sources.
class AllocationCounter {
  public:
    AllocationCounter() : atStart_(Total()) {}
    std::size_t Count() const { return Total() - atStart_; }

  private:
    static std::size_t Total();

    std::size_t atStart_;
};

} // namespace zorvane
