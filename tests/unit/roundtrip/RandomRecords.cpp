// Land records, orders and discretion rows at random.

#include "controls/User.h"
#include "fees/frmDiscretionNewCase.h"
#include "fees/frmDiscretionrevisedCase.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/LandRecordColumns.h"
#include "ulc/frmScrutinyULC.h"
#include "unit/roundtrip/RandomProposal.h"

namespace plandesk::test {

std::string RandomProposal::recordText() {
    static constexpr std::string_view tame[] = {"", "1", "12.50", "Plot 7", "Sai Krupa", "0", "2", "10/A", " x "};
    std::string result(oneOf(tame));
    if (spice > 0 && oneIn(80))
        result.append(separator()).append(oneOf(tame));
    if (spice > 1 && oneIn(spice == 2 ? 1200 : 300))
        result.insert(0, odd());
    return result;
}

void RandomProposal::fillRecords() {
    Proposal& proposal = world.proposal;
    do
        relatePlots();
    while (oneIn(3));
    fillExtracts(false);
    fillExtracts(true);
    if (!oneIn(4))
        fillNaOrder();
    // Counts that change behind saved extracts open and close gaps in all their tables.
    if (oneIn(4))
        relatePlots();
    if (!oneIn(6))
        fillOrders();
    if (oneIn(6))
        relatePlots();
    if (oneIn(5))
        proposal.drcIssueXML = "<ISSUEOFDRC>A#" + recordText() + "</ISSUEOFDRC>";
}

void RandomProposal::relatePlots() {
    auto& form = world.proposal.forms.get<frmPlotExtractRelation>();
    form.open();
    relatePlots(false);
    form.SSTab1.setTab(1);
    relatePlots(true);
    form.hide();
}

void RandomProposal::relatePlots(bool cards) {
    auto& form = world.proposal.forms.get<frmPlotExtractRelation>();
    Grid& grid = cards ? form.dgdPRCPlotRel : form.dgd712ExtractRelation;
    TextBox& plots = cards ? form.txtNoOfPlot : form.txtNoOfPlot712;
    world.proposal.screen.event([&] { plots.setText(std::to_string(below(oneIn(3) ? 4 : 2) + (oneIn(9) ? 0 : 1))); });
    for (int row = 0; row < grid.rowCount(); ++row) {
        if (!oneIn(5))
            user::editCell(grid, row, PlotColumn::PlotName, oneIn(6) ? "A - 1" : recordText());
        if (!oneIn(5))
            user::editCell(grid, row, PlotColumn::NoOfPRC, std::to_string(below(3)));
    }
    if (!oneIn(12))
        user::click(cards ? form.cmdSave : form.cmdSave712Relation);
}

void RandomProposal::fillExtracts(bool cards) {
    const ExtractFamily& family = cards ? familyPRC : family712;
    Tables& tables = world.proposal.tables;
    Recordset& extracts = tables.ensure(family.extracts);
    extracts.setFilter("");
    for (extracts.moveFirst(); !extracts.eof(); extracts.moveNext()) {
        const auto extract = static_cast<std::int32_t>(valueNumber(extracts.get(ExtractColumn::ExtNo)));
        for (const int column : {ExtractColumn::SurveyNo, ExtractColumn::HissaNo, ExtractColumn::FerFarNo})
            if (!oneIn(6))
                extracts.set(column, recordText());
        if (oneIn(25))
            extracts.set(ExtractColumn::DateOf712, Value());
        else if (oneIn(2))
            extracts.set(ExtractColumn::DateOf712, Date{1990, 2, static_cast<int>(1 + below(28))});
        const auto owners = static_cast<std::int32_t>(below(4));
        const auto holders = static_cast<std::int32_t>(below(3));
        // A count may say something else than there is.
        extracts.set(ExtractColumn::NoOfOwners, oneIn(40) ? owners + 1 : owners);
        extracts.set(ExtractColumn::NoOfPAHs, oneIn(40) ? holders + 1 : holders);
        if (!oneIn(5))
            extracts.set(ExtractColumn::CumulativeArea, static_cast<double>(below(40000)) / 8);
        extracts.update();
        fillOwners(tables.ensure(family.owners), extract, owners, cards);
        fillHolders(tables.ensure(family.holders), extract, holders);
    }
    saveExtracts(cards ? frmPRCEXT::formName : frmMain712::formName);
}

void RandomProposal::saveExtracts(std::string_view form) {
    world.proposal.is712Current = form == frmMain712::formName;
    Form* extracts = world.proposal.forms.touch(form);
    if (!oneIn(3))
        world.box(form, "txtRemark").setText(recordText());
    if (!oneIn(8))
        world.proposal.screen.event([&] { extracts->call("cmdSave_Click"); });
}

void RandomProposal::fillOwners(Recordset& owners, std::int32_t extract, std::int32_t count, bool cards) {
    static constexpr std::string_view statuses[] = {" -- Select -- ", "Signed", "PAH Given", "---- Select ----", ""};
    static constexpr std::string_view burdens[] = {"  ----------- Select----------  ", "Bank Loan", "fOR Govt EWS",
                                                   "Easement", "Something else"};
    static constexpr std::string_view types[] = {"  ------ Select------  ", "H - Holder", "L - Lease", ""};
    owners.setFilter("ExtNo = " + std::to_string(extract));
    owners.deleteVisible();
    owners.setFilter("");
    for (std::int32_t number = 1; number <= count; ++number) {
        owners.addNew();
        owners.set(OwnerColumn::ExtNo, extract);
        owners.set(OwnerColumn::OwnNo, number);
        if (!oneIn(8))
            owners.set(OwnerColumn::Name, recordText());
        if (!oneIn(8))
            owners.set(OwnerColumn::SingingStatus, std::string(oneOf(statuses)));
        if (!oneIn(8))
            owners.set(OwnerColumn::Encumbrances, std::string(oneOf(burdens)));
        // A type runs into the number of the encumbrance in the list of the 7/12 extracts, and ends their reading.
        if (cards ? !oneIn(4) : oneIn(30))
            owners.set(OwnerColumn::OwnerType, std::string(oneOf(types)));
        owners.update();
    }
}

void RandomProposal::fillHolders(Recordset& holders, std::int32_t extract, std::int32_t count) {
    holders.setFilter("ExtNo = " + std::to_string(extract));
    holders.deleteVisible();
    holders.setFilter("");
    for (std::int32_t number = 1; number <= count; ++number) {
        holders.addNew();
        holders.set(HolderColumn::ExtNo, extract);
        holders.set(HolderColumn::PAHNo, number);
        holders.set(HolderColumn::Name, recordText());
        if (!oneIn(4))
            holders.set(HolderColumn::PAHSing, oneIn(2));
        holders.update();
    }
}

void RandomProposal::fillNaOrder() {
    auto& form = world.proposal.forms.get<frmNaOrder>();
    for (TextBox* box : {&form.txtNaOrderNo, &form.txtLandArea, &form.txtArea1, &form.txtArea2, &form.txtNARemark})
        box->setText(recordText());
    form.cmbAreaForNA.setListIndex(static_cast<int>(below(6)) - 1);
    form.DTPicker1.setDate({2001, 5, static_cast<int>(1 + below(31))});
}

void RandomProposal::fillOrders() {
    auto& form = world.proposal.forms.get<frmScrutinyULC>();
    const std::uint64_t choice = below(8);
    if (choice < 5)
        user::click(form.optDocCtrlOwn[0]);
    Tables& tables = world.proposal.tables;
    Recordset& ownership = tables.ensure(&Tables::rsOwnership);
    ownership.setFilter("");
    std::vector<std::int32_t> extracts;
    for (ownership.moveFirst(); !ownership.eof(); ownership.moveNext()) {
        extracts.push_back(static_cast<std::int32_t>(valueNumber(ownership.get(OwnershipColumn::ExtNo))));
        if (oneIn(2))
            ownership.set(OwnershipColumn::DocStatus, oneIn(2) ? "1" : recordText());
        ownership.update();
    }
    for (const std::int32_t extract : extracts)
        fillOrder(extract);
    if (choice == 0) {
        user::click(form.cmdSave);
        user::click(form.optDocCtrlOwn[1]);
    }
}

/// Texts into every column of the current row that takes texts.
void RandomProposal::fillTexts(Recordset& row) {
    for (std::size_t column = 0; column < row.columns().size(); ++column)
        if (row.columns()[column].kind == ColumnKind::Text && !oneIn(7))
            row.set(static_cast<int>(column), recordText());
}

void RandomProposal::fillOrder(std::int32_t extract) {
    Tables& tables = world.proposal.tables;
    const std::string filter = "ExtNo = " + std::to_string(extract);
    for (const Tables::Member member :
         {&Tables::rsULCOrder, &Tables::rsULCOrderUS84, &Tables::rsUS84Plots, &Tables::rsULCOrderUS20a1,
          &Tables::rsSchemeBuilt, &Tables::rsSchemeSold, &Tables::rsULCOrderUS22}) {
        Recordset& rows = tables.ensure(member);
        rows.setFilter(filter);
        const bool several = member == &Tables::rsUS84Plots;
        const bool pairs = member == &Tables::rsSchemeBuilt || member == &Tables::rsSchemeSold;
        // What was never opened has no row, but for those that a gap left. An order without its pairs cannot be read.
        if (member != &Tables::rsULCOrder && oneIn(pairs ? 40 : 3)) {
            rows.deleteVisible();
        } else {
            for (std::uint64_t number = several ? below(4) : 1; number > 0; --number) {
                if (several || rows.recordCount() == 0) {
                    rows.addNew();
                    rows.set("ExtNo", extract);
                }
                fillTexts(rows);
                rows.update();
            }
        }
        rows.setFilter("");
    }
}

void RandomProposal::fillDiscretion() {
    auto& revised = world.proposal.forms.get<frmDiscretionrevisedCase>();
    auto& newCase = world.proposal.forms.get<frmDiscretionNewCase>();
    for (std::deque<TextBox>* boxes : {&revised.txtRule, &revised.txtRuleC, &revised.txtRuleD, &newCase.txtRule})
        for (TextBox& box : *boxes)
            if (oneIn(3))
                box.setText(recordText());
}

}  // namespace plandesk::test
