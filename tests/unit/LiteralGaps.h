#pragma once

#include <algorithm>
#include <string>

#include "base/Numbers.h"
#include "proposal/ExtractGaps.h"
#include "proposal/LandRecordColumns.h"

// The gaps taken at their word: one after the other, every row moved at each. The measure for Renumbering.

namespace plandesk::test {

inline void moveNumbers(Recordset& table, int extNo, int step) {
    for (; !table.eof(); table.moveNext()) {
        table.set(extNo, toInteger32(valueNumber(table.get(extNo)) + step));
        table.update();
    }
}

inline void openGap(Recordset& table, int number, GapKind kind, Date today) {
    const int extNo = columnIndex(table.columns(), "ExtNo");
    if (table.rowCount() > 0) {
        table.setFilter(" ExtNo >= " + std::to_string(number));
        if (table.recordCount() > 0)
            table.setSort(" ExtNo DESC ");
        moveNumbers(table, extNo, 1);
    }
    table.setFilter("");
    table.moveFirst();
    table.setSort(" ExtNo ");
    table.addNew();
    if (kind == GapKind::Dated)
        table.set(ExtractColumn::DateOf712, today);
    if (kind == GapKind::WithStatus)
        table.set(OwnershipColumn::DocStatus, 0);
    table.set(extNo, number);
    table.update();
}

inline void closeGap(Recordset& table, int number) {
    table.setFilter("ExtNo = " + std::to_string(number));
    table.deleteVisible();
    table.setFilter("");
    if (table.recordCount() > 0) {
        table.setFilter(" ExtNo > " + std::to_string(number));
        moveNumbers(table, columnIndex(table.columns(), "ExtNo"), -1);
    }
    table.setFilter("");
    table.moveFirst();
}

inline void renumberLiterally(Recordset& table, const NumberChanges& changes, int shift, GapKind kind, Date today) {
    for (const int number : changes.added)
        if (number > 0)
            openGap(table, number + shift, kind, today);
    for (const int number : changes.deleted)
        if (number > 0)
            closeGap(table, number + shift);
}

}  // namespace plandesk::test
