#include "review/Words.h"

#include <algorithm>
#include <utility>

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
    const Spot spot = spotOf(answered);
    return {kind,         answered.form,       answered.control, spot.row,    spot.column,
            of(answered), std::move(sentence), std::move(cause), spot.extract};
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
