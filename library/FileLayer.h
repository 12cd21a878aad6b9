#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

#include <memory>
#include <string_view>

namespace zorvane {

/// What keeping a library safe asks of the file system, one step a call, so that tests can let any
/// of them fail. Every call raises a RuntimeError whose description is the reason in words, fit to
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

    /// The file that a path leads to, through any symbolic links; error 53 when there is none.
    virtual String Resolved(const String& path) = 0;
    /// Raises 75 when the file is not meant to be written to.
    virtual void CheckWritable(const String& path) = 0;
    virtual String Read(const String& path) = 0;
    /// Creates an empty file of a new name in the same folder, with the same permissions.
    virtual std::unique_ptr<Output> CreateBeside(const String& path) = 0;
    /// Gives a file another name in its folder in one step, in place of a file that has it.
    virtual void Rename(const String& from, const String& to) = 0;
    virtual void Remove(const String& path) = 0;
    /// Returns once the names in the folder of a file are on the device.
    virtual void SyncFolder(const String& path) = 0;
};

} // namespace zorvane
