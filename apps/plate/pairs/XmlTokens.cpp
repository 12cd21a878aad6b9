#include "apps/plate/pairs/XmlTokens.h"

#include "runtime/Text.h"
#include "support/XMLFile.h"

#include <algorithm>

namespace zorvane {

namespace {

/// Lines that a text is spread over are joined with nothing between them.
String JoinedLines(std::string_view text) {
    String joined;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        joined += Trim(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return joined;
}

bool RepeatsTheName(std::string_view attributes) {
    constexpr std::string_view name = "Name=\"";
    return attributes.starts_with(name) && attributes.find("=\"", name.size()) == attributes.npos;
}

void AddTag(std::string_view tag, std::vector<String>& tokens) {
    if (tag.starts_with('?')) return;
    const bool empty = tag.ends_with('/');
    if (empty) tag.remove_suffix(1);
    const std::string_view name = tag.substr(0, tag.find(' '));
    const std::string_view attributes = Trim(tag.substr(name.size()));
    tokens.push_back("<" + UpperText(name));
    if (!attributes.empty() && !(EqualNoCase(name, "Field") && RepeatsTheName(attributes)))
        tokens.back().append(" ").append(attributes);
    if (empty) tokens.push_back("</" + UpperText(name));
}

} // namespace

std::vector<String> XmlTokens(std::string_view xml) {
    std::vector<String> tokens;
    while (!xml.empty()) {
        const std::size_t tag = std::min(xml.find('<'), xml.size());
        const String text = XMLFile::XMLToString(JoinedLines(xml.substr(0, tag)));
        if (!text.empty()) tokens.push_back(text);
        xml.remove_prefix(tag);
        if (xml.empty()) break;
        const std::size_t end = std::min(xml.find('>'), xml.size());
        AddTag(xml.substr(1, end - 1), tokens);
        xml.remove_prefix(std::min(end + 1, xml.size()));
    }
    return tokens;
}

} // namespace zorvane
