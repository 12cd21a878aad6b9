#pragma once

#include "support/TStringPairList.h"

namespace zorvane {

/// What a file may hold: just one list of pairs, or other sections around and behind it as well.
enum class FileContent { NothingElse, Any };

/// Reads a list from an XML file, its name without the quotes that it is saved in. Raises a failure
/// for the user.
void ReadPairs(TStringPairList& list, const String& file, FileContent content);

/// Saves a list as an XML file, which is the old one or the whole new one at any moment. Warns the
/// user of what the file does not keep, and fails when it could not be read back.
void SavePairs(const TStringPairList& list, const String& file);

/// Whether a list has this very pair, apart from letter case of its name.
bool Holds(const TStringPairList& list, const TStringPair& pair);

} // namespace zorvane
