#pragma once

#include "interface/Enumerations.h"

#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace zorvane {

/// An argument of a member whose parameter has this type. A reference to a value that can change is
/// an argument that the member only gives back.
template <class Type>
struct Argument {
    using Value = std::remove_cvref_t<Type>;
    using Default = std::conditional_t<std::is_same_v<Value, String>, std::string_view, Value>;
    static constexpr bool kIsResult =
        std::is_lvalue_reference_v<Type> && !std::is_const_v<std::remove_reference_t<Type>>;

    constexpr Argument(const char* itsName) : name(itsName) {}
    constexpr Argument(const char* itsName, Default itsDefault)
        : name(itsName), defaultValue(itsDefault) {}
    /// For a number that is one of an enumeration.
    template <class Enum, class = std::enable_if_t<std::is_enum_v<Enum>>>
    constexpr Argument(const char* itsName, Enum itsDefault)
        : name(itsName), defaultValue(itsDefault), values(kEnumerationOf<Enum>) {}

    std::string_view name;
    std::optional<Default> defaultValue{}; ///< of an argument that callers may leave out
    const Enumeration* values = kEnumerationOf<Value>;
};

/// What a member function gives back, and a tuple with an Argument for each of its parameters.
template <class Call>
struct Signature;

template <class Class, class Type, class... Parameters>
struct Signature<Type (Class::*)(Parameters...)> {
    using Result = Type;
    using Arguments = std::tuple<Argument<Parameters>...>;
};

template <class Class, class Type, class... Parameters>
struct Signature<Type (Class::*)(Parameters...) const> : Signature<Type (Class::*)(Parameters...)> {
};

} // namespace zorvane
