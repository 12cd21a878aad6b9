#include "library/DiskFiles.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zorvane {

namespace {

ErrorNumber NumberOf(int error) {
    switch (error) {
    case ENOENT:
        return ErrorNumber::FileNotFound;
    case ENOTDIR:
        return ErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
        return ErrorNumber::PathFileAccess;
    default:
        return ErrorNumber::DeviceError;
    }
}

String ReasonOf(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return "it is not there";
    case EACCES:
    case EPERM:
        return "there is no permission";
    case EROFS:
        return "the disk is read-only";
    case EISDIR:
        return "it is a folder";
    case ENOSPC:
    case EDQUOT:
        return "the disk is full";
    case EIO:
        return "the device failed";
    default:
        return std::generic_category().message(error);
    }
}

[[noreturn]] void RaiseError(int error) {
    throw RuntimeError(static_cast<Long>(NumberOf(error)), "Zorvane", ReasonOf(error));
}

/// Raises the error of a call that failed.
void Check(bool good) {
    if (!good) RaiseError(errno);
}

/// An open file, closed when it goes away.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) { Check(number >= 0); }
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }
    void Close() { Check(::close(std::exchange(number_, -1)) == 0); }

  private:
    int number_;
};

String FolderOf(const String& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == path.npos) return ".";
    return path.substr(0, slash == 0 ? 1 : slash);
}

struct stat StatusOf(const String& path) {
    struct stat status = {};
    Check(::stat(path.c_str(), &status) == 0);
    return status;
}

class DiskOutput final : public FileLayer::Output {
  public:
    /// The pattern ends in XXXXXX, which become the letters that make the name a new one.
    explicit DiskOutput(String pattern)
        : path_(std::move(pattern)), file_(::mkostemp(path_.data(), O_CLOEXEC)) {}

    const String& Path() const override { return path_; }

    void Write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_.Number(), bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            Check(written >= 0);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void Flush() override { Check(::fsync(file_.Number()) == 0); }
    void Close() override { file_.Close(); }

    void TakeRightsOf(const struct stat& other) {
        // Only a privileged program can give a file to another owner; the group alone may do.
        const bool given = ::fchown(file_.Number(), other.st_uid, other.st_gid) == 0 ||
                           ::fchown(file_.Number(), static_cast<uid_t>(-1), other.st_gid) == 0;
        const mode_t rights = given ? 07777 : 00777;
        Check(::fchmod(file_.Number(), other.st_mode & rights) == 0);
    }

  private:
    String path_;
    Descriptor file_;
};

} // namespace

String DiskFiles::Resolved(const String& path) {
    const std::unique_ptr<char, void (*)(void*)> real(::realpath(path.c_str(), nullptr),
                                                      &std::free);
    Check(real != nullptr);
    return real.get();
}

void DiskFiles::CheckWritable(const String& path) {
    constexpr mode_t anyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
    // A privileged program may write to any file, but a file marked read-only is meant to stay.
    if ((StatusOf(path).st_mode & anyWriter) == 0) {
        throw RuntimeError(static_cast<Long>(ErrorNumber::PathFileAccess), "Zorvane",
                           "it is read-only");
    }
    Check(::access(path.c_str(), W_OK) == 0);
}

String DiskFiles::Read(const String& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    String bytes;
    std::array<char, 65536> block = {};
    for (;;) {
        const ssize_t count = ::read(file.Number(), block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        Check(count >= 0);
        if (count == 0) return bytes;
        bytes.append(block.data(), static_cast<std::size_t>(count));
    }
}

std::unique_ptr<FileLayer::Output> DiskFiles::CreateBeside(const String& path) {
    const struct stat status = StatusOf(path);
    auto output = std::make_unique<DiskOutput>(path + ".XXXXXX");
    try {
        output->TakeRightsOf(status);
    } catch (const RuntimeError&) {
        ::unlink(output->Path().c_str());
        throw;
    }
    return output;
}

void DiskFiles::Rename(const String& from, const String& to) {
    Check(::rename(from.c_str(), to.c_str()) == 0);
}

void DiskFiles::Remove(const String& path) { Check(::unlink(path.c_str()) == 0); }

void DiskFiles::SyncFolder(const String& path) {
    const Descriptor folder(::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Check(::fsync(folder.Number()) == 0);
}

} // namespace zorvane
