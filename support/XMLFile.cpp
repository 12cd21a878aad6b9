#include "support/XMLFile.h"

namespace zorvane {

namespace {

struct Escape {
    char character;
    std::string_view text;
};
constexpr Escape kEscapes[] = {
    {'&', "&amp;"}, {'\'', "&#39;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}};

/// The escape that a text begins with, or null.
const Escape* EscapeAtStart(std::string_view text) {
    for (const Escape& escape : kEscapes)
        if (text.starts_with(escape.text)) return &escape;
    return nullptr;
}

/// The escape of a character, or null.
const Escape* EscapeOf(char character) {
    for (const Escape& escape : kEscapes)
        if (escape.character == character) return &escape;
    return nullptr;
}

} // namespace

String XMLFile::StringToXML(std::string_view source) {
    String escaped;
    escaped.reserve(source.size());
    for (const char c : source) {
        if (const Escape* const escape = EscapeOf(c)) {
            escaped += escape->text;
        } else {
            escaped += c;
        }
    }
    return escaped;
}

String XMLFile::XMLToString(std::string_view source) {
    String text;
    text.reserve(source.size());
    while (!source.empty()) {
        // One pass is enough: no escape can come about by undoing another but that of "&", whose
        // result is not looked at again.
        const std::string_view plain = source.substr(0, source.find('&'));
        text += plain;
        source.remove_prefix(plain.size());
        if (source.empty()) break;
        const Escape* const escape = EscapeAtStart(source);
        text += escape ? escape->character : '&';
        source.remove_prefix(escape ? escape->text.size() : 1);
    }
    return text;
}

String XMLFile::Section() const { return depth_ >= 1 ? sections_.At(depth_) : String(); }

const String& XMLFile::SectionImage() const { return images_.At(depth_ - 1); }

const String& XMLFile::SectionIndex() const { return indexes_.At(depth_ - 1); }

} // namespace zorvane
