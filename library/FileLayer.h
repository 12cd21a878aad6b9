#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <memory>
#include <string_view>

namespace zorvane {

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
    virtual String Read(const String& path) = 0;
    /// Creates an empty file of a new name in the same folder. It takes the owner, group and
    /// permissions of the file, and of a new file where that does not exist.
    virtual std::unique_ptr<Output> CreateBeside(const String& path) = 0;
    /// Gives a file another name in its folder in one step, in place of a file that has it.
    virtual void Rename(const String& from, const String& to) = 0;
    virtual void Remove(const String& path) = 0;
    /// Keeps others that ask for it from going on with the files of a folder, that of `path`, for
    /// as long as the result lives. Raises 75 when somebody else does not let go of it.
    virtual std::shared_ptr<void> LockFolder(const String& path) = 0;
    /// Returns once the names in the folder of a file are on the device.
    virtual void SyncFolder(const String& path) = 0;
};

} // namespace zorvane
