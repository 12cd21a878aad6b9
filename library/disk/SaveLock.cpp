#include "library/disk/SaveLock.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace zorvane {

namespace {

constexpr mode_t kAnybody = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

/// Keeps back the signals that end a program. What makes or removes the lock file and notes that it
/// did must not be torn apart: the file would stay, or that of another program go.
class HeldSignals {
  public:
    HeldSignals() {
        sigset_t held = {};
        ::sigemptyset(&held);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            ::sigaddset(&held, signal);
        ::pthread_sigmask(SIG_BLOCK, &held, &before_);
    }
    ~HeldSignals() { ::pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;

  private:
    sigset_t before_ = {};
};

/// The lock file: made, or opened where it is there; below 0 when it has just gone.
int OpenLockFile(const char* path, bool& made) {
    int file = ::open(path, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, kAnybody);
    made = file >= 0;
    if (file < 0 && errno == EEXIST) file = ::open(path, O_RDWR | O_CLOEXEC | O_NOFOLLOW);
    // Another user's can be locked without the right to write it.
    if (file < 0 && errno == EACCES) file = ::open(path, O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    CheckSystem(file >= 0 || errno == ENOENT);
    return file;
}

/// The former holder removes the file before it lets go; a lock on what is gone is worth nothing.
bool IsStillThere(int file, const char* path) {
    struct stat opened = {};
    struct stat named = {};
    return ::fstat(file, &opened) == 0 && ::stat(path, &named) == 0 &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

} // namespace

SaveLock::SaveLock(const String& path) : path_(TemporaryName(path, "lock")) {
    using namespace std::chrono_literals;
    const auto latest = std::chrono::steady_clock::now() + 10s;
    while (!TryLock()) {
        if (std::chrono::steady_clock::now() > latest) {
            RaiseNoAccess("another program does not finish saving; if none is running, remove " +
                          path_);
        }
        std::this_thread::sleep_for(2ms);
    }
    SweepTemporaries(path);
}

SaveLock::~SaveLock() {
    const HeldSignals held;
    file_.reset();
}

bool SaveLock::TryLock() {
    const HeldSignals held;
    bool made = false;
    const int number = OpenLockFile(path_.c_str(), made);
    if (number < 0) return false;
    auto file = std::make_unique<Descriptor>(number);
    const bool locked = ::flock(number, LOCK_EX | LOCK_NB) == 0;
    const bool noLocks = !locked && errno != EWOULDBLOCK && errno != EINTR;
    if (locked ? !IsStillThere(number, path_.c_str()) : !(noLocks && made)) return false;
    held_ = std::move(file);
    file_ = std::make_unique<TemporaryFile>(path_);
    return true;
}

} // namespace zorvane
