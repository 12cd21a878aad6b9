#pragma once

#include "library/FileLayer.h"
#include "library/LibraryText.h"

namespace zorvane {

/// A plate library that is open for editing. It remembers what the file held when it was read, and
/// never overwrites anything else. Failures are RuntimeErrors with a description for the user; a
/// save that fails leaves the file and this object as they were.
class LibraryDocument {
  public:
    /// Reads the library; the layer must outlive this object.
    LibraryDocument(FileLayer& files, const String& path);

    const String& Path() const { return path_; }
    const LibraryText& Text() const { return text_; }
    /// Whether the file holds something else by now, or cannot be read.
    bool ChangedOnDisk() const;
    /// Takes what the file holds now.
    void Reload();
    /// Puts a changed text in place of what was read; ErrorNumber::ChangedOnDisk when the file has
    /// changed.
    void Save(const LibraryText& text);

  private:
    FileLayer& files_;
    String path_;
    LibraryText text_;
};

} // namespace zorvane
