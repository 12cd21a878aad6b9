#pragma once

#include "runtime/Types.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace zorvane {

/// Puts an input into a temporary file of the entry; gives the file's name.
inline String InputFile(const String& entry, const std::uint8_t* data, std::size_t size,
                        std::string_view before = {}) {
    const auto path = std::filesystem::temp_directory_path() / ("zorvane-fuzz-" + entry + ".tmp");
    std::ofstream file(path, std::ios::binary);
    file << before;
    file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    return path.string();
}

} // namespace zorvane
