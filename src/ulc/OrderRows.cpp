#include "ulc/OrderRows.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "proposal/OrderColumns.h"

namespace plandesk {

std::int32_t orderExtract(Proposal& proposal) {
    return toInteger32(valueNumber(proposal.tables.ensure(&Tables::rsULCOrder).get(ULCOrderColumn::ExtNo)));
}

Recordset& rowsOfExtract(Proposal& proposal, Tables::Member table, std::int32_t extract, std::string_view filter) {
    Recordset& rows = proposal.tables.ensure(table);
    rows.setFilter("");
    rows.setFilter(std::string(filter) + std::to_string(extract));
    return rows;
}

Recordset& freshRow(Proposal& proposal, Tables::Member table, std::int32_t extract) {
    Recordset& rows = rowsOfExtract(proposal, table, extract);
    if (rows.recordCount() > 0)
        rows.deleteRow();
    rows.setFilter("");
    rows.addNew();
    rows.set("ExtNo", extract);  // at another place in each table
    return rows;
}

std::string trimmedText(Recordset& row, int column) {
    return std::string(trim(valueText(row.get(column))));
}

}  // namespace plandesk
