#include "controls/SystemFile.h"

#include <cerrno>

namespace plandesk {

void failWith(int error, ErrorNumber otherwise) {
    switch (error) {
    case ENOSPC:
    case EDQUOT:
        throw RuntimeError(ErrorNumber::DiskFull);
    case EACCES:
    case EPERM:
    case EROFS:
        throw RuntimeError(ErrorNumber::PermissionDenied);
    case ENOENT:
    case ENOTDIR:
        throw RuntimeError(ErrorNumber::PathNotFound);
    default:
        throw RuntimeError(otherwise);
    }
}

void check(int result, ErrorNumber otherwise) {
    if (result < 0)
        failWith(errno, otherwise);
}

bool isNotOffered(int error) {
    return error == EOPNOTSUPP || error == ENOSYS || error == EINVAL || error == EPERM || error == EACCES;
}

void writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        check(written > 0 ? 0 : -1, ErrorNumber::DeviceIoError);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void flush(int file) {
    int result = 0;
    do
        result = fsync(file);
    while (result < 0 && errno == EINTR);
    if (result < 0 && !isNotOffered(errno))
        failWith(errno, ErrorNumber::DeviceIoError);
}

void checkClosing(int file) {
    // The system tells a file's late errors at the closing of any of its descriptors.
    const int second = dup(file);
    check(second);
    check(close(second), ErrorNumber::DeviceIoError);
}

}  // namespace plandesk
