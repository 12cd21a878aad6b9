#pragma once

#include "library/FileLayer.h"

#include <memory>
#include <optional>
#include <string_view>

namespace zorvane {

/// Where the content that a save replaced is kept.
String BackupOf(const String& path);

/// Takes the lock of a file for reading it, changing it and saving it again: two programs that do
/// so wait for one another, and neither undoes what the other has saved. The file need not exist;
/// one that could not be saved is refused at once. ReplaceFile and CreateFile take the lock
/// themselves where the caller does not hold it. Fails as ReplaceFile does.
std::shared_ptr<void> LockForSaving(FileLayer& files, const String& path);

/// Replaces the content of a file, or creates the file. The bytes are written to a temporary file
/// in the same folder, flushed and renamed, so that at any moment the name leads to all of the old
/// bytes or to all of the new ones. Owner, group, permissions, access list and extended attributes
/// are kept; symbolic links are followed; a hard link keeps the old content.
///
/// `expected` is what the file held when it was read. It must still hold that, and it is then kept
/// as BackupOf(file), in place of an earlier backup.
///
/// Any failure leaves the file as it was, removes the temporary ones and raises a RuntimeError that
/// says what failed and why: ErrorNumber::ChangedOnDisk, or the number of the FileLayer.
void ReplaceFile(FileLayer& files, const String& path, std::string_view bytes,
                 std::optional<std::string_view> expected = std::nullopt);

/// Creates a file like ReplaceFile; ErrorNumber::ChangedOnDisk when there is one by now.
void CreateFile(FileLayer& files, const String& path, std::string_view bytes);

} // namespace zorvane
