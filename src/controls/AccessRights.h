#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace plandesk {

/// Who may do what with a file: its owner, its group, its permission bits and its access list, if it has one.
struct AccessRights {
    /// An entry of an access list, with the numbers that the system gives to kinds and rights.
    struct Entry {
        std::uint16_t kind;
        std::uint16_t rights;
        std::uint32_t id;
    };

    uid_t owner = 0;
    gid_t group = 0;
    mode_t special = 0;          ///< the bits for setuid, setgid and sticky
    std::vector<Entry> entries;  ///< owner, group and others at least, in the system's order

    /// Of a file that is there. Where its list cannot be read, only the owner's rights count. RuntimeError when the
    /// file cannot be looked at.
    static AccessRights of(const std::filesystem::path& path);

    /// The same rights for a file whose owner or group is another: nobody may do more than before.
    AccessRights narrowed(bool ownerKept, bool groupKept) const;
    /// The same without a list, where one cannot be set: nobody may do more than before.
    AccessRights withoutList() const;
    /// With rights for the owner alone.
    AccessRights forOwnerAlone() const;

    bool hasList() const;
    mode_t bits() const;
    /// The list as the system takes it.
    std::string list() const;
};

/// Gives the open file `to`, which only its owner may use so far, the rights and the extended attributes of another
/// file. What the system does not let be kept is narrowed; attributes that cannot be copied stay behind. RuntimeError
/// 70 where more people could use the file than before.
void handOn(const std::filesystem::path& from, const AccessRights& rights, int to);

}  // namespace plandesk
