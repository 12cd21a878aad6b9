#include "library/DiskFiles.h"

#include "library/FileRights.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <random>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
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

[[noreturn]] void RaiseError(int error) { Raise(NumberOf(error), ReasonOf(error)); }

[[noreturn]] void RaiseNoAccess(const String& reason) {
    Raise(ErrorNumber::PathFileAccess, reason);
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

/// The number of an open folder, that of a file.
int OpenFolderOf(const String& path) {
    return ::open(FolderOf(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

struct stat StatusOf(const String& path) {
    struct stat status = {};
    Check(::stat(path.c_str(), &status) == 0);
    return status;
}

String RandomLetters() {
    constexpr const char* letters = "abcdefghijklmnopqrstuvwxyz";
    std::random_device random;
    std::uniform_int_distribution<std::size_t> place(0, 25);
    String text;
    while (text.size() < 6)
        text += letters[place(random)];
    return text;
}

class DiskOutput final : public FileLayer::Output {
  public:
    DiskOutput(const String& path, mode_t mode)
        : path_(path), file_(::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode)) {
    }

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

    void TakeRightsOf(const String& other) { Check(CopyRights(other, file_.Number())); }

  private:
    String path_;
    Descriptor file_;
};

} // namespace

String DiskFiles::Resolved(const String& path) {
    namespace fs = std::filesystem;
    constexpr int mostLinks = 40;
    try {
        fs::path file = path;
        for (int links = 0; links < mostLinks && fs::is_symlink(file); ++links)
            file = file.parent_path() / fs::read_symlink(file);
        return fs::canonical(FolderOf(file.string())) / file.filename();
    } catch (const fs::filesystem_error& error) {
        RaiseError(error.code().value());
    }
}

bool DiskFiles::Exists(const String& path) {
    struct stat status = {};
    const bool found = ::stat(path.c_str(), &status) == 0;
    Check(found || errno == ENOENT);
    return found;
}

void DiskFiles::CheckWritable(const String& path) {
    constexpr mode_t anyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
    const mode_t mode = StatusOf(path).st_mode;
    if (S_ISDIR(mode)) RaiseError(EISDIR);
    if (!S_ISREG(mode)) RaiseNoAccess("it is not an ordinary file");
    // A privileged program may write to any file, but a file marked read-only is meant to stay.
    if ((mode & anyWriter) == 0) RaiseNoAccess("it is read-only");
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
    constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
    constexpr mode_t newFile = ownerOnly | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    const bool exists = Exists(path);
    auto output =
        std::make_unique<DiskOutput>(path + "." + RandomLetters(), exists ? ownerOnly : newFile);
    try {
        if (exists) output->TakeRightsOf(path);
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

std::shared_ptr<void> DiskFiles::LockFolder(const String& path) {
    using namespace std::chrono_literals;
    auto folder = std::make_shared<Descriptor>(OpenFolderOf(path));
    const auto latest = std::chrono::steady_clock::now() + 10s;
    while (::flock(folder->Number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK) break; // Not every file system has locks.
        if (std::chrono::steady_clock::now() > latest)
            RaiseNoAccess("another program does not finish saving in this folder");
        std::this_thread::sleep_for(5ms);
    }
    return folder;
}

void DiskFiles::SyncFolder(const String& path) {
    const Descriptor folder(OpenFolderOf(path));
    Check(::fsync(folder.Number()) == 0);
}

} // namespace zorvane
