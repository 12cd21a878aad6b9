#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <string_view>

namespace zorvane {

/// Result codes of registry calls; 0 means done.
enum RegistryResult : Long {
    kRegistrySuccess = 0,
    kRegistryNotFound = 2,
    kRegistryAccessDenied = 5,
    kRegistryInvalidHandle = 6,
    kRegistryDiskFull = 112,
    kRegistryBusy = 170,
    kRegistryMoreData = 234,
    kRegistryNoMoreItems = 259,
    kRegistryCorrupt = 1009,    ///< what is stored is no registry, or a damaged one
    kRegistryNotWorking = 1016, ///< reading or writing what is stored has failed
};

/// Types of stored values.
enum RegistryType : Long {
    kRegistryString = 1,
    kRegistryExpandString = 2,
    kRegistryBinary = 3,
    kRegistryNumber = 4,
};

/// Predefined root keys, and the access rights that the system asks for.
inline constexpr Long kClassesRoot = static_cast<Long>(0x80000000U);
inline constexpr Long kCurrentUser = static_cast<Long>(0x80000001U);
inline constexpr Long kLocalMachine = static_cast<Long>(0x80000002U);
inline constexpr Long kUsers = static_cast<Long>(0x80000003U);
inline constexpr Long kReadAccess = 0x20019;
inline constexpr Long kAllAccess = 0xF003F;

/// A hierarchical store of named values: keys are paths with parts separated by "\", names ignore
/// letter case, and values are enumerated in the order first written. Data cross this interface as
/// bytes. Each call answers a RegistryResult and raises nothing. Handles are opaque; 0 is none. The
/// defaults are those of a platform without a registry: nothing is found, nothing can be created.
class ZORVANE_EXPORT Registry {
  public:
    using Handle = std::int64_t;

    virtual ~Registry() = default;

    /// Opens an existing key below a root.
    virtual Long OpenKey(Long /*root*/, const String& /*key*/, Long /*access*/,
                         Handle& /*opened*/) {
        return kRegistryNotFound;
    }
    /// Opens a key below a root and creates what is missing of its path.
    virtual Long CreateKey(Long /*root*/, const String& /*key*/, Long /*access*/,
                           Handle& /*opened*/) {
        return kRegistryAccessDenied;
    }
    /// Reads a value's type and data; `capacity` is the most bytes the caller takes
    /// (kRegistryMoreData when there are more, with the type filled in).
    virtual Long QueryValue(Handle /*key*/, const String& /*name*/, Long /*capacity*/,
                            Long& /*type*/, String& /*data*/) {
        return kRegistryInvalidHandle;
    }
    virtual Long SetValue(Handle /*key*/, const String& /*name*/, Long /*type*/,
                          std::string_view /*data*/) {
        return kRegistryInvalidHandle;
    }
    /// Reads value number `index`, counted from 0; kRegistryNoMoreItems after the last one,
    /// kRegistryMoreData when its name has `nameCapacity` characters or more or its data more than
    /// `dataCapacity` bytes.
    virtual Long EnumValue(Handle /*key*/, Long /*index*/, Long /*nameCapacity*/,
                           Long /*dataCapacity*/, String& /*name*/, String& /*data*/) {
        return kRegistryInvalidHandle;
    }
    /// Accepts 0 and handles already closed.
    virtual Long CloseKey(Handle /*key*/) { return kRegistryInvalidHandle; }
};

} // namespace zorvane
