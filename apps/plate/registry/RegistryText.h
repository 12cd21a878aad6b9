#pragma once

#include "platform/sqlite/RegistryFile.h"

#include <cstdint>
#include <vector>

namespace zorvane {

/// What a registry call's result means, for the user.
String RegistryResultText(Long result);

/// The name of a stored type: "string", "number", ...
String TypeText(Long type);

/// A value's data for the user: text up to its terminating zero, a number in decimal, other bytes
/// in hexadecimal.
String DataText(const StoredValue& value);

/// The data of a number of 32 bits, whose bytes come lowest first.
String NumberBytes(std::uint32_t number);

/// A key and its values for people to read and compare, and to import: the key in brackets, then a
/// line for each value, whose data are a quoted text, the hexadecimal digits of a number or bytes.
/// A text that does not fit a line is written as its bytes; the value without a name is "@".
String ExportText(const String& key, const std::vector<StoredValue>& values);

} // namespace zorvane
