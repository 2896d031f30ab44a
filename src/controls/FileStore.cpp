#include "controls/FileStore.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/RuntimeError.h"

namespace plandesk {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view ownPrefix = ".plandesk-write-";
constexpr mode_t permissionBits = 07777;
constexpr int linksFollowed = 40;

[[noreturn]] void fail(int error, ErrorNumber otherwise = ErrorNumber::PathFileAccess) {
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

void check(int result, ErrorNumber otherwise = ErrorNumber::PathFileAccess) {
    if (result < 0)
        fail(errno, otherwise);
}

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

/// A name that is removed at the end unless it was given up.
class ScratchName {
public:
    explicit ScratchName(fs::path path) : path(std::move(path)) {}
    ScratchName(ScratchName&& other) noexcept : path(std::exchange(other.path, {})) {}
    ScratchName& operator=(ScratchName&&) = delete;
    ~ScratchName() {
        if (!path.empty())
            unlink(path.c_str());
    }

    void giveUp() { path.clear(); }

    fs::path path;
};

struct Target {
    fs::path path;  ///< links resolved
    fs::path folder;
    std::optional<mode_t> earlier;  ///< permission bits of the earlier file
};

fs::path withoutLinks(fs::path path) {
    std::error_code error;
    for (int link = 0; fs::is_symlink(fs::symlink_status(path, error)); ++link) {
        if (link == linksFollowed)
            fail(ELOOP);
        const fs::path next = fs::read_symlink(path, error);
        if (error)
            fail(error.value());
        path = path.parent_path() / next;
    }
    return path;
}

Target examine(const fs::path& path) {
    Target target;
    target.path = withoutLinks(path);
    target.folder = target.path.has_parent_path() ? target.path.parent_path() : fs::path(".");
    struct stat found = {};
    if (stat(target.path.c_str(), &found) < 0) {
        if (errno != ENOENT || !target.path.has_filename())
            fail(errno);
        return target;
    }
    if (!S_ISREG(found.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess);
    // A write-protected file stays as it is, though its folder would let it be replaced.
    check(faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS));
    target.earlier = found.st_mode & permissionBits;
    return target;
}

/// A name of this system's own in the folder. The number makes it unique within the process.
fs::path ownName(const fs::path& folder, unsigned number) {
    return folder / (std::string(ownPrefix) + std::to_string(getpid()) + "-" + std::to_string(number));
}

bool isOwnName(std::string_view name) {
    return name.starts_with(ownPrefix) && name.find_first_not_of("0123456789-", ownPrefix.size()) == name.npos;
}

/// Removes what killed writes left in the folder. What cannot be removed now is tried again at the next write.
void removeLeftovers(const fs::path& folder) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        if (!isOwnName(entry.path().filename().native()))
            continue;
        const Descriptor file(open(entry.path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        // Whoever is still writing holds the lock.
        if (file.number >= 0 && flock(file.number, LOCK_EX | LOCK_NB) == 0)
            unlink(entry.path().c_str());
    }
}

struct Temporary {
    ScratchName name;
    Descriptor file;
};

Temporary createTemporary(const Target& target) {
    // An earlier file that others may not read is not to be readable under another name either.
    const mode_t mode = target.earlier ? 0600 : 0666;
    for (unsigned number = 0;; ++number) {
        const fs::path path = ownName(target.folder, number);
        Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file.number < 0 && errno == EEXIST)
            continue;
        check(file.number);
        Temporary made{ScratchName(path), std::move(file)};
        // Without a lock the file is merely not told from a leftover.
        flock(made.file.number, LOCK_EX | LOCK_NB);
        struct stat found = {};
        check(fstat(made.file.number, &found));
        if (found.st_nlink > 0)
            return made;
        // Another program took it for a leftover before it was locked.
        made.name.giveUp();
    }
}

void writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            fail(errno, ErrorNumber::DeviceIoError);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

/// A second name of the earlier file, to undo the replacing. Nothing where the file system has no second names.
std::optional<ScratchName> keepEarlier(const Target& target) {
    if (!target.earlier)
        return std::nullopt;
    for (unsigned number = 0;; ++number) {
        const fs::path path = ownName(target.folder, number);
        if (link(target.path.c_str(), path.c_str()) == 0)
            return ScratchName(path);
        if (errno == EPERM || errno == EOPNOTSUPP || errno == EMLINK)
            return std::nullopt;
        if (errno != EEXIST)
            fail(errno);
    }
}

void flushFolder(const fs::path& folder) {
    const Descriptor file(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some file systems cannot flush a folder, and some folders may be written into but not read.
    if (file.number >= 0 && fsync(file.number) < 0 && errno != EINVAL)
        fail(errno, ErrorNumber::DeviceIoError);
}

void undoReplacing(const Target& target, std::optional<ScratchName>& kept) {
    if (kept && rename(kept->path.c_str(), target.path.c_str()) == 0)
        kept->giveUp();
    else if (!target.earlier)
        unlink(target.path.c_str());
}

}  // namespace

std::vector<std::string> FileStore::readLines(const fs::path& path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.number < 0)
        throw RuntimeError(errno == ENOENT || errno == ENOTDIR ? ErrorNumber::FileNotFound
                                                               : ErrorNumber::PathFileAccess);
    std::string bytes;
    char block[16384];
    ssize_t count = 0;
    while ((count = read(file.number, block, sizeof block)) != 0) {
        if (count < 0 && errno != EINTR)
            throw RuntimeError(ErrorNumber::PathFileAccess);
        if (count > 0)
            bytes.append(block, static_cast<std::size_t>(count));
    }
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < bytes.size();) {
        const std::size_t end = std::min(bytes.find('\n', start), bytes.size());
        const bool returned = end > start && end < bytes.size() && bytes[end - 1] == '\r';
        lines.push_back(bytes.substr(start, end - start - (returned ? 1 : 0)));
        start = end + 1;
    }
    return lines;
}

void FileStore::writeWhole(const fs::path& path, std::string_view bytes) {
    const auto begin = [failing = std::exchange(failing, 0)](Step step) {
        if (failing == static_cast<int>(step))
            throw RuntimeError(ErrorNumber::DiskFull);
    };
    const Target target = examine(path);
    removeLeftovers(target.folder);

    begin(Step::Create);
    Temporary temporary = createTemporary(target);
    begin(Step::Write);
    writeAll(temporary.file.number, bytes);
    begin(Step::Permissions);
    if (target.earlier)
        check(fchmod(temporary.file.number, *target.earlier));
    begin(Step::Flush);
    check(fsync(temporary.file.number), ErrorNumber::DeviceIoError);
    begin(Step::KeepEarlier);
    std::optional<ScratchName> kept = keepEarlier(target);
    begin(Step::Replace);
    check(rename(temporary.name.path.c_str(), target.path.c_str()));
    temporary.name.giveUp();
    try {
        begin(Step::FlushFolder);
        flushFolder(target.folder);
    } catch (const RuntimeError&) {
        undoReplacing(target, kept);
        throw;
    }
}

}  // namespace plandesk
