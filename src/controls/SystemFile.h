#pragma once

#include <string_view>
#include <utility>

#include <unistd.h>

#include "base/RuntimeError.h"

// Calls of the system on files, with their failures as run-time errors.

namespace plandesk {

/// Throws the run-time error for an error number of the system; `otherwise` when it has no error of its own.
[[noreturn]] void failWith(int error, ErrorNumber otherwise = ErrorNumber::PathFileAccess);

/// Fails with the system's error number when a call gave a negative result.
void check(int result, ErrorNumber otherwise = ErrorNumber::PathFileAccess);

/// Whether the error says that the file system does not offer the call, or not to this user. Many network and removable
/// file systems lack second names, permission bits or flushing.
bool isNotOffered(int error);

/// An open file, closed at the end.
class Descriptor {
public:
    explicit Descriptor(int number) : number(number) {}
    Descriptor(Descriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (number >= 0)
            close(number);
    }

    int number;
};

/// RuntimeError 61, 70 or 57 when not all could be written.
void writeAll(int file, std::string_view bytes);

/// Has the system bring to the disk what was written into the file or folder. RuntimeError 61 or 57 when that failed;
/// on a file system that cannot, nothing happens.
void flush(int file);

/// Fails where closing the file would; it stays open, and locked.
void checkClosing(int file);

}  // namespace plandesk
