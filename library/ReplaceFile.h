#pragma once

#include "library/FileLayer.h"

#include <optional>
#include <string_view>

namespace zorvane {

/// Where the content that a save replaced is kept.
String BackupOf(const String& path);

/// Replaces the content of a file, or creates the file. The bytes are written to a temporary file
/// in the same folder, flushed and renamed, so that at any moment the name leads to all of the old
/// bytes or to all of the new ones. Owner, group and permissions are kept where that is possible,
/// and otherwise only narrowed; symbolic links are followed; a hard link keeps the old content.
///
/// `expected` is what the file held when it was read. It must still hold that, and it is then kept
/// as BackupOf(file), in place of an earlier backup.
///
/// Any failure leaves the file as it was, removes the temporary ones and raises a RuntimeError that
/// says what failed and why: ErrorNumber::ChangedOnDisk, or the number of the FileLayer.
void ReplaceFile(FileLayer& files, const String& path, std::string_view bytes,
                 std::optional<std::string_view> expected = std::nullopt);

} // namespace zorvane
