#include "apps/plate/draw/LibraryFile.h"

#include "apps/plate/Files.h"
#include "library/disk/Descriptor.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace zorvane {

namespace {

namespace fs = std::filesystem;

bool IsOrdinary(const String& file) {
    std::error_code ignored;
    return !IsStandard(file) && fs::is_regular_file(file, ignored);
}

} // namespace

LibraryFile::LibraryFile(const String& file, std::string_view bytes) : path_(file) {
    if (IsOrdinary(file)) return;
    path_ = fs::temp_directory_path() / "plate-XXXXXX";
    const Descriptor made(::mkstemp(path_.data()));
    copy_.emplace(path_);
    std::ofstream copy(path_, std::ios::binary);
    copy.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
    if (!copy) Fail(path_ + " cannot be written");
}

} // namespace zorvane
