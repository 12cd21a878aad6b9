#pragma once

#include "runtime/Text.h"
#include "runtime/Types.h"

#include <algorithm>

namespace zorvane {

/// A name in the characters that labware is loaded by: small letters, digits, "." and "_", which
/// stands for any other.
inline String SafeName(const String& name) {
    const auto isSafe = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '_';
    };
    String safe = LowerText(name);
    std::replace_if(
        safe.begin(), safe.end(), [&](char c) { return !isSafe(c); }, '_');
    return safe;
}

} // namespace zorvane
