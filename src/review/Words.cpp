#include "review/Words.h"

#include <algorithm>
#include <utility>

#include "proposal/OrderColumns.h"
namespace plandesk {

std::string Words::of(const Answered& answered) {
    if (original.opened().forms.loaded(answered.form))
        return questionOf(original.opened(), answered);
    if (!spare)
        spare.emplace(original);
    // The form of the 7/12 extracts has the words of the family that is the subject when it is loaded.
    spare->proposal.is712Current = answered.form != "frmPRCEXT";
    spare->proposal.forms.touch(answered.form);
    return questionOf(spare->proposal, answered);
}

Finding Words::finding(FindingKind kind, const Answered& answered, std::string sentence, std::string cause) {
    Finding finding{kind,         answered.form,       answered.control, answered.row, answered.column,
                    of(answered), std::move(sentence), std::move(cause)};
    if (!answered.isCell())
        return finding;
    const Tables::Member table = carriedTables()[static_cast<std::size_t>(answered.table)].table;
    if (table != &Tables::rsPlot712 && table != &Tables::rsPlotPRC)
        finding.extract = answered.number();
    if (table == &Tables::rsSchemeBuilt || table == &Tables::rsSchemeSold) {
        // A column of the figures is a row of the grid that shows them.
        finding.row = answered.column;
        finding.column = table == &Tables::rsSchemeBuilt ? SchemeGridColumn::FLD2 : SchemeGridColumn::FLD3;
    }
    return finding;
}

Answered Words::cell(Tables::Member table, int row, int column) {
    const auto carried = std::ranges::find(carriedTables(), table, &CarriedTable::table);
    const auto place = static_cast<int>(carried - carriedTables().begin());
    auto [known, fresh] = keys.try_emplace(place);
    if (fresh)
        known->second = rowKeysOf(*(original.opened().tables.*table));
    return {std::string(carried->form),
            std::string(carried->controlOf(static_cast<std::size_t>(column))),
            row,
            column,
            known->second[static_cast<std::size_t>(row)].text(),
            "",
            place};
}

}  // namespace plandesk
