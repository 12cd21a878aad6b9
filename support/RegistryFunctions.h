#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <string_view>
#include <vector>

/// Values in the process's registry. A key is a path below a predefined root, with parts separated
/// by "\". Nothing here raises a failure of the registry: reading falls back to a default, writing
/// and listing show it in a message box.
namespace zorvane {

/// The value as text, or `fallback` when the key or value is absent or has 256 bytes or more.
/// Strings are read up to their first zero character, with environment references unexpanded; a
/// 32-bit number reads as "&H" and 8 hexadecimal digits; any other type as empty text. `valueType`
/// receives the stored type when there is a value.
ZORVANE_EXPORT String GetSettingEx(Long root, const String& key, const String& valueName,
                                   const String& fallback, Long& valueType);

/// Stores a string value, without a terminating zero, and creates the key where it is missing. True
/// when it was stored.
ZORVANE_EXPORT Boolean SaveSettingEx(Long root, const String& key, const String& valueName,
                                     const String& value);

/// Lists the values of a key and returns how many there are: at most 51, and none from the first
/// one on whose name has 256 characters or more or whose data has more than 256 bytes. Data come
/// as they are stored, a terminating zero included. With a result of 0 both lists are left
/// unchanged.
ZORVANE_EXPORT Integer EnumerateValues(Long root, const String& key, std::vector<String>& names,
                                       std::vector<String>& values);

/// The text up to its first zero character.
ZORVANE_EXPORT String TrimNull(std::string_view text);

/// The first n bytes as a text; none for a negative n. Error 9 when there are fewer.
ZORVANE_EXPORT String BytesToText(std::string_view bytes, Long n);

} // namespace zorvane
