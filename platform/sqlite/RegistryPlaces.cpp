#include "platform/sqlite/RegistryPlaces.h"

#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

namespace zorvane {

namespace {

using Path = std::filesystem::path;

std::string Environment(const char* name) {
    const char* const value = std::getenv(name);
    return value ? value : "";
}

std::optional<Path> RegistryBelow(const Path& directory) {
    if (!directory.is_absolute()) return std::nullopt;
    return directory / "zorvane" / "registry.sqlite";
}

std::optional<Path> OwnPlace() {
    if (auto named = RegistryBelow(Environment("XDG_CONFIG_HOME"))) return named;
    const Path home = Environment("HOME");
    return home.is_absolute() ? RegistryBelow(home / ".config") : std::nullopt;
}

std::optional<Path> SharedPlace() {
    const std::string directories = Environment("XDG_CONFIG_DIRS");
    std::string_view rest = directories;
    while (!rest.empty()) {
        const std::string_view first = rest.substr(0, rest.find(':'));
        if (auto named = RegistryBelow(first)) return named;
        rest.remove_prefix(first.size() + (first.size() < rest.size() ? 1 : 0));
    }
    return RegistryBelow("/etc/xdg");
}

} // namespace

RegistryPlaces PlacesInForce() {
    const Path named = Environment("ZORVANE_REGISTRY");
    if (named.empty()) return {.own = OwnPlace(), .shared = SharedPlace()};
    // SQLite would take names like ":memory:" for something else than files.
    std::error_code failed;
    const Path whole = std::filesystem::absolute(named, failed);
    return {.own = failed ? std::nullopt : std::optional(whole), .shared = std::nullopt};
}

} // namespace zorvane
