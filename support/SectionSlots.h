#pragma once

#include "runtime/Export.h"
#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <array>

namespace zorvane {

/// A text for each depth of sections, counted from 0. Error 9 beyond the 17 that there are.
class ZORVANE_EXPORT SectionSlots {
  public:
    const String& At(Long depth) const { return texts_[IndexOf(depth)]; }
    String& At(Long depth) { return texts_[IndexOf(depth)]; }

  private:
    static constexpr Long kSlots = 17;

    static std::size_t IndexOf(Long depth) {
        if (depth < 0 || depth >= kSlots) Raise(ErrorNumber::SubscriptOutOfRange);
        return static_cast<std::size_t>(depth);
    }

    std::array<String, kSlots> texts_;
};

} // namespace zorvane
