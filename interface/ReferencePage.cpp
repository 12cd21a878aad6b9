#include "interface/ReferencePage.h"

#include "interface/MemberList.h"
#include "model/cmPlate.h"
#include "runtime/NumberText.h"

#include <sstream>

namespace zorvane {

namespace {

constexpr std::string_view kIntroduction = R"(# The interface of `Plate`

These are the members of the control that host programs use in any language, declared in
`control/Plate.h`, and its events, declared in `control/PlateObserver.h`. What else these headers declare is
for the C++ host that shows the control.

- `Boolean` is `bool`, `Integer` a 16-bit and `Long` a 32-bit signed number, `Single` is `float`, `String`
  is `std::string`.
- A member with one line and no parentheses is a field: `plate.Rows`. A property has a function to read it,
  `plate.Depth()`, one to write it, `plate.Depth(2)`, or both. Properties with indexes take those first.
- An argument like `Single& X` is only given back.
- A failure is a `RuntimeError`; the numbers are those of `runtime/RuntimeError.h`.
- A host's property store keeps the settings that are marked as saved.
- The numbers are for hosts that call members by number. They never change. Events have numbers of their own.

This page is written from the table of members, `interface/DescribePlate.h`. The test `ReferencePage` fails
where they differ and leaves the right page in `docs/interface.md.new`.
)";

constexpr std::string_view kTableHead = "\n| No. | Declaration | Meaning |\n|---|---|---|\n";

constexpr std::string_view TypeName(ValueType type) {
    switch (type) {
    case ValueType::None:
        return "void";
    case ValueType::Bool:
        return "Boolean";
    case ValueType::Int16:
        return "Integer";
    case ValueType::Int32:
        return "Long";
    case ValueType::Float:
        return "Single";
    case ValueType::Text:
        return "String";
    }
    return {};
}

String ParameterType(ValueType type) {
    return type == ValueType::Text ? "const String&" : String(TypeName(type));
}

/// A value as it is written in a program.
struct Spelling {
    String operator()(Boolean value) const { return value ? "true" : "false"; }
    String operator()(Long value) const { return std::to_string(value); }
    String operator()(Single value) const { return SingleText(value); }
    String operator()(const String& value) const {
        return value == kNoValue ? "kNoValue" : '"' + value + '"';
    }
};

String DefaultOf(const ArgumentDescription& argument) {
    if (argument.values) {
        for (const Enumerator& each : argument.values->values)
            if (PropertyValue(each.value) == *argument.defaultValue) return String(each.name);
    }
    return std::visit(Spelling(), *argument.defaultValue);
}

String Declaration(const ArgumentDescription& argument) {
    String text = argument.values ? String(argument.values->name) : ParameterType(argument.type);
    if (argument.isResult) text += '&';
    text.append(" ").append(argument.name);
    if (argument.defaultValue) text += " = " + DefaultOf(argument);
    return text;
}

/// A function with the member's name and arguments, and then those in `more`.
String Function(std::string_view result, const MemberDescription& member, const String& more = {}) {
    String arguments;
    for (const ArgumentDescription& argument : member.arguments)
        arguments += (arguments.empty() ? "" : ", ") + Declaration(argument);
    if (!more.empty()) arguments += (arguments.empty() ? "" : ", ") + more;
    return '`' + String(result) + ' ' + String(member.name) + '(' + arguments + ")`";
}

String PropertyFunctions(const MemberDescription& member) {
    String read = Function(TypeName(member.type), member);
    const String write = Function("void", member, ParameterType(member.type) + " value");
    if (!member.writable) return read;
    return member.readable ? read + "<br>" + write : write;
}

String Declaration(const MemberDescription& member) {
    switch (member.kind) {
    case MemberKind::Field:
        return '`' + String(TypeName(member.type)) + ' ' + String(member.name) + '`';
    case MemberKind::Property:
    case MemberKind::IndexedProperty:
        return PropertyFunctions(member);
    case MemberKind::Method:
    case MemberKind::Event:
        return Function(TypeName(member.type), member);
    }
    return {};
}

/// Colours are the only saved numbers of this type.
String SavedText(const PropertyValue& value) {
    if (value == PropertyValue(String())) return " **Saved.**";
    std::ostringstream text;
    if (const Long* const color = std::get_if<Long>(&value)) {
        text << "0x" << std::uppercase << std::hex << static_cast<std::uint32_t>(*color);
    } else {
        text << std::visit(Spelling(), value);
    }
    return " **Saved;** `" + text.str() + "` in a new control.";
}

void Write(const MemberGroupDescription& group, String& page) {
    page.append("\n## ").append(group.name).append("\n\n").append(group.help).append("\n");
    page += kTableHead;
    for (const MemberDescription& member : group.members) {
        page += "| " + std::to_string(member.number) + " | " + Declaration(member) + " | ";
        page += member.help;
        if (member.saved) page += SavedText(*member.saved);
        page += " |\n";
    }
}

void Write(const Enumeration& enumeration, String& page) {
    page.append("\n### `").append(enumeration.name).append("`\n\n");
    page.append(enumeration.help).append("\n\n| Value | Name | Meaning |\n|---|---|---|\n");
    for (const Enumerator& each : enumeration.values) {
        page += "| " + std::to_string(each.value) + " | `";
        page.append(each.name).append("` | ").append(each.help).append(" |\n");
    }
}

} // namespace

String ReferencePage() {
    String page(kIntroduction);
    for (const MemberGroupDescription& group : ListMembers())
        Write(group, page);
    page += "\n## Enumerations\n";
    for (const Enumeration& enumeration : kEnumerations)
        Write(enumeration, page);
    return page;
}

} // namespace zorvane
