#pragma once

#include "interface/Enumerations.h"
#include "platform/PropertyStore.h"
#include "runtime/Types.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

/// The table of members as plain values, for visitors that write or look up and call nothing.
namespace zorvane {

enum class MemberKind : std::uint8_t { Field, Property, IndexedProperty, Method, Event };

enum class ValueType : std::uint8_t { None, Bool, Int16, Int32, Float, Text };

struct ArgumentDescription {
    std::string_view name{};
    ValueType type = ValueType::None; ///< Int32 for an enumeration
    bool isResult = false;            ///< passed by reference, and only given back
    const Enumeration* values = nullptr;
    /// Of an argument that callers may leave out; an Int16's is a Long.
    std::optional<PropertyValue> defaultValue{};
};

struct MemberDescription {
    int number = 0; ///< events have numbers of their own
    std::string_view name{};
    std::string_view help{};
    MemberKind kind = MemberKind::Field;
    ValueType type = ValueType::None; ///< of the value, or of what a method gives back
    bool readable = false;            ///< of fields and properties
    bool writable = false;
    /// Of methods and events, and the indexes of an indexed property.
    std::vector<ArgumentDescription> arguments{};
    /// What a saved setting has in a new control; empty text where that is found at run time.
    std::optional<PropertyValue> saved{};
};

struct MemberGroupDescription {
    std::string_view name{};
    std::string_view help{};
    std::vector<MemberDescription> members{};
};

/// What DescribePlate lists, in its order; the last group is the events.
std::vector<MemberGroupDescription> ListMembers();

} // namespace zorvane
