#pragma once

#include "behaviour/HostDriver.h"

namespace zorvane {

/// Runs a command of a transcript, with the lines that belong to it, and returns what it gives, a
/// line, or nothing. The words of a command are separated by blanks unless they are in quotes.
String RunCommand(HostDriver& host, const String& command, const String& lines);

} // namespace zorvane
