#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

#include <exception>

namespace zorvane {

/// Numbers of all run-time errors that are raised: those of the platform, each with a text of its
/// own, then ours, whose texts say what went wrong where.
enum class ErrorNumber : Long {
    InvalidProcedureCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileNumber = 52,
    FileNotFound = 53,
    DeviceError = 57,
    InputPastEnd = 62,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    DuplicateKey = 457,

    CommandFailed = 1, ///< of the command-line tool, which shows the text only
    XMLNotOpened = 1050,
    XMLNotRead = 1051,
    XMLNotWritten = 1053,
    XMLBadTag = 1055,
    ChangedOnDisk = 1101,   ///< a file is no longer what was read from it
    EditNotPossible = 1102, ///< a library cannot take an edited definition
    ArrayOutsidePlate = 2999,
};

/// The one exception type that leaves a public member: a number, where it arose, and a description.
class ZORVANE_EXPORT RuntimeError : public std::exception {
  public:
    RuntimeError(Long number, String source, String description);

    Long Number() const noexcept { return number_; }
    bool Is(ErrorNumber number) const noexcept { return number_ == static_cast<Long>(number); }
    const String& Source() const noexcept { return source_; }
    const String& Description() const noexcept { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

  private:
    Long number_;
    String source_;
    String description_;
};

/// The fixed text of a number of the platform; "Unknown error" for one of ours.
ZORVANE_EXPORT const char* DescriptionOf(ErrorNumber number) noexcept;

/// What a RuntimeError names as its source unless the place that raises it has a name.
inline constexpr const char* kErrorSource = "Zorvane";

/// Raises a RuntimeError with the number's fixed text.
[[noreturn]] ZORVANE_EXPORT void Raise(ErrorNumber number);
/// Raises a RuntimeError with a text of its own.
[[noreturn]] ZORVANE_EXPORT void Raise(ErrorNumber number, String description,
                                       String source = kErrorSource);

} // namespace zorvane
