#pragma once

#include "runtime/Types.h"

#include <exception>

namespace zorvane {

/// Numbers of the run-time errors that the system itself raises.
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
};

/// The one exception type that leaves a public member: a number, where it arose, and a description.
class RuntimeError : public std::exception {
  public:
    RuntimeError(Long number, String source, String description);

    Long Number() const noexcept { return number_; }
    const String& Source() const noexcept { return source_; }
    const String& Description() const noexcept { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

  private:
    Long number_;
    String source_;
    String description_;
};

/// The fixed text of an error number.
const char* DescriptionOf(ErrorNumber number) noexcept;

/// Raises a RuntimeError with the number's fixed text and the library's name as its source.
[[noreturn]] void Raise(ErrorNumber number);

} // namespace zorvane
