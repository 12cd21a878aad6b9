#pragma once

#include "apps/plate/registry/RegistryPath.h"
#include "platform/sqlite/SqliteRegistry.h"

#include <vector>

namespace zorvane {

/// Fails with what a result means, naming what was asked for and, where that helps, the files.
void CheckResult(Long result, const SqliteRegistry& registry, const RegistryPath& path,
                 const String& name = {});

/// A key that is closed when it goes.
class OpenKey {
  public:
    /// Fails where there is none and none is to be made.
    OpenKey(SqliteRegistry& registry, const RegistryPath& path, bool make);
    ~OpenKey() { registry_.CloseKey(handle_); }
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    Registry::Handle Handle() const { return handle_; }

  private:
    Registry& registry_;
    Registry::Handle handle_ = 0;
};

std::vector<StoredValue> ValuesOf(SqliteRegistry& registry, const RegistryPath& path);

/// Every key, by root and in alphabetical order.
std::vector<RegistryPath> AllKeys(const SqliteRegistry& registry);

/// Those below a key, however deep.
std::vector<RegistryPath> KeysBelow(const SqliteRegistry& registry, const RegistryPath& parent);

/// Returns whether a path is that of the parent or below it.
bool LiesIn(const RegistryPath& path, const RegistryPath& parent);

} // namespace zorvane
