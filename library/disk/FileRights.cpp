#include "library/disk/FileRights.h"

#include "library/disk/Descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace zorvane {

namespace {

void CheckKept(bool kept, const String& what) {
    if (!kept) RaiseNoAccess(what + " cannot be kept: " + ReasonOf(errno));
}

#ifdef __linux__

constexpr std::string_view kAccessList = "system.posix_acl_access";

/// Seals over the content or the right to run it, which the system makes by itself and which would
/// be wrong for other content.
bool BelongsToContent(std::string_view name) {
    return name == "security.ima" || name == "security.evm" || name == "security.capability";
}

bool HasNone(int error) { return error == ENOTSUP || error == ENODATA; }

std::vector<String> AttributesOf(int file) {
    std::array<char, 65536> names = {};
    const ssize_t size = ::flistxattr(file, names.data(), names.size());
    CheckKept(size >= 0 || HasNone(errno), "its extended attributes");
    std::vector<String> list;
    std::string_view rest(names.data(), static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    while (!rest.empty()) {
        const std::string_view name = rest.substr(0, rest.find('\0'));
        if (!BelongsToContent(name)) list.emplace_back(name);
        rest.remove_prefix(name.size() + 1);
    }
    return list;
}

String ValueOf(int file, const String& name) {
    String value(65536, '\0');
    const ssize_t size = ::fgetxattr(file, name.c_str(), value.data(), value.size());
    value.resize(static_cast<std::size_t>(std::max<ssize_t>(size, 0)));
    return value;
}

String NameOf(const String& attribute) {
    return attribute == kAccessList ? "its access list" : "its attribute " + attribute;
}

/// A new file may have inherited attributes from its folder, the access list among them.
void CopyAttributes(int from, int to) {
    const std::vector<String> kept = AttributesOf(from);
    for (const String& name : AttributesOf(to)) {
        if (std::find(kept.begin(), kept.end(), name) == kept.end())
            CheckKept(::fremovexattr(to, name.c_str()) == 0 || HasNone(errno), NameOf(name));
    }
    for (const String& name : kept) {
        const String value = ValueOf(from, name);
        if (value == ValueOf(to, name)) continue;
        CheckKept(::fsetxattr(to, name.c_str(), value.data(), value.size(), 0) == 0, NameOf(name));
    }
}

#else

void CopyAttributes(int /*from*/, int /*to*/) {}

#endif

} // namespace

void CopyRights(const String& from, int toFile) {
    const Descriptor source(OpenForReading(from));
    struct stat wanted = {};
    struct stat present = {};
    CheckSystem(::fstat(source.Number(), &wanted) == 0 && ::fstat(toFile, &present) == 0);
    if (wanted.st_uid != present.st_uid)
        CheckKept(::fchown(toFile, wanted.st_uid, static_cast<gid_t>(-1)) == 0, "its owner");
    if (wanted.st_gid != present.st_gid)
        CheckKept(::fchown(toFile, static_cast<uid_t>(-1), wanted.st_gid) == 0, "its group");
    CopyAttributes(source.Number(), toFile);
    // The group's bits are the mask of an access list; setting them last keeps both.
    CheckKept(::fchmod(toFile, wanted.st_mode & 07777) == 0, "its permissions");
}

} // namespace zorvane
