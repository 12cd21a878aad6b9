#include "platform/memory/MemoryRegistry.h"

#include "runtime/Text.h"

#include <algorithm>

namespace zorvane {

struct MemoryRegistry::Value {
    String name;
    Long type;
    String data;
};

struct MemoryRegistry::Key {
    std::vector<Value> values; // in the order first written

    Value* Find(const String& name) {
        const auto found = std::find_if(values.begin(), values.end(), [&](const Value& value) {
            return EqualNoCase(value.name, name);
        });
        return found == values.end() ? nullptr : &*found;
    }
};

MemoryRegistry::MemoryRegistry() = default;
MemoryRegistry::~MemoryRegistry() = default;

Long MemoryRegistry::OpenKey(Long root, const String& key, Long /*access*/, Handle& opened) {
    const auto found = keys_.find({root, LowerText(key)});
    if (found == keys_.end()) return kRegistryNotFound;
    opened = OpenHandle(*found->second);
    return kRegistrySuccess;
}

Long MemoryRegistry::CreateKey(Long root, const String& key, Long /*access*/, Handle& opened) {
    if (refusal_ != kRegistrySuccess) return refusal_;
    opened = OpenHandle(MakeKey(root, LowerText(key)));
    return kRegistrySuccess;
}

Long MemoryRegistry::QueryValue(Handle key, const String& name, Long capacity, Long& type,
                                String& data) {
    Key* const opened = KeyOf(key);
    if (!opened) return kRegistryInvalidHandle;
    const Value* const value = opened->Find(name);
    if (!value) return kRegistryNotFound;
    type = value->type;
    if (static_cast<Long>(value->data.size()) > capacity) return kRegistryMoreData;
    data = value->data;
    return kRegistrySuccess;
}

Long MemoryRegistry::SetValue(Handle key, const String& name, Long type, std::string_view data) {
    Key* const opened = KeyOf(key);
    if (!opened) return kRegistryInvalidHandle;
    if (refusal_ != kRegistrySuccess) return refusal_;
    if (Value* const value = opened->Find(name)) {
        value->type = type;
        value->data = data;
    } else {
        opened->values.push_back({name, type, String(data)});
    }
    return kRegistrySuccess;
}

Long MemoryRegistry::EnumValue(Handle key, Long index, Long nameCapacity, Long dataCapacity,
                               String& name, String& data) {
    Key* const opened = KeyOf(key);
    if (!opened) return kRegistryInvalidHandle;
    if (index < 0 || index >= static_cast<Long>(opened->values.size())) return kRegistryNoMoreItems;
    const Value& value = opened->values[static_cast<std::size_t>(index)];
    // The name's buffer also holds its terminating zero.
    if (static_cast<Long>(value.name.size()) >= nameCapacity) return kRegistryMoreData;
    if (static_cast<Long>(value.data.size()) > dataCapacity) return kRegistryMoreData;
    name = value.name;
    data = value.data;
    return kRegistrySuccess;
}

Long MemoryRegistry::CloseKey(Handle key) {
    return handles_.erase(key) != 0 ? kRegistrySuccess : kRegistryInvalidHandle;
}

void MemoryRegistry::Put(Long root, const String& key, const String& name, Long type,
                         std::string_view data) {
    Handle opened = 0;
    CreateKey(root, key, kAllAccess, opened);
    SetValue(opened, name, type, data);
    CloseKey(opened);
}

MemoryRegistry::Key& MemoryRegistry::MakeKey(Long root, const String& path) {
    Key* made = nullptr;
    std::size_t end = 0;
    do {
        end = path.find('\\', end + 1);
        auto& key = keys_[{root, path.substr(0, end)}];
        if (!key) key = std::make_unique<Key>();
        made = key.get();
    } while (end != path.npos);
    return *made;
}

MemoryRegistry::Key* MemoryRegistry::KeyOf(Handle handle) {
    const auto found = handles_.find(handle);
    return found == handles_.end() ? nullptr : found->second;
}

Registry::Handle MemoryRegistry::OpenHandle(Key& key) {
    handles_[++lastHandle_] = &key;
    return lastHandle_;
}

} // namespace zorvane
