#pragma once

#include "ExtractsFixture.h"
#include "proposal/LandRecordColumns.h"
#include "ulc/frmScrutinyULC.h"
#include "ulc/frmULC20aDetails.h"
#include "ulc/frmUS22.h"
#include "ulc/frmUS84.h"

namespace plandesk::test {

/// Land records of two 7/12 extracts and one PRC with an owner each, saved, so that orders can be filled in.
struct Orders : Extracts {
    void saveLandRecords() {
        proposal.isNewProposal = true;
        relate({2});
        relate({1}, true);
        auto& extracts = open712();
        own(extracts, 0, "Anand", "100");
        own(extracts, 1, "Bhide", "20.5");
        user::click(extracts.cmdSave);
        auto& cards = openPrc();
        own(cards, 0, "Chand & Co", "7");
        user::click(cards.cmdSave);
        ports.dialogs.take();
    }
    frmScrutinyULC& scrutiny() {
        proposal.forms.get<frmDocCheckList>().Image1_Click(3);
        return proposal.forms.get<frmScrutinyULC>();
    }
    /// The form of the order that is chosen for the extract, from 0, opened by the user.
    template <class OrderForm>
    OrderForm& openOrder(int extract, int order) {
        auto& form = scrutiny();
        user::pick(form.cmbExtract, extract);
        user::pick(form.cmbULCORDERDetails, order);
        user::click(form.cmdDetails);
        return proposal.forms.get<OrderForm>();
    }
    frmUS84& us84(int extract = 0) { return openOrder<frmUS84>(extract, 1); }
    frmULC20aDetails& us20(int extract = 0) { return openOrder<frmULC20aDetails>(extract, 2); }
    frmUS22& us22(int extract = 0) { return openOrder<frmUS22>(extract, 3); }

    std::string cell(Tables::Member table, std::string_view filter, std::string_view column) {
        Recordset& rows = tables.ensure(table);
        rows.setFilter(filter);
        const std::string text = valueText(rows.get(column));
        rows.setFilter("");
        return text;
    }

private:
    static void own(ExtractForm& form, int extract, std::string_view owner, std::string_view area) {
        user::pick(form.cmbExtract, extract);
        user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::CumulativeArea, area);
        user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "1");
        user::editCell(form.dgdOwner, 0, OwnerColumn::Name, owner);
    }
};

}  // namespace plandesk::test
