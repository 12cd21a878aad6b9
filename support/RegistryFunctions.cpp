#include "support/RegistryFunctions.h"

#include "platform/Process.h"
#include "runtime/RuntimeError.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace zorvane {

namespace {

// One byte of the 256 stays free for a terminating zero.
constexpr Long kMostBytesRead = 255;
constexpr Long kNameCapacity = 256;
constexpr Long kDataCapacity = 256;
constexpr Long kMostValuesListed = 51;

/// A handle that is closed when it goes out of use.
struct Key {
    Registry& registry = CurrentProcess().TheRegistry();
    Registry::Handle handle = 0;

    Key() = default;
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;
    ~Key() { registry.CloseKey(handle); }
};

void ShowFailure(const char* function, const String& what, Long result) {
    CurrentMessages().Show({what + "\r\nAPI Error=" + std::to_string(result),
                            String("Registry Functions::") + function + "()"});
}

/// A stored number as "&H" and 8 hexadecimal digits; its bytes come lowest first.
String NumberText(std::string_view data) {
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < std::min<std::size_t>(data.size(), 4); ++i)
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(data[i])) << 8 * i;
    String text = "&H";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += "0123456789ABCDEF"[number >> shift & 0xF];
    return text;
}

String TextOf(Long type, std::string_view data) {
    switch (type) {
    case kRegistryString:
    case kRegistryExpandString:
        return TrimNull(data);
    case kRegistryNumber:
        return NumberText(data);
    default:
        return {};
    }
}

} // namespace

String GetSettingEx(Long root, const String& key, const String& valueName, const String& fallback,
                    Long& valueType) {
    Key opened;
    if (opened.registry.OpenKey(root, key, kReadAccess, opened.handle) != kRegistrySuccess)
        return fallback;
    String data;
    const Long result =
        opened.registry.QueryValue(opened.handle, valueName, kMostBytesRead, valueType, data);
    return result == kRegistrySuccess ? TextOf(valueType, data) : fallback;
}

Boolean SaveSettingEx(Long root, const String& key, const String& valueName, const String& value) {
    Key opened;
    Long result = opened.registry.CreateKey(root, key, kAllAccess, opened.handle);
    if (result != kRegistrySuccess) {
        ShowFailure("SaveSettingEx", "Could not open registry key <" + key + "> for writing.",
                    result);
        return false;
    }
    result = opened.registry.SetValue(opened.handle, valueName, kRegistryString, value);
    if (result != kRegistrySuccess) {
        ShowFailure("SaveSettingEx",
                    "Could not write data to value <" + valueName + "> in registry key <" + key +
                        ">",
                    result);
    }
    return result == kRegistrySuccess;
}

Integer EnumerateValues(Long root, const String& key, std::vector<String>& names,
                        std::vector<String>& values) {
    Key opened;
    const Long result = opened.registry.OpenKey(root, key, kReadAccess, opened.handle);
    if (result != kRegistrySuccess) {
        // The same words as in writing: operators and their notes know this text.
        ShowFailure("EnumerateValues", "Could not open registry key <" + key + "> for writing.",
                    result);
        return 0;
    }
    std::vector<String> foundNames;
    std::vector<String> foundValues;
    String name;
    String data;
    for (Long i = 0; i < kMostValuesListed; ++i) {
        if (opened.registry.EnumValue(opened.handle, i, kNameCapacity, kDataCapacity, name, data) !=
            kRegistrySuccess)
            break;
        foundNames.push_back(name);
        foundValues.push_back(BytesToText(data, static_cast<Long>(data.size())));
    }
    const auto count = static_cast<Integer>(foundNames.size());
    if (count > 0) {
        names = std::move(foundNames);
        values = std::move(foundValues);
    }
    return count;
}

String TrimNull(std::string_view text) { return String(text.substr(0, text.find('\0'))); }

String BytesToText(std::string_view bytes, Long n) {
    if (n <= 0) return {};
    if (static_cast<std::size_t>(n) > bytes.size()) Raise(ErrorNumber::SubscriptOutOfRange);
    return String(bytes.substr(0, static_cast<std::size_t>(n)));
}

} // namespace zorvane
