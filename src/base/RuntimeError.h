#pragma once

#include <exception>
#include <string>

namespace plandesk {

/// The platform's customary numbers of the run-time errors that this system can raise.
enum class ErrorNumber {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    OutOfStackSpace = 28,
    FileNotFound = 53,
    DeviceIoError = 57,
    DiskFull = 61,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidPropertyValue = 380,
    InvalidPropertyArrayIndex = 381,
    PrinterError = 482,
    ArgumentsOfWrongType = 3001,
    NoCurrentRecord = 3021,
    ItemNotFound = 3265,
};

/// A run-time error of the platform: a number and the customary description that the user reads.
/// One that nobody handles ends the running event and is shown to the user in one message.
class RuntimeError : public std::exception {
public:
    explicit RuntimeError(ErrorNumber number);
    /// With a description that tells more than the customary one.
    RuntimeError(ErrorNumber number, std::string description);

    const char* what() const noexcept override { return description.c_str(); }

    int number;
    std::string description;
};

/// What the user reads of the exception that is being handled, of whatever type; to be called within a catch alone.
std::string failureText();

}  // namespace plandesk
