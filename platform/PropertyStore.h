#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <variant>

namespace zorvane {

/// A saved setting: one of the scalar types that the control saves.
using PropertyValue = std::variant<Boolean, Long, Single, String>;

/// The host's design-time store of one control: typed values under names. Used only inside the
/// calls that restore and save a control; keys and values live for the duration of each call.
class ZORVANE_EXPORT PropertyStore {
  public:
    virtual ~PropertyStore() = default;

    /// The stored value, or `fallback` when the store has none under this key.
    virtual PropertyValue Read(const String& key, const PropertyValue& fallback) const = 0;
    /// Stores a value; a store may leave out values equal to `fallback`.
    virtual void Write(const String& key, const PropertyValue& value,
                       const PropertyValue& fallback) = 0;
};

} // namespace zorvane
