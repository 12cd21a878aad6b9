#include "platform/sqlite/SqliteRegistry.h"

#include "runtime/Text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace zorvane {

SqliteRegistry::SqliteRegistry(const RegistryPlaces& places) {
    if (places.own) own_.emplace(*places.own);
    if (places.shared) shared_.emplace(*places.shared);
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
    if (index == 0) {
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

Long SqliteRegistry::Keys(std::vector<StoredKey>& keys) const {
    for (const RegistryFile* file : FilesOf(kLocalMachine)) {
        std::vector<StoredKey> found;
        const Long result = file->Keys(found);
        if (result != kRegistrySuccess && result != kRegistryNotFound) return result;
        for (StoredKey& key : found) {
            const bool known = std::any_of(keys.begin(), keys.end(), [&](const StoredKey& other) {
                return other.root == key.root && EqualNoCase(other.path, key.path);
            });
            const bool served = file == &*own_ || key.root == kLocalMachine;
            if (served && !known) keys.push_back(std::move(key));
        }
    }
    return kRegistrySuccess;
}

Long SqliteRegistry::Values(Long root, const String& key, std::vector<StoredValue>& values) const {
    for (const RegistryFile* file : FilesOf(root)) {
        std::vector<StoredValue> found;
        const Long result = file->List(root, key, found);
        if (result != kRegistrySuccess && result != kRegistryNotFound) return result;
        const auto ownEnd = static_cast<std::ptrdiff_t>(values.size());
        std::copy_if(std::move_iterator(found.begin()), std::move_iterator(found.end()),
                     std::back_inserter(values), [&](const StoredValue& value) {
                         return std::none_of(values.begin(), values.begin() + ownEnd,
                                             [&](const StoredValue& own) {
                                                 return EqualNoCase(own.name, value.name);
                                             });
                     });
    }
    return kRegistrySuccess;
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
