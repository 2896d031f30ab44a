#include "proposal/ExtractGaps.h"

#include <string>

#include "base/Numbers.h"

namespace plandesk {

namespace {

/// The number stands at another place in each table.
int placeOfNumber(const Recordset& table) {
    return columnIndex(table.columns(), "ExtNo");
}

/// Adds `step` to the number of every visible row, in visit order.
void renumber(Recordset& table, int extNo, int step) {
    for (; !table.eof(); table.moveNext()) {
        table.set(extNo, toInteger32(valueNumber(table.get(extNo)) + step));
        table.update();
    }
}

}  // namespace

std::array<GapTable, 12> gapTables(const ExtractFamily& family) {
    return {{
        {family.extracts, GapKind::Dated},
        {family.owners, GapKind::NumberOnly},
        {family.holders, GapKind::NumberOnly},
        {&Tables::rsOwnership, GapKind::WithStatus, true},
        {&Tables::rsULCOrder, GapKind::NumberOnly, true},
        {&Tables::rsSchemeGrid, GapKind::NumberOnly, true},
        {&Tables::rsULCOrderUS22, GapKind::NumberOnly, true},
        {&Tables::rsUS84Plots, GapKind::NumberOnly, true},
        {&Tables::rsULCOrderUS84, GapKind::NumberOnly, true},
        {&Tables::rsULCOrderUS20a1, GapKind::NumberOnly, true},
        {&Tables::rsSchemeBuilt, GapKind::NumberOnly, true},
        {&Tables::rsSchemeSold, GapKind::NumberOnly, true},
    }};
}

void openGap(Recordset& table, std::int32_t number, GapKind kind, Date today) {
    const int extNo = placeOfNumber(table);
    if (table.rowCount() > 0) {
        table.setFilter(" ExtNo >= " + std::to_string(number));
        // From the highest number down, so that each number stays unique at each step.
        if (table.recordCount() > 0)
            table.setSort(" ExtNo DESC ");
        renumber(table, extNo, 1);
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

void closeGap(Recordset& table, std::int32_t number) {
    table.setFilter("ExtNo = " + std::to_string(number));
    table.deleteVisible();
    table.setFilter("");
    if (table.recordCount() > 0) {
        table.setFilter(" ExtNo > " + std::to_string(number));
        renumber(table, placeOfNumber(table), -1);
    }
    table.setFilter("");
    table.moveFirst();
}

}  // namespace plandesk
