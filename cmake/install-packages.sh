#!/usr/bin/env bash
# Installs the Debian packages that the build needs and that this machine lacks. With none missing it
# does nothing and needs no network. Without the right to install it names what is missing and fails.
# With --check it also installs what ./check needs.
set -euo pipefail

packages=(
    g++ cmake ninja-build
    qt6-base-dev
    libsqlite3-dev libcli11-dev libgtest-dev
    fonts-dejavu-core # text on a machine that has no font yet
)
if [ "${1:-}" = --check ]; then
    packages+=(clang clang-format clang-tidy git libbenchmark-dev libpugixml-dev
              nlohmann-json3-dev libtomlplusplus-dev
              pybind11-dev python3-dev python3-numpy python3-pytest python3-pip python3-setuptools python3-venv
              qt6-tools-dev qt6-l10n-tools libqt6opengl6-dev debhelper pkg-config doxygen)
fi

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "There is no apt here to install anything. The build needs: a C++20 compiler, CMake 3.25, Ninja," \
        "Qt 6.4 (Widgets), SQLite 3, CLI11, GoogleTest and a font" >&2
    exit 0
fi

is_installed() {
    [ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

missing=()
for package in "${packages[@]}"; do
    is_installed "$package" || missing+=("$package")
done
if [ "${#missing[@]}" -eq 0 ]; then
    exit 0
fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! sudo -n true 2>/dev/null; then
        echo "These packages are missing, and this user may not install them: ${missing[*]}" >&2
        echo "Ask for: apt-get install --no-install-recommends ${missing[*]}" >&2
        exit 1
    fi
    as_root=(sudo -n)
fi

echo "Installing: ${missing[*]}" >&2
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
