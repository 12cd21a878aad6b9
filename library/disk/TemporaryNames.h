#pragma once

#include "runtime/Types.h"

#include <cstddef>
#include <string_view>

namespace zorvane {

/// The name of a file that saving `path` needs for a while, next to it: ".NAME.zorvane-END".
String TemporaryName(const String& path, std::string_view end);

/// A new one of these names.
String NewTemporaryName(const String& path);

/// Removes the temporary files that programs which were killed while saving `path` have left. Only
/// for the holder of its lock, as no others are in use then.
void SweepTemporaries(const String& path);

/// A file that goes away with this object, or with the program when a signal ends it.
class TemporaryFile {
  public:
    explicit TemporaryFile(String path);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const String& Path() const { return path_; }

    /// Removes the files of all these objects. Safe in a signal handler.
    static void RemoveAll() noexcept;

  private:
    String path_;
    std::size_t slot_;
};

} // namespace zorvane
