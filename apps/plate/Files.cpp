#include "apps/plate/Files.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace zorvane {

namespace {

constexpr Long kToolFailure = 1;

namespace fs = std::filesystem;

/// A file that goes away unless it has been moved.
class TemporaryFile {
  public:
    explicit TemporaryFile(const fs::path& beside)
        : path_(beside.string() + "." + std::to_string(std::random_device()()) + ".tmp") {}
    ~TemporaryFile() {
        std::error_code ignored;
        fs::remove(path_, ignored);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const fs::path& Path() const { return path_; }

  private:
    fs::path path_;
};

/// Returns once a file's bytes are on the device: a rename alone may reach it before them.
void FlushToDevice(const fs::path& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = file >= 0 && ::fsync(file) == 0;
    const std::error_code failure(errno, std::generic_category());
    if (file >= 0) ::close(file);
    if (!flushed) throw fs::filesystem_error("flush", failure);
}

bool IsStandard(const String& file) { return file.empty() || file == "-"; }

} // namespace

void Fail(const String& description) { throw RuntimeError(kToolFailure, "plate", description); }

void WriteAll(const String& file, std::string_view text) {
    std::ofstream opened;
    if (!IsStandard(file)) opened.open(file, std::ios::binary | std::ios::trunc);
    std::ostream& out = IsStandard(file) ? std::cout : opened;
    out.write(text.data(), static_cast<std::streamsize>(text.size())).flush();
    if (!out) Fail((IsStandard(file) ? String("standard output") : file) + ": cannot be written");
}

void ReplaceFile(const String& file, const std::function<void(const String& temporary)>& write) {
    try {
        // Of a link, what it points at is replaced.
        const fs::path target = fs::weakly_canonical(file);
        const fs::file_status old = fs::status(target);
        if (fs::exists(old) && !fs::is_regular_file(old)) Fail(file + ": is not a file");
        const TemporaryFile temporary(target);
        write(temporary.Path().string());
        FlushToDevice(temporary.Path());
        if (fs::exists(old)) fs::permissions(temporary.Path(), old.permissions());
        fs::rename(temporary.Path(), target);
    } catch (const fs::filesystem_error& error) {
        Fail(file + ": cannot be replaced: " + error.code().message());
    }
}

String ReadAll(const String& file) {
    std::ifstream opened;
    if (!IsStandard(file)) opened.open(file, std::ios::binary);
    std::istream& in = IsStandard(file) ? std::cin : opened;
    String text{std::istreambuf_iterator<char>(in), {}};
    if (!in || in.bad()) Fail(file + ": cannot be read");
    return text;
}

} // namespace zorvane
