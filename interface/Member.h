#pragma once

#include "control/Plate.h"
#include "control/PlateObserver.h"
#include "control/SavedSettings.h"
#include "interface/Argument.h"

#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>

/// The rows of the table of members. Each has the member it describes as part of its type: a member
/// that is renamed or changes its type no longer compiles, and a visitor can make a function of its
/// own for each.
namespace zorvane {

/// What every row has.
struct Member {
    constexpr Member(int itsNumber, std::string_view itsName, std::string_view itsHelp)
        : number(itsNumber), name(itsName), help(itsHelp) {}

    int number; ///< by which hosts call it; it never changes
    std::string_view name;
    std::string_view help; ///< one sentence
};

/// Begins the rows that belong together; a heading and a paragraph.
struct MemberGroup {
    std::string_view name;
    std::string_view help;
};

template <class Pointer>
struct FieldType;
template <class Class, class Type>
struct FieldType<Type Class::*> {
    using Value = Type;
};

/// A field that hosts read and write directly.
template <auto field>
struct Field : Member {
    using Value = typename FieldType<decltype(field)>::Value;

    Field(int itsNumber, std::string_view itsName, std::string_view itsHelp,
          std::optional<saved::Setting<Value>> itsSetting = {})
        : Member(itsNumber, itsName, itsHelp), setting(std::move(itsSetting)) {}

    std::optional<saved::Setting<Value>> setting; ///< under which it is saved
};

/// The types of the two functions of a property, with those of its indexes in the parentheses.
template <class Type>
struct Accessors;
template <class Type, class... Index>
struct Accessors<Type(Index...)> {
    using Value = Type;
    using Passed = std::conditional_t<std::is_class_v<Type>, const Type&, Type>;
    using Get = Type (Plate::*)(Index...) const;
    using Put = void (Plate::*)(Index..., Passed);
};

/// A property: null stands for the function that it does not have.
template <class Type, typename Accessors<Type()>::Get get,
          typename Accessors<Type()>::Put put = nullptr>
struct Property : Member {
    using Value = Type;

    Property(int itsNumber, std::string_view itsName, std::string_view itsHelp,
             std::optional<saved::Setting<Value>> itsSetting = {})
        : Member(itsNumber, itsName, itsHelp), setting(std::move(itsSetting)) {}

    std::optional<saved::Setting<Value>> setting; ///< under which it is saved
};

/// A property with indexes, of type Value(Index...).
template <class Type, typename Accessors<Type>::Get get,
          typename Accessors<Type>::Put put = nullptr>
struct IndexedProperty : Member {
    using Value = typename Accessors<Type>::Value;
    using Indexes = typename Signature<typename Accessors<Type>::Get>::Arguments;

    IndexedProperty(int itsNumber, std::string_view itsName, std::string_view itsHelp,
                    Indexes itsIndexes)
        : Member(itsNumber, itsName, itsHelp), indexes(std::move(itsIndexes)) {}

    Indexes indexes;
};

/// What methods and events share. Every argument has to be named.
template <auto call>
struct Callable : Member {
    using Result = typename Signature<decltype(call)>::Result;
    using Arguments = typename Signature<decltype(call)>::Arguments;

    Callable(int itsNumber, std::string_view itsName, std::string_view itsHelp,
             Arguments itsArguments = {})
        : Member(itsNumber, itsName, itsHelp), arguments(std::move(itsArguments)) {}

    Arguments arguments;
};

template <auto call>
struct Method : Callable<call> {
    using Callable<call>::Callable;
};

/// Events have numbers of their own.
template <auto call>
struct Event : Callable<call> {
    using Callable<call>::Callable;
};

} // namespace zorvane
