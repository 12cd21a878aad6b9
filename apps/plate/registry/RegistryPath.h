#pragma once

#include "platform/Registry.h"

namespace zorvane {

/// A registry key as a person names it: a root and the path below it, which is empty for the root
/// itself.
struct RegistryPath {
    Long root;
    String key;
};

/// Reads "ROOT\KEY" with a root's whole or short name in any letter case, such as
/// HKEY_LOCAL_MACHINE or HKLM. Raises a failure for the user where it is none.
RegistryPath ParseRegistryPath(const String& text);

/// The key with its root's whole name, or a number for a root that has none.
String RegistryPathText(const RegistryPath& path);

} // namespace zorvane
