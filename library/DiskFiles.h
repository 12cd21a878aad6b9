#pragma once

#include "library/FileLayer.h"

namespace zorvane {

/// The file system of the machine.
class DiskFiles final : public FileLayer {
  public:
    String Resolved(const String& path) override;
    bool Exists(const String& path) override;
    void CheckWritable(const String& path) override;
    String Read(const String& path) override;
    std::unique_ptr<Output> CreateBeside(const String& path) override;
    void Rename(const String& from, const String& to) override;
    void Remove(const String& path) override;
    std::shared_ptr<void> LockFolder(const String& path) override;
    void SyncFolder(const String& path) override;
};

} // namespace zorvane
