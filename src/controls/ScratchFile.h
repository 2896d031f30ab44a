#pragma once

#include <filesystem>
#include <optional>
#include <utility>

#include <sys/types.h>
#include <unistd.h>

#include "controls/SystemFile.h"

namespace plandesk {

/// A name that is removed at the end unless it was given up.
class ScratchName {
public:
    explicit ScratchName(std::filesystem::path path) : path(std::move(path)) {}
    ScratchName(ScratchName&& other) noexcept : path(std::exchange(other.path, {})) {}
    ScratchName& operator=(ScratchName&&) = delete;
    ~ScratchName() {
        if (!path.empty())
            unlink(path.c_str());
    }

    void giveUp() { path.clear(); }

    std::filesystem::path path;
};

/// A file under a name of this system's own. As long as it is open its lock tells it from a leftover.
struct ScratchFile {
    ScratchName name;
    Descriptor file;
};

/// An empty file in the folder, open for writing. `mode`: its permission bits, less the process's mask.
/// RuntimeError 61, 70, 75 or 76 when there can be none.
ScratchFile createScratchFile(const std::filesystem::path& folder, mode_t mode);

/// A second name in the folder for a file of the same folder. Nothing where there can be none. RuntimeError 61, 75 or
/// 76 when the folder takes none.
std::optional<ScratchFile> secondName(const std::filesystem::path& folder, const std::filesystem::path& path);

/// Removes what killed programs left in the folder. What cannot be removed now is tried again at the next call.
void removeLeftovers(const std::filesystem::path& folder);

}  // namespace plandesk
