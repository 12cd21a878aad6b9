#include "apps/plate/registry/RegistryKeys.h"

#include "apps/plate/Files.h"
#include "apps/plate/registry/RegistryText.h"
#include "runtime/Text.h"

#include <filesystem>

namespace zorvane {

namespace {

/// Where a root's keys are kept, for the user to look at.
String PlacesText(const SqliteRegistry& registry, Long root) {
    String text;
    for (const std::filesystem::path& file : registry.Files(root))
        text += (text.empty() ? " (" : ", ") + file.string();
    return text.empty() ? " (no HOME or ZORVANE_REGISTRY says where its file is)" : text + ")";
}

} // namespace

void CheckResult(Long result, const SqliteRegistry& registry, const RegistryPath& path,
                 const String& name) {
    if (result == kRegistrySuccess) return;
    const String what = RegistryPathText(path) + (name.empty() ? "" : ", " + name);
    Fail(what + ": " + RegistryResultText(result) +
         (result == kRegistryNotFound ? "" : PlacesText(registry, path.root)));
}

OpenKey::OpenKey(SqliteRegistry& registry, const RegistryPath& path, bool make)
    : registry_(registry) {
    const Long result = make ? registry.CreateKey(path.root, path.key, kAllAccess, handle_)
                             : registry.OpenKey(path.root, path.key, kReadAccess, handle_);
    CheckResult(result, registry, path);
}

std::vector<StoredValue> ValuesOf(SqliteRegistry& registry, const RegistryPath& path) {
    const OpenKey key(registry, path, false);
    std::vector<StoredValue> values;
    CheckResult(registry.Values(path.root, path.key, values), registry, path);
    return values;
}

std::vector<RegistryPath> AllKeys(const SqliteRegistry& registry) {
    std::vector<StoredKey> keys;
    CheckResult(registry.Keys(keys), registry, {kLocalMachine, {}});
    std::vector<RegistryPath> paths;
    paths.reserve(keys.size());
    for (const StoredKey& key : keys)
        paths.push_back({key.root, key.path});
    return paths;
}

bool LiesIn(const RegistryPath& path, const RegistryPath& parent) {
    if (path.root != parent.root) return false;
    return parent.key.empty() || EqualNoCase(path.key, parent.key) ||
           StartsWithNoCase(path.key, parent.key + "\\");
}

std::vector<RegistryPath> KeysBelow(const SqliteRegistry& registry, const RegistryPath& parent) {
    std::vector<RegistryPath> below;
    for (const RegistryPath& path : AllKeys(registry))
        if (LiesIn(path, parent) && !EqualNoCase(path.key, parent.key)) below.push_back(path);
    return below;
}

} // namespace zorvane
