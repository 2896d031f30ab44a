#include "unit/SystemFaults.h"

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace plandesk::test {

namespace {

SystemFaults* present = nullptr;

}  // namespace

SystemFaults::SystemFaults(Plan plan) : plan(std::move(plan)) {
    present = this;
}

SystemFaults::~SystemFaults() {
    present = nullptr;
}

int SystemFaults::comes(const std::string& call) {
    if (!plan.call.empty() && plan.call != call)
        return 0;
    const int number = counted++;
    if (number != plan.number && !(plan.each && number > plan.number))
        return 0;
    if (plan.error == 0)
        raise(SIGKILL);
    failed.push_back(call);
    return plan.error;
}

namespace {

/// Whether the call is to fail; its error number is set then.
bool fails(const char* call) {
    const int error = present ? present->comes(call) : 0;
    if (error != 0)
        errno = error;
    return error != 0;
}

template <class Function>
Function* theSystems(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

}  // namespace plandesk::test

// The program's own definitions of these names are taken before the system's.
#define PLANDESK_STANDS_BEFORE(RESULT, NAME, PARAMETERS, ARGUMENTS, THROWS) \
    extern "C" RESULT NAME PARAMETERS THROWS {                              \
        using namespace plandesk::test;                                     \
        static auto* const real = theSystems<RESULT PARAMETERS>(#NAME);     \
        return fails(#NAME) ? RESULT{-1} : real ARGUMENTS;                  \
    }

using Path = const char*;
using Name = const char*;

PLANDESK_STANDS_BEFORE(int, close, (int file), (file), )
PLANDESK_STANDS_BEFORE(ssize_t, write, (int file, const void* bytes, size_t size), (file, bytes, size), )
PLANDESK_STANDS_BEFORE(int, fsync, (int file), (file), )
PLANDESK_STANDS_BEFORE(int, dup, (int file), (file), noexcept)
PLANDESK_STANDS_BEFORE(int, flock, (int file, int how), (file, how), noexcept)
PLANDESK_STANDS_BEFORE(int, fchown, (int file, uid_t owner, gid_t group), (file, owner, group), noexcept)
PLANDESK_STANDS_BEFORE(int, fchmod, (int file, mode_t mode), (file, mode), noexcept)
PLANDESK_STANDS_BEFORE(int, stat, (Path path, struct stat* found), (path, found), noexcept)
PLANDESK_STANDS_BEFORE(int, lstat, (Path path, struct stat* found), (path, found), noexcept)
PLANDESK_STANDS_BEFORE(int, fstat, (int file, struct stat* found), (file, found), noexcept)
PLANDESK_STANDS_BEFORE(int, faccessat, (int folder, Path path, int how, int flags), (folder, path, how, flags),
                       noexcept)
PLANDESK_STANDS_BEFORE(int, link, (Path from, Path to), (from, to), noexcept)
PLANDESK_STANDS_BEFORE(int, unlink, (Path path), (path), noexcept)
PLANDESK_STANDS_BEFORE(int, rename, (Path from, Path to), (from, to), noexcept)
PLANDESK_STANDS_BEFORE(ssize_t, listxattr, (Path path, char* names, size_t size), (path, names, size), noexcept)
PLANDESK_STANDS_BEFORE(ssize_t, getxattr, (Path path, Name name, void* value, size_t size), (path, name, value, size),
                       noexcept)
PLANDESK_STANDS_BEFORE(ssize_t, fgetxattr, (int file, Name name, void* value, size_t size), (file, name, value, size),
                       noexcept)
PLANDESK_STANDS_BEFORE(int, fsetxattr, (int file, Name name, const void* value, size_t size, int how),
                       (file, name, value, size, how), noexcept)
PLANDESK_STANDS_BEFORE(int, fremovexattr, (int file, Name name), (file, name), noexcept)

extern "C" int open(const char* path, int flags, ...) {
    using namespace plandesk::test;
    static auto* const real = theSystems<int(const char*, int, ...)>("open");
    va_list further;
    va_start(further, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(further, mode_t) : 0;
    va_end(further);
    return fails("open") ? -1 : real(path, flags, mode);
}
