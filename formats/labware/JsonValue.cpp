#include "formats/labware/JsonValue.h"

#include "formats/PlateSource.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <unordered_set>

namespace zorvane {

namespace {

using Json = nlohmann::json;

constexpr std::size_t kDeepest = 32;
constexpr std::size_t kMostValues = 500'000;
constexpr std::size_t kLongestName = 256;

/// What the parser says of bad text, without its own name and number of the error.
String Problem(const nlohmann::detail::exception& error) {
    const std::string_view text = error.what();
    const std::size_t end = text.find("] ");
    return String(end == text.npos ? text : text.substr(end + 2));
}

/// Takes the events of the parser, which does not recurse.
class JsonBuilder final : public nlohmann::json_sax<Json> {
  public:
    JsonValue Result() { return std::move(root_); }

    bool null() override { return Add({}); }
    bool boolean(bool value) override {
        return Add({JsonValue::Type::Flag, value ? "true" : "false", {}, {}});
    }
    bool number_integer(number_integer_t value) override {
        return AddNumber(std::to_string(value));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return AddNumber(std::to_string(value));
    }
    bool number_float(number_float_t, const string_t& text) override { return AddNumber(text); }
    bool string(string_t& value) override {
        return Add({JsonValue::Type::Text, std::move(value), {}, {}});
    }
    bool binary(binary_t&) override { return false; } // JSON text has none
    bool start_object(std::size_t) override { return Open(JsonValue::Type::Object); }
    bool start_array(std::size_t) override { return Open(JsonValue::Type::Array); }
    bool end_array() override { return Close(); }
    bool key(string_t& name) override {
        if (name.size() > kLongestName) RefuseSource("a name has more than 256 bytes");
        names_.back() = std::move(name);
        return true;
    }
    bool end_object() override {
        std::unordered_set<std::string_view> names;
        for (const auto& [name, value] : open_.back()->members)
            if (!names.insert(name).second) RefuseSource("\"" + name + "\" is there twice");
        return Close();
    }
    bool parse_error(std::size_t, const std::string&,
                     const nlohmann::detail::exception& error) override {
        RefuseSource(Problem(error));
    }

  private:
    bool AddNumber(String text) { return Add({JsonValue::Type::Number, std::move(text), {}, {}}); }

    bool Add(JsonValue value) {
        Place() = std::move(value);
        return true;
    }

    /// Where the next value goes. It stays there until its own content is complete.
    JsonValue& Place() {
        if (++count_ > kMostValues) RefuseSource("there are more than half a million values");
        if (open_.empty()) return root_;
        JsonValue& parent = *open_.back();
        if (parent.type == JsonValue::Type::Array) return parent.items.emplace_back();
        return parent.members.emplace_back(std::move(names_.back()), JsonValue()).second;
    }

    bool Open(JsonValue::Type type) {
        if (open_.size() == kDeepest)
            RefuseSource("there are more than 32 values inside one another");
        JsonValue& value = Place();
        value.type = type;
        open_.push_back(&value);
        names_.emplace_back();
        return true;
    }

    bool Close() {
        open_.pop_back();
        names_.pop_back();
        return true;
    }

    JsonValue root_;
    std::vector<JsonValue*> open_;
    std::vector<String> names_; ///< of each open value, the member that is read
    std::size_t count_ = 0;
};

} // namespace

JsonValue ParseJson(std::string_view json) {
    JsonBuilder builder;
    Json::sax_parse(json, &builder);
    return builder.Result();
}

const JsonValue* JsonNode::Find(const String& name) const {
    Require(JsonValue::Type::Object, "an object");
    const auto found = std::find_if(value_->members.begin(), value_->members.end(),
                                    [&name](const auto& member) { return member.first == name; });
    return found == value_->members.end() ? nullptr : &found->second;
}

JsonNode JsonNode::At(const String& name) const {
    const JsonValue* const value = Find(name);
    if (value == nullptr) RefuseSource(PathOf(name) + " is missing");
    return JsonNode(*value, PathOf(name));
}

std::vector<std::pair<String, JsonNode>> JsonNode::Members() const {
    Require(JsonValue::Type::Object, "an object");
    std::vector<std::pair<String, JsonNode>> nodes;
    for (const auto& [name, value] : value_->members)
        nodes.emplace_back(name, JsonNode(value, PathOf(name)));
    return nodes;
}

std::vector<JsonNode> JsonNode::Items() const {
    Require(JsonValue::Type::Array, "an array");
    std::vector<JsonNode> nodes;
    for (const JsonValue& item : value_->items)
        nodes.emplace_back(item, path_ + "[" + std::to_string(nodes.size()) + "]");
    return nodes;
}

const String& JsonNode::Text() const {
    Require(JsonValue::Type::Text, "a text");
    return value_->text;
}

bool JsonNode::Flag() const {
    Require(JsonValue::Type::Flag, "true or false");
    return value_->text == "true";
}

ExactNumber JsonNode::Number() const {
    Require(JsonValue::Type::Number, "a number");
    const auto number = ExactNumber::Parse(value_->text);
    if (!number || number->Units() < 0)
        Refuse("is not a number from 0 to " + std::to_string(ExactNumber::kLargest));
    return *number;
}

void JsonNode::Refuse(const String& problem) const {
    RefuseSource((path_.empty() ? String("the text") : path_) + " " + problem);
}

void JsonNode::Require(JsonValue::Type type, const char* name) const {
    if (value_->type != type) Refuse("is not " + String(name));
}

} // namespace zorvane
