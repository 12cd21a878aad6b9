#pragma once

#include "runtime/Types.h"

#include <cstddef>
#include <unordered_map>

namespace zorvane {

/// Gives the same number to the same text.
class LineNumbering {
  public:
    std::size_t NumberOf(const String& text) {
        return numbers_.try_emplace(text, numbers_.size()).first->second;
    }

  private:
    std::unordered_map<String, std::size_t> numbers_;
};

} // namespace zorvane
