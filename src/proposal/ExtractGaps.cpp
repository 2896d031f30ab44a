#include "proposal/ExtractGaps.h"

#include <string>

#include "base/Numbers.h"

namespace plandesk {

namespace {

/// Adds `step` to the number of every visible row, in visit order.
void renumber(Recordset& table, int step) {
    const int extNo = columnIndex(table.columns(), "ExtNo");  // at a place of its own in each table
    for (; !table.eof(); table.moveNext()) {
        table.set(extNo, toInteger32(valueNumber(table.get(extNo)) + step));
        table.update();
    }
}

constexpr std::array<GapTable, 12> gapTables(Tables::Member extracts, Tables::Member owners, Tables::Member holders,
                                             bool counts712First) {
    return {{
        {extracts, GapKind::Dated, false},
        {owners, GapKind::NumberOnly, false},
        {holders, GapKind::NumberOnly, false},
        {&Tables::rsOwnership, GapKind::WithStatus, counts712First},
        {&Tables::rsULCOrder, GapKind::NumberOnly, counts712First},
        {&Tables::rsSchemeGrid, GapKind::NumberOnly, counts712First},
        {&Tables::rsULCOrderUS22, GapKind::NumberOnly, counts712First},
        {&Tables::rsUS84Plots, GapKind::NumberOnly, counts712First},
        {&Tables::rsULCOrderUS84, GapKind::NumberOnly, counts712First},
        {&Tables::rsULCOrderUS20a1, GapKind::NumberOnly, counts712First},
        {&Tables::rsSchemeBuilt, GapKind::NumberOnly, counts712First},
        {&Tables::rsSchemeSold, GapKind::NumberOnly, counts712First},
    }};
}

}  // namespace

constexpr std::array<GapTable, 12> gapTables712 =
    gapTables(&Tables::rsExtract712, &Tables::rsOwner712, &Tables::rsPAH712, false);
constexpr std::array<GapTable, 12> gapTablesPRC =
    gapTables(&Tables::rsExtractPRC, &Tables::rsOwnerPRC, &Tables::rsPAHPRC, true);

void openGap(Recordset& table, std::int32_t number, GapKind kind, Date today) {
    if (table.rowCount() > 0) {
        table.setFilter(" ExtNo >= " + std::to_string(number));
        // From the highest number down, so that each number stays unique at each step.
        if (table.recordCount() > 0)
            table.setSort(" ExtNo DESC ");
        renumber(table, 1);
    }
    table.setFilter("");
    table.moveFirst();
    table.setSort(" ExtNo ");
    table.addNew();
    if (kind == GapKind::Dated)
        table.set("DateOf712", today);
    if (kind == GapKind::WithStatus)
        table.set("DocStatus", 0);
    table.set("ExtNo", number);
    table.update();
}

void closeGap(Recordset& table, std::int32_t number) {
    table.setFilter("ExtNo = " + std::to_string(number));
    table.deleteVisible();
    table.setFilter("");
    if (table.recordCount() > 0) {
        table.setFilter(" ExtNo > " + std::to_string(number));
        renumber(table, -1);
    }
    table.setFilter("");
    table.moveFirst();
}

}  // namespace plandesk
