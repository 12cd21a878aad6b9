#pragma once

#include "behaviour/HostDriver.h"

#include <map>

namespace zorvane {

/// The text with " | " for its line breaks.
String OnOneLine(String text);

/// Everything that a control and its window show, by name.
std::map<String, String> SnapshotOf(HostDriver& host);

} // namespace zorvane
