#pragma once

#include <filesystem>
#include <optional>

namespace zorvane {

/// The files that a registry is kept in; a missing one is none.
struct RegistryPlaces {
    std::optional<std::filesystem::path> own;    ///< of the user, for every root
    std::optional<std::filesystem::path> shared; ///< of the machine, for HKEY_LOCAL_MACHINE
};

/// Where the desktop's XDG base directory rules have them: zorvane/registry.sqlite below
/// XDG_CONFIG_HOME (or HOME/.config) and below the first of XDG_CONFIG_DIRS (or /etc/xdg). As they
/// say, paths that are not absolute are passed over. The environment variable ZORVANE_REGISTRY
/// names a file for everything instead. Every name is absolute.
RegistryPlaces PlacesInForce();

} // namespace zorvane
