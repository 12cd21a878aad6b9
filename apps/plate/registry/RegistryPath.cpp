#include "apps/plate/registry/RegistryPath.h"

#include "apps/plate/Files.h"
#include "runtime/Text.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace zorvane {

namespace {

struct Root {
    Long root;
    const char* name;
    const char* shortName;
};

constexpr Root kRoots[] = {{kLocalMachine, "HKEY_LOCAL_MACHINE", "HKLM"},
                           {kCurrentUser, "HKEY_CURRENT_USER", "HKCU"},
                           {kClassesRoot, "HKEY_CLASSES_ROOT", "HKCR"},
                           {kUsers, "HKEY_USERS", "HKU"}};

Long RootNamed(const String& name, const String& text) {
    const auto* const found =
        std::find_if(std::begin(kRoots), std::end(kRoots), [&](const Root& r) {
            return EqualNoCase(name, r.name) || EqualNoCase(name, r.shortName);
        });
    if (found != std::end(kRoots)) return found->root;
    // A shell removes backslashes that are not quoted.
    Fail("<" + text +
         "> names no registry key: write ROOT\\KEY in single quotes, with "
         "HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER, HKEY_CLASSES_ROOT or HKEY_USERS as the root");
}

} // namespace

RegistryPath ParseRegistryPath(const String& text) {
    const std::size_t end = std::min(text.find('\\'), text.size());
    const Long root = RootNamed(text.substr(0, end), text);
    String key = text.substr(std::min(end + 1, text.size()));
    if (key.find("\\\\") != key.npos || StartsWithNoCase(key, "\\"))
        Fail("<" + text + "> has an empty part between two backslashes");
    if (!key.empty() && key.back() == '\\') key.pop_back();
    return {root, std::move(key)};
}

String RegistryPathText(const RegistryPath& path) {
    const auto* const root = std::find_if(std::begin(kRoots), std::end(kRoots),
                                          [&](const Root& r) { return r.root == path.root; });
    // A file that another program has made can have any.
    const String name = root != std::end(kRoots) ? root->name : "root " + std::to_string(path.root);
    return path.key.empty() ? name : name + "\\" + path.key;
}

} // namespace zorvane
