#include "interface/MemberList.h"

#include "interface/DescribePlate.h"

#include <type_traits>

namespace zorvane {

namespace {

constexpr ValueType TypeOf(std::type_identity<void>) { return ValueType::None; }
constexpr ValueType TypeOf(std::type_identity<Boolean>) { return ValueType::Bool; }
constexpr ValueType TypeOf(std::type_identity<Integer>) { return ValueType::Int16; }
constexpr ValueType TypeOf(std::type_identity<Long>) { return ValueType::Int32; }
constexpr ValueType TypeOf(std::type_identity<WellSelectAction>) { return ValueType::Int32; }
constexpr ValueType TypeOf(std::type_identity<Single>) { return ValueType::Float; }
constexpr ValueType TypeOf(std::type_identity<String>) { return ValueType::Text; }

/// The type of what hosts get or give; any that they do not know does not compile.
template <class Type>
constexpr ValueType kTypeOf = TypeOf(std::type_identity<Type>());

PropertyValue Stored(Boolean value) { return value; }
PropertyValue Stored(Long value) { return value; }
PropertyValue Stored(Single value) { return value; }
PropertyValue Stored(std::string_view value) { return String(value); }

template <class Type>
ArgumentDescription Described(const Argument<Type>& argument) {
    ArgumentDescription described{.name = argument.name,
                                  .type = kTypeOf<typename Argument<Type>::Value>,
                                  .isResult = Argument<Type>::kIsResult,
                                  .values = argument.values};
    if (argument.defaultValue) described.defaultValue = Stored(*argument.defaultValue);
    return described;
}

template <class... Types>
std::vector<ArgumentDescription> DescribedAll(const std::tuple<Argument<Types>...>& arguments) {
    const auto list = [](const auto&... each) {
        return std::vector<ArgumentDescription>{Described(each)...};
    };
    return std::apply(list, arguments);
}

template <class Value>
std::optional<PropertyValue> DefaultOf(const std::optional<saved::Setting<Value>>& setting) {
    if (!setting) return std::nullopt;
    return setting->fallback;
}

class Lister {
  public:
    void operator()(const MemberGroup& group) { groups_.push_back({group.name, group.help}); }

    template <auto field>
    void operator()(const Field<field>& row) {
        Add(row, {.kind = MemberKind::Field,
                  .type = kTypeOf<typename Field<field>::Value>,
                  .readable = true,
                  .writable = true,
                  .saved = DefaultOf(row.setting)});
    }

    template <class Value, auto get, auto put>
    void operator()(const Property<Value, get, put>& row) {
        Add(row, {.kind = MemberKind::Property,
                  .type = kTypeOf<Value>,
                  .readable = get != nullptr,
                  .writable = put != nullptr,
                  .saved = DefaultOf(row.setting)});
    }

    template <class Type, auto get, auto put>
    void operator()(const IndexedProperty<Type, get, put>& row) {
        Add(row, {.kind = MemberKind::IndexedProperty,
                  .type = kTypeOf<typename Accessors<Type>::Value>,
                  .readable = get != nullptr,
                  .writable = put != nullptr,
                  .arguments = DescribedAll(row.indexes)});
    }

    template <auto call>
    void operator()(const Method<call>& row) {
        Add(row, {.kind = MemberKind::Method,
                  .type = kTypeOf<typename Method<call>::Result>,
                  .arguments = DescribedAll(row.arguments)});
    }

    template <auto call>
    void operator()(const Event<call>& row) {
        Add(row, {.kind = MemberKind::Event, .arguments = DescribedAll(row.arguments)});
    }

    const std::vector<MemberGroupDescription>& Groups() const { return groups_; }

  private:
    void Add(const Member& row, MemberDescription rest) {
        rest.number = row.number;
        rest.name = row.name;
        rest.help = row.help;
        groups_.back().members.push_back(std::move(rest));
    }

    std::vector<MemberGroupDescription> groups_;
};

} // namespace

std::vector<MemberGroupDescription> ListMembers() {
    Lister lister;
    DescribePlate(lister);
    return lister.Groups();
}

} // namespace zorvane
