#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <string_view>
#include <utility>

namespace zorvane {

/// Raises a failure with a description for the user.
[[noreturn]] void Fail(const String& description);

/// Does something with a file and puts the file's name before the description of a failure.
template <class Action>
auto WithFile(const String& file, Action&& action) {
    try {
        return std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        Fail(file + ": " + error.Description());
    }
}

/// Writes bytes to standard output as they are.
void Print(std::string_view text);

/// Puts bytes in place of a file as ReplaceFile does, or writes them to a device or pipe; to
/// standard output where the name is empty or "-".
void WriteFile(const String& file, std::string_view bytes);

/// Everything in a file; "-" is standard input.
String ReadFile(const String& file);

} // namespace zorvane
