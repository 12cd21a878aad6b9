#pragma once

#include "library/disk/TemporaryNames.h"
#include "runtime/Types.h"

#include <optional>
#include <string_view>

namespace zorvane {

/// A plate library that the control can open by name: the file itself, or, for standard input and
/// for pipes and devices, which can be read but once, a private copy that goes away with this.
class LibraryFile {
  public:
    /// `bytes` is what was read of the file.
    LibraryFile(const String& file, std::string_view bytes);

    const String& Path() const { return path_; }

  private:
    String path_;
    std::optional<TemporaryFile> copy_;
};

} // namespace zorvane
