#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/Date.h"
#include "proposal/ExtractFamily.h"

// Extracts are numbered without gaps in every table keyed by `ExtNo`. When an extract comes, a gap is opened in each of
// them: the rows of its number and above move up by one, and a row of that number is added. When one goes, the gap is
// closed: its rows are deleted, and those above move down by one.

namespace plandesk {

/// The extract numbers that a change of the plots brings and takes, in the order in which they are applied, all added
/// ones first. Each counts in the numbering that the ones before it have left. Numbers below 1 are passed over.
struct NumberChanges {
    std::vector<std::int32_t> added;
    std::vector<std::int32_t> deleted;
};

/// Whole numbers of which some are left out.
class HoledNumbers {
public:
    /// What is counted as `number` when the left out ones are not counted.
    std::int64_t counted(std::int64_t number) const;
    /// The reverse: how `number` is counted, or nothing when it is left out.
    std::optional<std::int64_t> count(std::int64_t number) const;
    /// Leaves out the one counted as `number`, and gives it.
    std::int64_t leaveOut(std::int64_t number);

private:
    std::vector<std::int64_t> holes;  // upwards
};

/// What becomes of every extract number when gaps are opened and closed one after the other. Worked out on the numbers
/// alone, so that each row is touched once, however many gaps there are.
class Renumbering {
public:
    /// `shift` is added to each number of the lists.
    explicit Renumbering(const NumberChanges& changes, std::int32_t shift = 0);

    bool adds() const { return !addedNumbers.empty(); }
    bool deletes() const { return anyDeleted; }

    /// The number that the extract of that number has in the end; nothing when it was deleted. RuntimeError 6 when it
    /// passed 2147483647.
    std::optional<std::int32_t> of(std::int32_t number) const;
    /// The same for the added extracts, in the order of adding.
    const std::vector<std::optional<std::int32_t>>& ofAdded() const { return addedNumbers; }

private:
    std::optional<std::int32_t> afterDeletions(std::int64_t number) const;

    HoledNumbers old;   // the added ones left out, in the numbering that all additions lead to
    HoledNumbers kept;  // the deleted ones left out, in the same numbering
    bool anyDeleted = false;
    std::vector<std::optional<std::int32_t>> addedNumbers;
};

/// What a gap's new row holds besides its number.
enum class GapKind {
    NumberOnly = -1,
    Dated = 1,       ///< an extract: `DateOf712` is today
    WithStatus = 2,  ///< an ownership row: `DocStatus` is 0
};

/// Makes the changes in a table. Rows without a number stay. Without a change nothing is touched; otherwise the table
/// is left without a filter. Additions leave it sorted by `ExtNo`, on the last new row, deletions on its first row.
/// RuntimeError 6 when a number would pass 2147483647, 3265 when the table has no `ExtNo`; nothing has changed then.
void renumber(Recordset& table, const Renumbering& changes, GapKind kind, Date today);

struct GapTable {
    Tables::Member table;
    GapKind kind;
    bool shared = false;  ///< by both families: a PRC's number here is its own plus the number of 7/12 extracts
};

/// The tables in which an added or deleted extract opens or closes a gap, in this order.
std::array<GapTable, 12> gapTables(const ExtractFamily& family);

}  // namespace plandesk
