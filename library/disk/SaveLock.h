#pragma once

#include "library/disk/Descriptor.h"
#include "library/disk/TemporaryNames.h"

#include <memory>

namespace zorvane {

/// The right to save a file, which one program has at a time. It is an advisory lock on a file
/// next to it, ".NAME.zorvane-lock", that the holder removes. Where the file system has no locks,
/// as on some network shares, having made that file is the lock; one that a killed program has
/// left then keeps everybody out until somebody removes it, which the error says.
class SaveLock {
  public:
    /// Waits some ten seconds for another holder, then raises 75.
    explicit SaveLock(const String& path);
    ~SaveLock();
    SaveLock(const SaveLock&) = delete;
    SaveLock& operator=(const SaveLock&) = delete;

  private:
    bool TryLock();

    String path_;
    std::unique_ptr<Descriptor> held_;
    std::unique_ptr<TemporaryFile> file_; ///< removed before the lock is given up
};

} // namespace zorvane
