#include "apps/plate/pairs/RegistryPairs.h"

#include "apps/plate/Files.h"
#include "apps/plate/pairs/SavedPairs.h"
#include "platform/Process.h"
#include "runtime/NumberText.h"
#include "support/RegistryFunctions.h"

#include <algorithm>
#include <iostream>

namespace zorvane {

namespace {

/// The stored number of pairs; empty where there is none.
String CountText(const RegistryPath& path) {
    Long type = 0;
    return GetSettingEx(path.root, path.key, "Count", "", type);
}

/// Takes the message of the control's own functions, which show it in a box.
struct KeptMessage final : MessageDisplay {
    void Show(const Message& message) override { text = message.prompt; }

    /// Whether it says more than that there is no such key.
    bool IsFailure() const {
        return !text.empty() && !text.ends_with("=" + std::to_string(kRegistryNotFound));
    }

    String text;
};

void Read(TStringPairList& list, const RegistryPath& path) {
    KeptMessage message;
    const TakenMessages taken(message);
    try {
        list.ReadFromRegistry(path.root, path.key);
    } catch (const RuntimeError& error) {
        if (message.IsFailure()) Fail(RegistryPathText(path) + ": " + message.text);
        const bool none = error.Number() == static_cast<Long>(ErrorNumber::SubscriptOutOfRange);
        Fail(RegistryPathText(path) +
             (none ? ": holds no pairs" : ": its Count is not the number of its pairs"));
    }
}

} // namespace

void AddPairs(TStringPairList& list, const RegistryPath& path) {
    TStringPairList found;
    Read(found, path);
    const String count = CountText(path);
    if (!count.empty() && found.Count() < ParseLong(count)) {
        std::cerr << "plate: warning: " << RegistryPathText(path) << ": only " << found.Count()
                  << " of " << count << " pairs can be read\n";
    }
    for (const auto& pair : found)
        list.Add(pair);
    list.Name = found.Name;
}

void StorePairs(const TStringPairList& list, const RegistryPath& path) {
    list.WriteToRegistry(path.root, path.key);
    if (CountText(path) != std::to_string(list.Count()))
        Fail(RegistryPathText(path) + ": the pairs could not be stored");
    if (list.Count() == 0) return;
    TStringPairList kept;
    Read(kept, path);
    const auto lost = std::count_if(list.begin(), list.end(),
                                    [&](const auto& pair) { return !Holds(kept, *pair); });
    if (lost > 0) {
        Fail(RegistryPathText(path) + ": " + std::to_string(lost) +
             " of the pairs cannot be read back; a key gives 51 pairs of at most 256 bytes");
    }
}

} // namespace zorvane
