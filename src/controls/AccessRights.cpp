#include "controls/AccessRights.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>

#include <endian.h>
#include <linux/posix_acl.h>
#include <linux/posix_acl_xattr.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "controls/SystemFile.h"

namespace plandesk {

namespace {

constexpr const char* listName = "system.posix_acl_access";
constexpr std::uint16_t all = ACL_READ | ACL_WRITE | ACL_EXECUTE;
constexpr mode_t ordinaryBits = 0777;
constexpr mode_t specialBits = 07000;

using Entry = AccessRights::Entry;

bool isNamed(const Entry& entry) {
    return entry.kind == ACL_USER || entry.kind == ACL_GROUP;
}

/// Rights of the entry of a kind that stands once; `otherwise` where there is none.
std::uint16_t rightsOf(const std::vector<Entry>& entries, std::uint16_t kind, std::uint16_t otherwise = 0) {
    const auto found = std::ranges::find(entries, kind, &Entry::kind);
    return found == entries.end() ? otherwise : found->rights;
}

void limit(std::vector<Entry>& entries, std::uint16_t kind, std::uint16_t rights) {
    for (Entry& entry : entries)
        if (entry.kind == kind)
            entry.rights &= rights;
}

/// The three entries that say the same as permission bits.
std::vector<Entry> fromBits(mode_t bits) {
    const auto rights = [bits](unsigned shift) { return static_cast<std::uint16_t>(bits >> shift & all); };
    return {{ACL_USER_OBJ, rights(6), 0}, {ACL_GROUP_OBJ, rights(3), 0}, {ACL_OTHER, rights(0), 0}};
}

/// Bytes of an extended attribute, with `get` and `size` as the system's calls have them; nothing when it failed.
template <class Get>
std::optional<std::string> attribute(Get get) {
    for (;;) {
        const ssize_t size = get(nullptr, 0);
        if (size < 0)
            return std::nullopt;
        std::string bytes(static_cast<std::size_t>(size), '\0');
        const ssize_t found = get(bytes.data(), bytes.size());
        // It may have grown meanwhile.
        if (found < 0 && errno == ERANGE)
            continue;
        if (found < 0)
            return std::nullopt;
        bytes.resize(static_cast<std::size_t>(found));
        return bytes;
    }
}

std::optional<std::string> attribute(const std::filesystem::path& path, const char* name) {
    return attribute([&](char* bytes, std::size_t size) { return getxattr(path.c_str(), name, bytes, size); });
}

std::optional<std::string> attribute(int file, const char* name) {
    return attribute([&](char* bytes, std::size_t size) { return fgetxattr(file, name, bytes, size); });
}

std::optional<std::vector<Entry>> parsed(std::string_view list) {
    posix_acl_xattr_header header = {};
    if (list.size() < sizeof header)
        return std::nullopt;
    std::memcpy(&header, list.data(), sizeof header);
    list.remove_prefix(sizeof header);
    if (le32toh(header.a_version) != POSIX_ACL_XATTR_VERSION || list.size() % sizeof(posix_acl_xattr_entry) != 0)
        return std::nullopt;
    std::vector<Entry> entries;
    for (; !list.empty(); list.remove_prefix(sizeof(posix_acl_xattr_entry))) {
        posix_acl_xattr_entry entry = {};
        std::memcpy(&entry, list.data(), sizeof entry);
        entries.push_back({le16toh(entry.e_tag), le16toh(entry.e_perm), le32toh(entry.e_id)});
    }
    return entries;
}

/// Copies the extended attributes other than the access list. False when an access list of another kind, as network
/// file systems have them, stayed behind.
bool copyAttributes(const std::filesystem::path& from, int to) {
    const std::optional<std::string> names =
        attribute([&](char* bytes, std::size_t size) { return listxattr(from.c_str(), bytes, size); });
    bool listsKept = true;
    for (std::size_t start = 0; names && start < names->size(); start += std::strlen(names->data() + start) + 1) {
        const char* const name = names->data() + start;
        const std::string_view text(name);
        // What may be run with more rights loses that when it is written.
        if (text == listName || text == "security.capability")
            continue;
        const std::optional<std::string> value = attribute(from, name);
        if (value && attribute(to, name) == value)
            continue;
        const bool copied = value && fsetxattr(to, name, value->data(), value->size(), 0) == 0;
        listsKept = listsKept && (copied || !text.starts_with("system."));
    }
    return listsKept;
}

bool saysThatThereIsNone(int error) {
    return error == ENODATA || error == EOPNOTSUPP || error == ENOSYS;
}

/// Sets the list, or removes one that the folder gave to the new file. The rights that may be set as bits then.
AccessRights withListSet(const AccessRights& rights, int file) {
    if (rights.hasList()) {
        const std::string list = rights.list();
        if (fsetxattr(file, listName, list.data(), list.size(), 0) == 0)
            return rights;
    }
    const bool gone = fremovexattr(file, listName) == 0 || (!attribute(file, listName) && saysThatThereIsNone(errno));
    return gone ? rights.withoutList() : rights.forOwnerAlone();
}

void setBits(mode_t bits, int file) {
    struct stat found = {};
    check(fstat(file, &found));
    if ((found.st_mode & (ordinaryBits | specialBits)) == bits || fchmod(file, bits) == 0)
        return;
    if (!isNotOffered(errno) || (found.st_mode & ordinaryBits & ~bits) != 0)
        failWith(errno);
}

}  // namespace

AccessRights AccessRights::of(const std::filesystem::path& path) {
    struct stat found = {};
    check(stat(path.c_str(), &found));
    AccessRights rights{found.st_uid, found.st_gid, found.st_mode & specialBits, fromBits(found.st_mode)};
    const std::optional<std::string> list = attribute(path, listName);
    if (!list)
        return saysThatThereIsNone(errno) ? rights : rights.forOwnerAlone();
    std::optional<std::vector<Entry>> entries = parsed(*list);
    if (!entries)
        return rights.forOwnerAlone();
    rights.entries = std::move(*entries);
    return rights;
}

AccessRights AccessRights::narrowed(bool ownerKept, bool groupKept) const {
    AccessRights result = *this;
    const std::uint16_t formerGroup = rightsOf(entries, ACL_GROUP_OBJ) & rightsOf(entries, ACL_MASK, all);
    if (!groupKept) {
        // The new group had the rights of others so far, or of a group of the list, which may have been fewer; the
        // former group has the rights of others from now on.
        const bool namesGroups = std::ranges::find(entries, ACL_GROUP, &Entry::kind) != entries.end();
        limit(result.entries, ACL_GROUP_OBJ, namesGroups ? 0 : rightsOf(entries, ACL_OTHER));
        limit(result.entries, ACL_OTHER, formerGroup);
    }
    if (!ownerKept) {
        // The former owner has the rights of another entry from now on.
        for (Entry& entry : result.entries)
            if (entry.kind != ACL_USER_OBJ && entry.kind != ACL_MASK)
                entry.rights &= rightsOf(entries, ACL_USER_OBJ);
    }
    if (!ownerKept || !groupKept)
        result.special = 0;
    return result;
}

AccessRights AccessRights::withoutList() const {
    // Those whom the list named belong to the group or to the others from now on.
    std::uint16_t least = rightsOf(entries, ACL_MASK, all);
    for (const Entry& entry : entries)
        least &= isNamed(entry) ? entry.rights : all;
    AccessRights result = *this;
    std::erase_if(result.entries, [](const Entry& entry) { return isNamed(entry) || entry.kind == ACL_MASK; });
    limit(result.entries, ACL_GROUP_OBJ, least);
    if (hasList())
        limit(result.entries, ACL_OTHER, least);
    return result;
}

AccessRights AccessRights::forOwnerAlone() const {
    AccessRights result = *this;
    result.entries = fromBits(bits() & (all << 6U));
    return result;
}

bool AccessRights::hasList() const {
    return std::ranges::any_of(entries, isNamed) || std::ranges::find(entries, ACL_MASK, &Entry::kind) != entries.end();
}

mode_t AccessRights::bits() const {
    const mode_t groupRights = rightsOf(entries, ACL_MASK, rightsOf(entries, ACL_GROUP_OBJ));
    return special | mode_t{rightsOf(entries, ACL_USER_OBJ)} << 6U | groupRights << 3U | rightsOf(entries, ACL_OTHER);
}

std::string AccessRights::list() const {
    const posix_acl_xattr_header header = {htole32(POSIX_ACL_XATTR_VERSION)};
    std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
    for (const Entry& entry : entries) {
        const posix_acl_xattr_entry raw = {htole16(entry.kind), htole16(entry.rights), htole32(entry.id)};
        bytes.append(reinterpret_cast<const char*>(&raw), sizeof raw);
    }
    return bytes;
}

void handOn(const std::filesystem::path& from, const AccessRights& rights, int to) {
    // A member of the group may give the file to the group, if not to its owner. What came of it is looked at.
    constexpr auto same = static_cast<uid_t>(-1);
    static_cast<void>(fchown(to, rights.owner, rights.group) == 0 || fchown(to, same, rights.group) == 0);
    struct stat found = {};
    check(fstat(to, &found));
    AccessRights kept = rights.narrowed(found.st_uid == rights.owner, found.st_gid == rights.group);
    if (!copyAttributes(from, to))
        kept = kept.forOwnerAlone();
    setBits(withListSet(kept, to).bits(), to);
}

}  // namespace plandesk
