#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace zorvane {

/// The most bytes that a file is read of: more than any library has. What has no end, such as some
/// devices, would only fill the memory.
inline constexpr std::size_t kMostBytesRead = std::size_t{1} << 28;

/// What replacing a file asks of the file system, one step a call, so that tests can let any of
/// them fail. Every call raises a RuntimeError whose description is the reason in words, fit to
/// follow a colon: "the disk is full".
class FileLayer {
  public:
    /// A new file that is being written. Going away closes it.
    class Output {
      public:
        virtual ~Output() = default;
        virtual const String& Path() const = 0;
        virtual void Write(std::string_view bytes) = 0;
        /// Returns once the bytes are on the device.
        virtual void Flush() = 0;
        virtual void Close() = 0;
    };

    virtual ~FileLayer() = default;

    /// The file that a path leads to through any symbolic links, whether or not it exists; error 53
    /// when there is no such folder.
    virtual String Resolved(const String& path) = 0;
    virtual bool Exists(const String& path) = 0;
    /// Raises 75 when a path is not an ordinary file, or is not meant to be written to.
    virtual void CheckWritable(const String& path) = 0;
    /// Everything in an ordinary file; raises 75 for any other, without waiting for its content.
    virtual String Read(const String& path) = 0;
    /// Creates an empty temporary file in the same folder, which goes away with the result unless
    /// it was renamed. It takes the owner, group, permissions, access list and attributes of the
    /// file, and those of a new file where that does not exist. Raises 75 when one of them cannot
    /// be kept.
    virtual std::unique_ptr<Output> CreateBeside(const String& path) = 0;
    /// Gives a file another name in its folder in one step, in place of a file that has it.
    virtual void Rename(const String& from, const String& to) = 0;
    /// Rename, which raises ChangedOnDisk when a file has the name.
    virtual void RenameToNew(const String& from, const String& to) = 0;
    /// Keeps others that ask for it from saving a file for as long as the result lives. Asking
    /// again meanwhile, through the same layer, gives the same lock. Raises 75 when somebody else
    /// does not let go of it.
    virtual std::shared_ptr<void> Lock(const String& path) = 0;
    /// Returns once the names in the folder of a file are on the device.
    virtual void SyncFolder(const String& path) = 0;
};

} // namespace zorvane
