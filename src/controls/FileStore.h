#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "controls/Ports.h"

namespace plandesk {

/// The machine's own files.
///
/// A file is written under a name of its own beside the target, flushed, and renamed over it. Whatever interrupts this,
/// the target is the whole earlier file or the whole new one. The names begin with ".plandesk-write-"; a write that was
/// killed may leave such a file behind, and the next write into the same folder removes it (a lock tells it from one
/// that another running program is writing).
class FileStore : public Files {
public:
    /// Steps of a write, in order.
    enum class Step { Create = 1, Write, Permissions, Flush, KeepEarlier, Replace, FlushFolder };

    /// Holds one line of the file at a time.
    void readLines(const std::filesystem::path& path, const std::function<void(std::string_view)>& take) override;

    /// The new file keeps the permission bits of the earlier one. A link is followed: what it points at is written.
    void writeWhole(const std::filesystem::path& path, std::string_view bytes) override;

    /// The given step of the next write, from 1, fails with RuntimeError 61 "Disk full". A number beyond the last step
    /// lets that write succeed.
    void failAtStep(int step) { failing = step; }

private:
    int failing = 0;  ///< 0: no step
};

}  // namespace plandesk
