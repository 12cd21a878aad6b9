#pragma once

#include "library/LibraryText.h"
#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <string_view>
#include <utility>

namespace zorvane {

/// Raises a failure with a description for the user.
[[noreturn]] void Fail(const String& description);

/// Whether a file name means standard input or output: "-".
bool IsStandard(const String& file);

/// A file's name as messages give it.
String ShownName(const String& file);

/// Does something with a file and puts the file's name before the description of a failure.
template <class Action>
auto WithFile(const String& file, Action&& action) {
    try {
        return std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        Fail(ShownName(file) + ": " + error.Description());
    }
}

/// What an error of a plate's members means, to follow the plate's name.
String PlateFailureText(const RuntimeError& error);

/// Does something with a plate and says in words what the failures of its members mean, after the
/// plate's name.
template <class Action>
auto WithPlate(const String& plate, Action&& action) {
    try {
        return std::forward<Action>(action)();
    } catch (const RuntimeError& error) {
        Fail(plate + PlateFailureText(error));
    }
}

/// Writes bytes to standard output as they are.
void Print(std::string_view text);

/// Writes a warning to standard error.
void Warn(const String& text);

/// Puts bytes in place of a file as ReplaceFile does, or writes them to a device or pipe; to
/// standard output where the name is empty or "-".
void WriteFile(const String& file, std::string_view bytes);

/// Everything in a file, a device or a pipe; "-" is standard input. Fails for more than
/// kMostBytesRead.
String ReadFile(const String& file);

/// A plate library, read like any file. Fails as CheckDefinitionSizes does.
LibraryText ReadLibrary(const String& file);

/// The plate of a library as programs find it by name.
cmPlate ReadPlate(const String& file, const String& name);

} // namespace zorvane
