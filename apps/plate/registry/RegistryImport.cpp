#include "apps/plate/registry/RegistryImport.h"

#include "apps/plate/Files.h"
#include "apps/plate/registry/RegistryText.h"
#include "library/TextLines.h"
#include "runtime/Text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

namespace zorvane {

namespace {

/// A whole text of digits as a number.
std::optional<std::uint32_t> NumberOf(std::string_view digits, int base) {
    std::uint32_t number = 0;
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number, base);
    if (digits.empty() || error != std::errc() || stop != end) return std::nullopt;
    return number;
}

/// Takes a quoted text off the front of a line.
std::optional<String> TakeQuoted(std::string_view& line) {
    if (!line.starts_with('"')) return std::nullopt;
    String text;
    for (std::size_t at = 1; at < line.size(); ++at) {
        if (line[at] == '"') {
            line.remove_prefix(at + 1);
            return text;
        }
        if (line[at] == '\\' && ++at == line.size()) break;
        text += line[at];
    }
    return std::nullopt;
}

std::optional<String> NumberData(std::string_view digits) {
    const auto number = NumberOf(digits, 16);
    return number ? std::optional(NumberBytes(*number)) : std::nullopt;
}

/// Bytes as two digits each, with commas between them.
std::optional<String> BytesData(std::string_view text) {
    String bytes;
    while (!text.empty()) {
        const auto byte = NumberOf(text.substr(0, 2), 16);
        const bool more = text.size() > 2;
        if (!byte || text.size() == 1 || (more && (text[2] != ',' || text.size() == 3)))
            return std::nullopt;
        bytes += static_cast<char>(*byte);
        text.remove_prefix(more ? 3 : 2);
    }
    return bytes;
}

/// Fills in the type and the data; false for anything that is not written as exports are.
bool ReadData(std::string_view text, StoredValue& value) {
    const std::size_t colon = std::min(text.find(':'), text.size());
    const std::string_view kind = text.substr(0, colon);
    const std::string_view rest = text.substr(std::min(colon + 1, text.size()));
    std::optional<String> data;
    if (text.starts_with('"')) {
        value.type = kRegistryString;
        data = TakeQuoted(text);
        if (!text.empty()) return false;
    } else if (kind == "dword") {
        value.type = kRegistryNumber;
        data = NumberData(rest);
    } else if (kind == "hex") {
        value.type = kRegistryBinary;
        data = BytesData(rest);
    } else if (kind.starts_with("hex(") && kind.ends_with(')')) {
        const auto type = NumberOf(kind.substr(4, kind.size() - 5), 10);
        if (!type || *type > 0x7FFFFFFF) return false;
        value.type = static_cast<Long>(*type);
        data = BytesData(rest);
    }
    if (!data) return false;
    value.data = *std::move(data);
    return true;
}

bool ReadValue(std::string_view line, StoredValue& value) {
    if (line.starts_with('@')) {
        line.remove_prefix(1);
    } else if (auto name = TakeQuoted(line)) {
        value.name = *std::move(name);
    } else {
        return false;
    }
    return line.starts_with('=') && ReadData(line.substr(1), value);
}

} // namespace

std::vector<ImportedKey> ReadExportText(std::string_view text) {
    std::vector<ImportedKey> keys;
    Long number = 0;
    for (const TextLine& each : LinesOf(text)) {
        ++number;
        const std::string_view line = Trim(each.text);
        if (line.empty()) continue;
        StoredValue value;
        if (line.starts_with('[') && line.ends_with(']')) {
            keys.push_back({ParseRegistryPath(String(line.substr(1, line.size() - 2))), {}});
        } else if (!keys.empty() && ReadValue(line, value)) {
            keys.back().values.push_back(std::move(value));
        } else {
            Fail("line " + std::to_string(number) +
                 " is neither [ROOT\\KEY] nor a value as \"plate registry export\" writes it");
        }
    }
    return keys;
}

} // namespace zorvane
