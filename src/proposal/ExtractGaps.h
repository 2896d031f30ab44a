#pragma once

#include <array>
#include <cstdint>

#include "base/Date.h"
#include "proposal/ExtractFamily.h"

// Extracts are numbered without gaps in every table keyed by `ExtNo`. When an extract comes or goes, a gap is opened or
// closed in each of them.

namespace plandesk {

/// What a gap's new row holds besides its number.
enum class GapKind {
    NumberOnly = -1,
    Dated = 1,       ///< an extract: `DateOf712` is today
    WithStatus = 2,  ///< an ownership row: `DocStatus` is 0
};

/// Moves every row numbered `number` or higher up by one and adds one row with that number. Leaves the table without a
/// filter, sorted by `ExtNo`, on the new row.
/// RuntimeError 6 when a number would pass 2147483647; 3265 when the table has no `ExtNo`.
void openGap(Recordset& table, std::int32_t number, GapKind kind, Date today);

/// Deletes every row with that number and moves the higher ones down by one. Leaves the table without a filter, on its
/// first row. RuntimeError 3265 when the table has no `ExtNo`.
void closeGap(Recordset& table, std::int32_t number);

struct GapTable {
    Tables::Member table;
    GapKind kind;
    bool shared = false;  ///< by both families: a PRC's number here is its own plus the number of 7/12 extracts
};

/// The tables in which an added or deleted extract opens or closes a gap, in this order.
std::array<GapTable, 12> gapTables(const ExtractFamily& family);

}  // namespace plandesk
