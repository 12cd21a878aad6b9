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
        open_.back()->names.push_back(std::move(name));
        return true;
    }
    bool end_object() override {
        std::unordered_set<std::string_view> names;
        for (const String& name : open_.back()->names)
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
        return open_.back()->items.emplace_back();
    }

    bool Open(JsonValue::Type type) {
        if (open_.size() == kDeepest)
            RefuseSource("there are more than 32 values inside one another");
        JsonValue& value = Place();
        value.type = type;
        open_.push_back(&value);
        return true;
    }

    bool Close() {
        open_.pop_back();
        return true;
    }

    JsonValue root_;
    std::vector<JsonValue*> open_;
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
    const auto found = std::find(value_->names.begin(), value_->names.end(), name);
    if (found == value_->names.end()) return nullptr;
    return &value_->items[static_cast<std::size_t>(found - value_->names.begin())];
}

JsonNode JsonNode::At(const String& name) const {
    const JsonValue* const value = Find(name);
    if (value == nullptr) RefuseSource(PathOf(name) + " is missing");
    return JsonNode(*value, PathOf(name));
}

std::vector<std::pair<String, JsonNode>> JsonNode::Members() const {
    Require(JsonValue::Type::Object, "an object");
    std::vector<std::pair<String, JsonNode>> nodes;
    for (std::size_t i = 0; i < value_->items.size(); ++i)
        nodes.emplace_back(value_->names[i], JsonNode(value_->items[i], PathOf(value_->names[i])));
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
