#include "library/disk/Descriptor.h"

#include <cerrno>
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

} // namespace

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

void RaiseSystemError(int error) { Raise(NumberOf(error), ReasonOf(error)); }

void CheckSystem(bool good) {
    if (!good) RaiseSystemError(errno);
}

void RaiseNoAccess(const String& reason) { Raise(ErrorNumber::PathFileAccess, reason); }

int OpenForReading(const String& path) {
    // Without waiting, as opening a pipe waits for somebody who writes.
    Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    CheckSystem(::fstat(file.Number(), &status) == 0);
    if (S_ISDIR(status.st_mode)) RaiseSystemError(EISDIR);
    if (!S_ISREG(status.st_mode)) RaiseNoAccess("it is not an ordinary file");
    return file.Release();
}

Descriptor::~Descriptor() {
    if (number_ >= 0) ::close(number_);
}

void Descriptor::Close() { CheckSystem(::close(Release()) == 0); }

int Descriptor::Release() { return std::exchange(number_, -1); }

} // namespace zorvane
