#pragma once

#include "library/FileLayer.h"

#include <map>

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
    void RenameToNew(const String& from, const String& to) override;
    std::shared_ptr<void> Lock(const String& path) override;
    void SyncFolder(const String& path) override;

  private:
    std::map<String, std::weak_ptr<void>> locks_; ///< those that are held, by path
};

} // namespace zorvane
