#include "platform/memory/MemoryPropertyStore.h"

#include <algorithm>

namespace zorvane {

PropertyValue MemoryPropertyStore::Read(const String& key, const PropertyValue& fallback) const {
    reads.push_back(key);
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](const auto& each) { return each.first == key; });
    return found == values.end() ? fallback : found->second;
}

void MemoryPropertyStore::Write(const String& key, const PropertyValue& value,
                                const PropertyValue& /*fallback*/) {
    const auto found = std::find_if(values.begin(), values.end(),
                                    [&](const auto& each) { return each.first == key; });
    if (found == values.end()) {
        values.emplace_back(key, value);
    } else {
        found->second = value;
    }
}

} // namespace zorvane
