#include "platform/sqlite/SqliteRegistry.h"

#include "runtime/Text.h"

#include <algorithm>
#include <set>
#include <utility>

namespace zorvane {

SqliteRegistry::SqliteRegistry(const RegistryPlaces& places) {
    if (places.own) own_.emplace(*places.own, RegistryFile::Users::One);
    if (places.shared) shared_.emplace(*places.shared, RegistryFile::Users::All);
}

std::vector<const RegistryFile*> SqliteRegistry::FilesOf(Long root) const {
    std::vector<const RegistryFile*> files;
    if (own_) files.push_back(&*own_);
    if (shared_ && root == kLocalMachine) files.push_back(&*shared_);
    return files;
}

/// Success when any of the files has the key; else what is wrong with one, or that none has it.
Long SqliteRegistry::HasKey(Long root, const String& path) const {
    Long answer = kRegistryNotFound;
    for (const RegistryFile* file : FilesOf(root)) {
        const Long result = file->HasKey(root, path);
        if (result == kRegistrySuccess) return result;
        if (result != kRegistryNotFound) answer = result;
    }
    return answer;
}

template <class Writing>
Long SqliteRegistry::WriteWherePossible(Long root, Writing writing) const {
    Long result = kRegistryAccessDenied;
    if (shared_ && root == kLocalMachine) result = writing(*shared_);
    if (own_ && result == kRegistryAccessDenied) result = writing(*own_);
    return result;
}

Long SqliteRegistry::OpenKey(Long root, const String& key, Long /*access*/, Handle& opened) {
    const Long result = HasKey(root, key);
    if (result == kRegistrySuccess) opened = Remember(root, key);
    return result;
}

Long SqliteRegistry::CreateKey(Long root, const String& key, Long /*access*/, Handle& opened) {
    Long result = HasKey(root, key);
    if (result != kRegistrySuccess) {
        result = WriteWherePossible(
            root, [&](const RegistryFile& file) { return file.MakeKey(root, key); });
    }
    if (result == kRegistrySuccess) opened = Remember(root, key);
    return result;
}

Long SqliteRegistry::QueryValue(Handle key, const String& name, Long capacity, Long& type,
                                String& data) {
    const OpenedKey* const opened = Opened(key);
    if (!opened) return kRegistryInvalidHandle;
    StoredValue value;
    Long answer = kRegistryNotFound;
    for (const RegistryFile* file : FilesOf(opened->root)) {
        const Long result = file->Read(opened->root, opened->path, name, value);
        if (result == kRegistryNotFound) continue;
        answer = result;
        if (result == kRegistrySuccess) break;
    }
    if (answer != kRegistrySuccess) return answer;
    type = value.type;
    if (std::cmp_greater(value.data.size(), capacity)) return kRegistryMoreData;
    data = std::move(value.data);
    return kRegistrySuccess;
}

Long SqliteRegistry::SetValue(Handle key, const String& name, Long type, std::string_view data) {
    const OpenedKey* const opened = Opened(key);
    if (!opened) return kRegistryInvalidHandle;
    const auto write = [&](const RegistryFile& file) {
        return file.Write(opened->root, opened->path, name, type, data);
    };
    const Long result = WriteWherePossible(opened->root, write);
    // An own value would go on hiding what the machine's file now has.
    StoredValue hiding;
    const bool hides = result == kRegistrySuccess && shared_ && own_ &&
                       opened->root == kLocalMachine &&
                       own_->Read(opened->root, opened->path, name, hiding) == kRegistrySuccess;
    return hides ? write(*own_) : result;
}

Long SqliteRegistry::EnumValue(Handle key, Long index, Long nameCapacity, Long dataCapacity,
                               String& name, String& data) {
    OpenedKey* const opened = Opened(key);
    if (!opened) return kRegistryInvalidHandle;
    if (index == 0 || opened->values.empty()) {
        opened->values.clear();
        if (const Long result = Values(opened->root, opened->path, opened->values)) return result;
    }
    if (index < 0 || std::cmp_greater_equal(index, opened->values.size()))
        return kRegistryNoMoreItems;
    const StoredValue& value = opened->values[static_cast<std::size_t>(index)];
    // The name's buffer also holds its terminating zero.
    if (std::cmp_greater_equal(value.name.size(), nameCapacity)) return kRegistryMoreData;
    if (std::cmp_greater(value.data.size(), dataCapacity)) return kRegistryMoreData;
    name = value.name;
    data = value.data;
    return kRegistrySuccess;
}

Long SqliteRegistry::CloseKey(Handle key) {
    return handles_.erase(key) != 0 ? kRegistrySuccess : kRegistryInvalidHandle;
}

std::vector<std::filesystem::path> SqliteRegistry::Files(Long root) const {
    std::vector<std::filesystem::path> paths;
    for (const RegistryFile* file : FilesOf(root))
        paths.push_back(file->Path());
    return paths;
}

/// Asks every file for keys of a root. One that may not be read hides nothing of the other.
template <class Reading>
Long SqliteRegistry::FromEach(Long root, Reading reading) const {
    bool read = false;
    bool denied = false;
    for (const RegistryFile* file : FilesOf(root)) {
        const Long result = reading(*file);
        read = read || result == kRegistrySuccess;
        denied = denied || result == kRegistryAccessDenied;
        const bool harmless = result == kRegistrySuccess || result == kRegistryNotFound ||
                              result == kRegistryAccessDenied;
        if (!harmless) return result;
    }
    return denied && !read ? kRegistryAccessDenied : kRegistrySuccess;
}

Long SqliteRegistry::Keys(std::vector<StoredKey>& keys) const {
    std::map<std::pair<Long, String>, StoredKey> sorted;
    const Long result = FromEach(kLocalMachine, [&](const RegistryFile& file) {
        std::vector<StoredKey> found;
        const Long answer = file.Keys(found);
        const bool servesAll = own_ && &file == &*own_;
        for (StoredKey& key : found) {
            if (servesAll || key.root == kLocalMachine)
                sorted.try_emplace({key.root, LowerText(key.path)}, std::move(key));
        }
        return answer;
    });
    for (auto& [order, key] : sorted)
        keys.push_back(std::move(key));
    return result;
}

Long SqliteRegistry::Values(Long root, const String& key, std::vector<StoredValue>& values) const {
    std::set<String> names;
    return FromEach(root, [&](const RegistryFile& file) {
        std::vector<StoredValue> found;
        const Long answer = file.List(root, key, found);
        for (StoredValue& value : found)
            if (names.insert(LowerText(value.name)).second) values.push_back(std::move(value));
        return answer;
    });
}

// The machine's file comes first: what may not be removed there would show again once the user's
// own value is gone.
template <class Deleting>
Long SqliteRegistry::DeleteFromEach(Long root, Deleting deleting) const {
    Long answer = kRegistryNotFound;
    auto files = FilesOf(root);
    std::reverse(files.begin(), files.end());
    for (const RegistryFile* const file : files) {
        const Long result = deleting(*file);
        if (result == kRegistryNotFound) continue;
        answer = result;
        if (result != kRegistrySuccess) break;
    }
    return answer;
}

Long SqliteRegistry::DeleteValue(Long root, const String& key, const String& name) const {
    return DeleteFromEach(
        root, [&](const RegistryFile& file) { return file.DeleteValue(root, key, name); });
}

Long SqliteRegistry::DeleteKey(Long root, const String& key) const {
    return DeleteFromEach(root,
                          [&](const RegistryFile& file) { return file.DeleteKey(root, key); });
}

SqliteRegistry::OpenedKey* SqliteRegistry::Opened(Handle key) {
    const auto found = handles_.find(key);
    return found == handles_.end() ? nullptr : &found->second;
}

Registry::Handle SqliteRegistry::Remember(Long root, const String& path) {
    handles_[++lastHandle_] = {root, path, {}};
    return lastHandle_;
}

} // namespace zorvane
