#include "controls/ScratchFile.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace plandesk {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view ownPrefix = ".plandesk-write-";
constexpr int attempts = 100;

/// A name of this system's own. No name comes twice: whoever takes an earlier file for a leftover does not meet a later
/// one under its name.
fs::path ownName(const fs::path& folder) {
    return folder / (std::string(ownPrefix) + std::to_string(getpid()) + "-" + std::to_string(arc4random()));
}

bool isOwnName(std::string_view name) {
    return name.starts_with(ownPrefix) && name.find_first_not_of("0123456789-", ownPrefix.size()) == name.npos;
}

/// Whoever uses a file shares its lock; who removes a leftover has it alone. On a file system without locks leftovers
/// stay.
bool isRemovedByAnother(const ScratchFile& made) {
    struct stat found = {};
    return (flock(made.file.number, LOCK_SH | LOCK_NB) < 0 && errno == EWOULDBLOCK) ||
           (lstat(made.name.path.c_str(), &found) < 0 && errno == ENOENT);
}

}  // namespace

ScratchFile createScratchFile(const fs::path& folder, mode_t mode) {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const fs::path path = ownName(folder);
        Descriptor file(open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file.number < 0 && errno == EEXIST)
            continue;
        check(file.number);
        ScratchFile made{ScratchName(path), std::move(file)};
        // Another program may have taken it for a leftover before it was locked.
        if (!isRemovedByAnother(made))
            return made;
    }
    failWith(EEXIST);
}

std::optional<ScratchFile> secondName(const fs::path& folder, const fs::path& path) {
    // Locked first, for the second name is not to be taken for a leftover either.
    Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.number >= 0)
        flock(file.number, LOCK_SH | LOCK_NB);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const fs::path name = ownName(folder);
        if (link(path.c_str(), name.c_str()) == 0)
            return ScratchFile{ScratchName(name), std::move(file)};
        if (isNotOffered(errno) || errno == EMLINK || errno == EXDEV)
            return std::nullopt;
        // A file that another program replaces at this moment is missing too.
        if (errno != EEXIST && errno != ENOENT)
            failWith(errno);
    }
    return std::nullopt;
}

void removeLeftovers(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        const fs::path& path = entry->path();
        if (!isOwnName(path.filename().native()))
            continue;
        const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (file.number >= 0 && flock(file.number, LOCK_EX | LOCK_NB) == 0)
            unlink(path.c_str());
    }
}

}  // namespace plandesk
