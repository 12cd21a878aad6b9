#pragma once

#include "formats/ExactNumber.h"
#include "runtime/Types.h"

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace zorvane {

/// A value of a JSON text. Numbers keep the digits that they were written with.
struct JsonValue {
    enum class Type : std::uint8_t { Null, Flag, Number, Text, Array, Object };

    Type type = Type::Null;
    String text;               ///< of a text or number; "true" or "false"
    std::vector<String> names; ///< of the items of an object
    std::vector<JsonValue> items;
};

/// Reads a whole text. Error 13 for text that is not JSON, an object with two members of one name,
/// a name of more than 256 bytes, more than 32 values inside one another, and more than half a
/// million values.
JsonValue ParseJson(std::string_view json);

/// A value and its path. The functions that expect a type raise error 13 for a value of another,
/// with its path.
class JsonNode {
  public:
    /// The value must outlive the node.
    explicit JsonNode(const JsonValue& value, String path = {})
        : value_(&value), path_(std::move(path)) {}

    /// A member of an object, which must be there.
    JsonNode At(const String& name) const;
    bool Has(const String& name) const { return Find(name) != nullptr; }

    std::vector<std::pair<String, JsonNode>> Members() const;
    std::vector<JsonNode> Items() const;
    const String& Text() const;
    bool Flag() const;
    /// A number that is not negative and not beyond ExactNumber::kLargest.
    ExactNumber Number() const;

    [[noreturn]] void Refuse(const String& problem) const;

  private:
    const JsonValue* Find(const String& name) const;
    String PathOf(const String& name) const { return path_.empty() ? name : path_ + "." + name; }
    void Require(JsonValue::Type type, const char* name) const;

    const JsonValue* value_;
    String path_; ///< as in "wells.A1.x"
};

} // namespace zorvane
