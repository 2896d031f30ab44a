#include "controls/FileStore.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/RuntimeError.h"
#include "controls/AccessRights.h"
#include "controls/ScratchFile.h"
#include "controls/SystemFile.h"

namespace plandesk {

namespace fs = std::filesystem;

namespace {

constexpr int linksFollowed = 40;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

struct Target {
    fs::path path;  ///< links resolved
    fs::path folder;
    std::optional<AccessRights> earlier;  ///< of the earlier file
    bool canBeUndone = false;             ///< whether a second name of the earlier file could be taken away again
};

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

/// In a folder where everybody may put files and only take his own away, a link may be anybody's trap. The system's own
/// protection is not asked, since the links are followed here.
bool isTrusted(const fs::path& link) {
    struct stat found = {};
    struct stat folder = {};
    check(lstat(link.c_str(), &found));
    check(stat(folderOf(link).c_str(), &folder));
    constexpr mode_t everybodysOwn = S_ISVTX | S_IWOTH;
    return (folder.st_mode & everybodysOwn) != everybodysOwn || found.st_uid == geteuid() ||
           found.st_uid == folder.st_uid;
}

fs::path withoutLinks(fs::path path) {
    std::error_code error;
    for (int link = 0; fs::is_symlink(fs::symlink_status(path, error)); ++link) {
        if (link == linksFollowed)
            failWith(ELOOP);
        if (!isTrusted(path))
            failWith(EACCES);
        const fs::path next = fs::read_symlink(path, error);
        if (error)
            failWith(error.value());
        path = path.parent_path() / next;
    }
    return path;
}

Target examine(const fs::path& path) {
    Target target;
    target.path = withoutLinks(path);
    target.folder = folderOf(target.path);
    struct stat found = {};
    if (stat(target.path.c_str(), &found) < 0) {
        if (errno != ENOENT || !target.path.has_filename())
            failWith(errno);
        return target;
    }
    if (!S_ISREG(found.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess);
    // A write-protected file stays as it is, though its folder would let it be replaced.
    check(faccessat(AT_FDCWD, target.path.c_str(), W_OK, AT_EACCESS));
    target.earlier = AccessRights::of(target.path);
    struct stat folder = {};
    check(stat(target.folder.c_str(), &folder));
    target.canBeUndone = (folder.st_mode & S_ISVTX) == 0 || found.st_uid == geteuid() || folder.st_uid == geteuid();
    return target;
}

void flushFolder(const fs::path& folder) {
    const Descriptor file(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // Some folders may be written into but not read.
    if (file.number >= 0)
        flush(file.number);
}

void undoReplacing(const Target& target, std::optional<ScratchFile>& kept) {
    if (kept && rename(kept->name.path.c_str(), target.path.c_str()) == 0)
        kept->name.giveUp();
    else if (!target.earlier)
        unlink(target.path.c_str());
}

}  // namespace

void FileStore::readLines(const fs::path& path, const std::function<void(std::string_view)>& take) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.number < 0)
        throw RuntimeError(errno == ENOENT || errno == ENOTDIR ? ErrorNumber::FileNotFound
                                                               : ErrorNumber::PathFileAccess);
    bool first = true;
    const auto takeLine = [&](std::string_view line) {
        if (std::exchange(first, false) && line.starts_with(byteOrderMark))
            line.remove_prefix(byteOrderMark.size());
        take(line);
    };
    std::string begun;  // of the line whose end has not come yet
    char block[65536];
    ssize_t count = 0;
    while ((count = read(file.number, block, sizeof block)) != 0) {
        if (count < 0 && errno != EINTR)
            throw RuntimeError(ErrorNumber::PathFileAccess);
        std::string_view bytes(block, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        for (std::size_t end = 0; (end = bytes.find('\n')) != bytes.npos; bytes.remove_prefix(end + 1)) {
            std::string_view line = begun.append(bytes.substr(0, end));
            if (line.ends_with('\r'))
                line.remove_suffix(1);
            takeLine(line);
            begun.clear();
        }
        begun.append(bytes);
    }
    if (!begun.empty())
        takeLine(begun);
}

void FileStore::writeWhole(const fs::path& path, std::string_view bytes) {
    const auto begin = [failing = std::exchange(failing, 0)](Step step) {
        if (failing == static_cast<int>(step))
            throw RuntimeError(ErrorNumber::DiskFull);
    };
    const Target target = examine(path);
    removeLeftovers(target.folder);

    begin(Step::Create);
    // An earlier file that others may not read is not to be readable under another name either.
    ScratchFile scratch = createScratchFile(target.folder, target.earlier ? 0600 : 0666);
    begin(Step::Write);
    writeAll(scratch.file.number, bytes);
    begin(Step::Permissions);
    if (target.earlier)
        handOn(target.path, *target.earlier, scratch.file.number);
    begin(Step::Flush);
    flush(scratch.file.number);
    checkClosing(scratch.file.number);
    begin(Step::KeepEarlier);
    std::optional<ScratchFile> kept = target.canBeUndone ? secondName(target.folder, target.path) : std::nullopt;
    begin(Step::Replace);
    check(rename(scratch.name.path.c_str(), target.path.c_str()));
    scratch.name.giveUp();
    try {
        begin(Step::FlushFolder);
        flushFolder(target.folder);
    } catch (const RuntimeError&) {
        undoReplacing(target, kept);
        throw;
    }
}

}  // namespace plandesk
