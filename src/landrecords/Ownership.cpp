#include "landrecords/Ownership.h"

#include <cstdint>
#include <span>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/ExtractFamily.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

std::string ownerNames(const Recordset& owners, std::int32_t extract) {
    std::string names;
    std::string_view comma;
    for (const std::span<const Value> owner : owners.rowsOfKey(extract)) {
        names += comma;
        comma = ",";
        if (const auto* name = std::get_if<std::string>(&owner[OwnerColumn::Name]))
            names += trim(*name);
    }
    return names;
}

/// `shift` is added to an extract's own number. False when there is no extract.
bool takeOver(Proposal& proposal, const ExtractFamily& family, std::int32_t shift) {
    Recordset& extracts = proposal.tables.ensure(family.extracts);
    Recordset& owners = proposal.tables.ensure(family.owners);
    Recordset& ownership = proposal.tables.ensure(&Tables::rsOwnership);
    extracts.setFilter("");
    if (extracts.recordCount() == 0)
        return false;
    std::int32_t number = 0;
    for (extracts.moveFirst(); !extracts.eof(); extracts.moveNext()) {
        number = toInteger32(valueNumber(extracts.get(ExtractColumn::ExtNo)));
        const std::int32_t global = toInteger32(static_cast<double>(number) + shift);
        ownership.filterByKey(global);
        if (ownership.recordCount() == 0) {
            ownership.addNew();
            ownership.set(OwnershipColumn::DocStatus, "0");
        }
        ownership.set(OwnershipColumn::ExtNo, global);
        ownership.set(OwnershipColumn::Name, ownerNames(owners, number));
        ownership.set(OwnershipColumn::Area, valueNumber(extracts.get(ExtractColumn::CumulativeArea)));
        ownership.update();
    }
    ownership.setFilter("");
    owners.setFilter("ExtNo = " + std::to_string(number));  // looked up without it, but it stays, behind its last row
    while (!owners.eof())
        owners.moveNext();
    return true;
}

}  // namespace

// PRCs are taken only when there is a 7/12 extract, and the flag is raised only when there is a PRC.
void buildOwnership(Proposal& proposal) {
    if (!takeOver(proposal, family712, 0))
        return;
    const std::string& extracts712 = proposal.forms.get<frmPlotExtractRelation>().txtNoOfExtract712.text();
    if (takeOver(proposal, familyPRC, toInteger32(leadingNumber(extracts712))))
        proposal.ownershipRelationSaved = true;
}

}  // namespace plandesk
