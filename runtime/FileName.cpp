#include "runtime/FileName.h"

#include "runtime/Text.h"

#include <string>

namespace zorvane {

std::filesystem::path PathOf(const String& name) {
    // Where paths are wide, a plain text would be widened byte by byte or by a code page.
    if (IsUtf8(name)) return std::u8string(name.begin(), name.end());
    return name;
}

} // namespace zorvane
