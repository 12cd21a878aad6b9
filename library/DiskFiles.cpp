#include "library/DiskFiles.h"

#include "library/disk/Descriptor.h"
#include "library/disk/FileRights.h"
#include "library/disk/SaveLock.h"
#include "library/disk/TemporaryNames.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zorvane {

namespace {

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
    CheckSystem(::stat(path.c_str(), &status) == 0);
    return status;
}

class DiskOutput final : public FileLayer::Output {
  public:
    DiskOutput(const String& path, mode_t mode)
        : temporary_(path),
          file_(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode)) {}

    const String& Path() const override { return temporary_.Path(); }

    void Write(std::string_view bytes) override {
        while (!bytes.empty()) {
            const ssize_t written = ::write(file_.Number(), bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            CheckSystem(written >= 0);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void Flush() override { CheckSystem(::fsync(file_.Number()) == 0); }
    void Close() override { file_.Close(); }

    void TakeRightsOf(const String& other) { CopyRights(other, file_.Number()); }

  private:
    TemporaryFile temporary_;
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
        RaiseSystemError(error.code().value());
    }
}

bool DiskFiles::Exists(const String& path) {
    struct stat status = {};
    const bool found = ::stat(path.c_str(), &status) == 0;
    CheckSystem(found || errno == ENOENT);
    return found;
}

void DiskFiles::CheckWritable(const String& path) {
    constexpr mode_t anyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
    const mode_t mode = StatusOf(path).st_mode;
    if (S_ISDIR(mode)) RaiseSystemError(EISDIR);
    if (!S_ISREG(mode)) RaiseNoAccess("it is not an ordinary file");
    // A privileged program may write to any file, but a file marked read-only is meant to stay.
    if ((mode & anyWriter) == 0) RaiseNoAccess("it is read-only");
    CheckSystem(::access(path.c_str(), W_OK) == 0);
}

String DiskFiles::Read(const String& path) {
    const Descriptor file(OpenForReading(path));
    String bytes;
    std::array<char, 65536> block = {};
    for (;;) {
        const ssize_t count = ::read(file.Number(), block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        CheckSystem(count >= 0);
        if (count == 0) return bytes;
        bytes.append(block.data(), static_cast<std::size_t>(count));
        if (bytes.size() > kMostBytesRead)
            Raise(ErrorNumber::DeviceError, "it is larger than 256 MB");
    }
}

std::unique_ptr<FileLayer::Output> DiskFiles::CreateBeside(const String& path) {
    constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;
    constexpr mode_t newFile = ownerOnly | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    const bool exists = Exists(path);
    auto output =
        std::make_unique<DiskOutput>(NewTemporaryName(path), exists ? ownerOnly : newFile);
    if (exists) output->TakeRightsOf(path);
    return output;
}

void DiskFiles::Rename(const String& from, const String& to) {
    CheckSystem(::rename(from.c_str(), to.c_str()) == 0);
}

void DiskFiles::RenameToNew(const String& from, const String& to) {
    // Unlike a rename, a link takes no other file's place. Not every file system has links.
    if (::link(from.c_str(), to.c_str()) == 0) {
        ::unlink(from.c_str());
        return;
    }
    if (errno == EEXIST || Exists(to))
        Raise(ErrorNumber::ChangedOnDisk, "another program has made it meanwhile");
    Rename(from, to);
}

std::shared_ptr<void> DiskFiles::Lock(const String& path) {
    std::weak_ptr<void>& held = locks_[path];
    std::shared_ptr<void> lock = held.lock();
    if (!lock) held = lock = std::make_shared<SaveLock>(path);
    return lock;
}

void DiskFiles::SyncFolder(const String& path) {
    const Descriptor folder(OpenFolderOf(path));
    CheckSystem(::fsync(folder.Number()) == 0);
}

} // namespace zorvane
