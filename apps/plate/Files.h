#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <functional>
#include <string_view>
#include <utility>

namespace zorvane {

/// Raises a failure with a description for the user.
[[noreturn]] void Fail(const String& description);

/// Does something with a file and puts the file's name in front of what a failure says.
template <class Action>
auto WithFile(const String& file, Action&& action) {
    try {
        return std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        Fail(file + ": " + error.Description());
    }
}

/// Writes to a file, or to standard output where the name is empty or "-". Bytes go out as they
/// are.
void WriteAll(const String& file, std::string_view text);

/// Replaces a file by what `write` puts into the temporary file beside it that it is given the name
/// of: at any moment the file is the old one or the new one. With a failure it stays the old one.
void ReplaceFile(const String& file, const std::function<void(const String& temporary)>& write);

/// Everything in a file; "-" is standard input.
String ReadAll(const String& file);

} // namespace zorvane
