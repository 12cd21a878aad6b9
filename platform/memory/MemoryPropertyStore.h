#pragma once

#include "platform/PropertyStore.h"
#include "runtime/Export.h"

#include <utility>
#include <vector>

namespace zorvane {

/// A property store in memory that remembers the order of writing.
class ZORVANE_EXPORT MemoryPropertyStore final : public PropertyStore {
  public:
    PropertyValue Read(const String& key, const PropertyValue& fallback) const override;
    void Write(const String& key, const PropertyValue& value,
               const PropertyValue& fallback) override;

    /// Every value written, defaults included, in the order first written.
    std::vector<std::pair<String, PropertyValue>> values;
    /// The keys read, in order.
    mutable std::vector<String> reads;
};

} // namespace zorvane
