#pragma once

#include "platform/Registry.h"
#include "platform/sqlite/RegistryFile.h"
#include "platform/sqlite/RegistryPlaces.h"

#include <map>
#include <optional>
#include <vector>

namespace zorvane {

/// A registry that outlives the process, for platforms that have none: kept in SQLite files, of
/// which nothing is touched before the first call. docs/registry.md says where they are.
///
/// HKEY_LOCAL_MACHINE is written to the machine's file or, by those who may not write there, to
/// their own. A value in their own file comes before one of the same name in the machine's: without
/// that, what they write over a value of the machine would have no effect.
class SqliteRegistry final : public Registry {
  public:
    explicit SqliteRegistry(const RegistryPlaces& places = PlacesInForce());

    Long OpenKey(Long root, const String& key, Long access, Handle& opened) override;
    Long CreateKey(Long root, const String& key, Long access, Handle& opened) override;
    Long QueryValue(Handle key, const String& name, Long capacity, Long& type,
                    String& data) override;
    Long SetValue(Handle key, const String& name, Long type, std::string_view data) override;
    /// Value number 0 reads the list, which the numbers after it go on with, whatever is written
    /// meanwhile.
    Long EnumValue(Handle key, Long index, Long nameCapacity, Long dataCapacity, String& name,
                   String& data) override;
    Long CloseKey(Handle key) override;

    /// Every key, by root and in alphabetical order.
    Long Keys(std::vector<StoredKey>& keys) const;
    /// The values of a key with their types, as they are enumerated.
    Long Values(Long root, const String& key, std::vector<StoredValue>& values) const;

    /// Removes a value, or a key with all that is in it and below it, from every file that has it.
    /// kRegistryNotFound where none has; kRegistryAccessDenied, and nothing is removed from that
    /// file, for one that may not be written.
    Long DeleteValue(Long root, const String& key, const String& name) const;
    Long DeleteKey(Long root, const String& key) const;

    /// The files that a root's keys are read from, the one that counts first.
    std::vector<std::filesystem::path> Files(Long root) const;

  private:
    struct OpenedKey {
        Long root;
        String path;
        std::vector<StoredValue> values; ///< as they are being enumerated
    };

    /// The files that hold keys of a root, in the order in which they are read.
    std::vector<const RegistryFile*> FilesOf(Long root) const;
    Long HasKey(Long root, const String& path) const;
    template <class Reading>
    Long FromEach(Long root, Reading reading) const;
    template <class Writing>
    Long WriteWherePossible(Long root, Writing writing) const;
    template <class Deleting>
    Long DeleteFromEach(Long root, Deleting deleting) const;
    OpenedKey* Opened(Handle key);
    Handle Remember(Long root, const String& path);

    std::optional<RegistryFile> own_;
    std::optional<RegistryFile> shared_;
    std::map<Handle, OpenedKey> handles_;
    Handle lastHandle_ = 0;
};

} // namespace zorvane
