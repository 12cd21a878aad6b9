#include "apps/plate/registry/RegistryText.h"

#include "runtime/Text.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace zorvane {

namespace {

String HexBytes(std::string_view data) {
    String text;
    for (const char c : data) {
        const auto byte = static_cast<unsigned char>(c);
        if (!text.empty()) text += ',';
        text += "0123456789abcdef"[byte >> 4];
        text += "0123456789abcdef"[byte & 0xF];
    }
    return text;
}

bool IsText(const StoredValue& value) {
    return value.type == kRegistryString || value.type == kRegistryExpandString;
}

bool IsNumber(const StoredValue& value) {
    return value.type == kRegistryNumber && value.data.size() == 4;
}

/// Bytes come lowest first.
std::uint32_t Number(const StoredValue& value) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(value.data[i])) << 8 * i;
    return number;
}

String HexNumber(std::uint32_t number) {
    String digits;
    for (int shift = 28; shift >= 0; shift -= 4)
        digits += "0123456789abcdef"[number >> shift & 0xF];
    return digits;
}

/// The text as it can stand on a line.
String OnALine(std::string_view text) {
    String line = PrintableUtf8(text);
    for (std::size_t at = 0; (at = line.find_first_of("\r\n", at)) != line.npos;)
        line.replace(at, 1, "\uFFFD");
    return line;
}

String Quoted(std::string_view text) {
    String quoted = "\"";
    for (const char c : text) {
        if (c == '\\' || c == '"') quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

String ExportedData(const StoredValue& value) {
    if (value.type == kRegistryString && OnALine(value.data) == value.data)
        return Quoted(value.data);
    if (IsNumber(value)) return "dword:" + HexNumber(Number(value));
    const bool binary = value.type == kRegistryBinary;
    return (binary ? "hex:" : "hex(" + std::to_string(value.type) + "):") + HexBytes(value.data);
}

} // namespace

String RegistryResultText(Long result) {
    switch (result) {
    case kRegistryNotFound:
        return "there is no such key or value";
    case kRegistryAccessDenied:
        return "access is denied";
    case kRegistryDiskFull:
        return "the disk is full";
    case kRegistryBusy:
        return "another program keeps the registry busy";
    case kRegistryCorrupt:
        return "the registry's file is damaged or holds something else";
    default:
        return "the registry cannot be used (" + std::to_string(result) + ")";
    }
}

String TypeText(Long type) {
    switch (type) {
    case kRegistryString:
        return "string";
    case kRegistryExpandString:
        return "expandable string";
    case kRegistryBinary:
        return "binary";
    case kRegistryNumber:
        return "number";
    default:
        return "type " + std::to_string(type);
    }
}

String DataText(const StoredValue& value) {
    if (IsText(value)) return value.data.substr(0, value.data.find('\0'));
    return IsNumber(value) ? std::to_string(Number(value)) : HexBytes(value.data);
}

String NumberBytes(std::uint32_t number) {
    String bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

String ExportText(const String& key, const std::vector<StoredValue>& values) {
    String text = "[" + OnALine(key) + "]\n";
    for (const StoredValue& value : values) {
        const String name = value.name.empty() ? "@" : Quoted(OnALine(value.name));
        text += name + "=" + ExportedData(value) + "\n";
    }
    return text;
}

} // namespace zorvane
