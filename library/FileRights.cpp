#include "library/FileRights.h"

#include <array>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace zorvane {

namespace {

/// The list of further users and groups that have rights to a file, as the system stores it.
struct AccessList {
    std::array<char, 65536> bytes;
    ssize_t size = 0; ///< 0 where there is none, below 0 where it cannot be read
};

#ifdef __linux__

constexpr const char* kAccessList = "system.posix_acl_access";

AccessList AccessListOf(const String& path) {
    AccessList list;
    list.size = ::getxattr(path.c_str(), kAccessList, list.bytes.data(), list.bytes.size());
    if (list.size < 0 && (errno == ENODATA || errno == ENOTSUP)) list.size = 0;
    return list;
}

/// A new file may have inherited a list from its folder.
void RemoveAccessList(int file) { ::fremovexattr(file, kAccessList); }

/// A file that cannot be given the list keeps its narrower rights.
void SetAccessList(int file, const AccessList& list) {
    ::fsetxattr(file, kAccessList, list.bytes.data(), static_cast<std::size_t>(list.size), 0);
}

#else

AccessList AccessListOf(const String& /*path*/) { return {}; }
void RemoveAccessList(int /*file*/) {}
void SetAccessList(int /*file*/, const AccessList& /*list*/) {}

#endif

} // namespace

bool CopyRights(const String& from, int toFile) {
    struct stat status = {};
    if (::stat(from.c_str(), &status) != 0) return false;
    const AccessList list = AccessListOf(from);
    RemoveAccessList(toFile);

    // Only a privileged program can give a file to another owner. Its group may be possible.
    const bool sameOwner = ::fchown(toFile, status.st_uid, status.st_gid) == 0;
    const bool sameGroup =
        sameOwner || ::fchown(toFile, static_cast<uid_t>(-1), status.st_gid) == 0;
    mode_t rights = status.st_mode & (sameOwner ? 07777 : 00777);
    // Another group may do what everybody may. With a list, the group's bits are not its own.
    if (!sameGroup) rights &= ~mode_t{S_IRWXG} | (rights & S_IRWXO) << 3;
    if (list.size != 0) rights &= ~mode_t{S_IRWXG};
    if (::fchmod(toFile, rights) != 0) return false;
    if (sameGroup && list.size > 0) SetAccessList(toFile, list);
    return true;
}

} // namespace zorvane
