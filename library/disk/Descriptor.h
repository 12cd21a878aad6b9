#pragma once

#include "runtime/RuntimeError.h"
#include "runtime/Types.h"

namespace zorvane {

/// What a system call's error number means for a file, in words fit to follow a colon.
String ReasonOf(int error);

/// Raises the RuntimeError of an error number.
[[noreturn]] void RaiseSystemError(int error);

/// Raises the error of a system call that failed, from errno.
void CheckSystem(bool good);

/// Raises PathFileAccess, which no retry mends.
[[noreturn]] void RaiseNoAccess(const String& reason);

/// Opens a file, which must be an ordinary one: no device or pipe is waited for. The result is for
/// a Descriptor.
int OpenForReading(const String& path);

/// An open file, closed when it goes away.
class Descriptor {
  public:
    /// Takes what open() returned, and raises its error.
    explicit Descriptor(int number) : number_(number) { CheckSystem(number >= 0); }
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }
    /// Closing may be what tells that bytes did not arrive.
    void Close();
    /// Hands the file over to the caller.
    int Release();

  private:
    int number_;
};

} // namespace zorvane
