#pragma once

#include "platform/Registry.h"

#include <filesystem>
#include <vector>

namespace zorvane {

/// A value as it is kept.
struct StoredValue {
    String name;
    Long type = 0;
    String data;
};

/// A key as it is kept: its root and the path below it, in the letter case first written.
struct StoredKey {
    Long root = 0;
    String path;
};

/// One SQLite file that holds keys and values. Every call opens it, so that a file that is made,
/// replaced or removed meanwhile is no matter, and answers a RegistryResult. Reading creates
/// nothing; a missing file holds no keys.
///
/// A change is on the disk when its call returns, as a whole or not at all whenever the process is
/// killed; processes that write at once take turns. The file keeps SQLite's rollback journal: with
/// it, unlike the write-ahead log, a file in a directory that can't be written can be read.
class RegistryFile {
  public:
    /// A file for one user or one that all users share, which decides who may look into the folders
    /// that are made for it.
    enum class Users { One, All };
    RegistryFile(std::filesystem::path path, Users users)
        : path_(std::move(path)), shared_(users == Users::All) {}

    const std::filesystem::path& Path() const { return path_; }

    Long HasKey(Long root, const String& path) const;
    /// Makes a key and what is missing of its path, with the directory that the file lies in.
    Long MakeKey(Long root, const String& path) const;
    Long Read(Long root, const String& path, const String& name, StoredValue& value) const;
    /// Writes a value; makes its key when that is missing.
    Long Write(Long root, const String& path, const String& name, Long type,
               std::string_view data) const;
    /// Removes a value; kRegistryNotFound where there is none.
    Long DeleteValue(Long root, const String& path, const String& name) const;
    /// Removes a key with its values and the keys below it; kRegistryNotFound where there is none.
    Long DeleteKey(Long root, const String& path) const;
    /// The values of a key in the order first written.
    Long List(Long root, const String& path, std::vector<StoredValue>& values) const;
    /// All keys in the order made.
    Long Keys(std::vector<StoredKey>& keys) const;

  private:
    template <class Reading>
    Long WhileReading(Reading reading) const;
    template <class Writing>
    Long WhileWriting(Writing writing) const;
    template <class Writing>
    Long WhileChanging(Writing writing) const;

    std::filesystem::path path_;
    bool shared_;
};

} // namespace zorvane
