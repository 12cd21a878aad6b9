#pragma once

#include "runtime/Types.h"

#include <string_view>

namespace zorvane {

/// A text of a file in quotes for use inside a message, cut when it is long.
inline String Quoted(std::string_view text) {
    constexpr std::size_t most = 60;
    if (text.size() <= most) return "\"" + String(text) + "\"";
    return "\"" + String(text.substr(0, most)) + "...\"";
}

} // namespace zorvane
