#include "runtime/RuntimeError.h"

#include <utility>

namespace zorvane {

RuntimeError::RuntimeError(Long number, String source, String description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {}

const char* DescriptionOf(ErrorNumber number) noexcept {
    switch (number) {
    case ErrorNumber::InvalidProcedureCall:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::SubscriptOutOfRange:
        return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
        return "Division by zero";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::BadFileNumber:
        return "Bad file name or number";
    case ErrorNumber::FileNotFound:
        return "File not found";
    case ErrorNumber::DeviceError:
        return "Device I/O error";
    case ErrorNumber::InputPastEnd:
        return "Input past end of file";
    case ErrorNumber::PathFileAccess:
        return "Path/File access error";
    case ErrorNumber::PathNotFound:
        return "Path not found";
    case ErrorNumber::ObjectNotSet:
        return "Object variable not set";
    case ErrorNumber::DuplicateKey:
        return "This key is already associated with an element of this collection";
    case ErrorNumber::CommandFailed:
    case ErrorNumber::XMLNotOpened:
    case ErrorNumber::XMLNotRead:
    case ErrorNumber::XMLNotWritten:
    case ErrorNumber::XMLBadTag:
    case ErrorNumber::ChangedOnDisk:
    case ErrorNumber::EditNotPossible:
    case ErrorNumber::ArrayOutsidePlate:
        break;
    }
    return "Unknown error";
}

void Raise(ErrorNumber number) { Raise(number, DescriptionOf(number)); }

void Raise(ErrorNumber number, String description, String source) {
    throw RuntimeError(static_cast<Long>(number), std::move(source), std::move(description));
}

} // namespace zorvane
