#include "ulc/frmScrutinyULC.h"

#include <string>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/PlotNumbering.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/ExtractFamily.h"
#include "proposal/InPlace.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "ulc/OrderRows.h"
#include "ulc/frmULC20aDetails.h"
#include "ulc/frmUS22.h"
#include "ulc/frmUS84.h"

namespace plandesk {

namespace {

constexpr auto ownerColumns = inPlace<OwnershipColumn, GridColumn>({
    {OwnershipColumn::ExtNo, {.caption = "Group No", .width = 1000, .locked = true}},
    {OwnershipColumn::Name, {.caption = "Owner Name", .width = 4500, .locked = true}},
    {OwnershipColumn::Area, {.caption = "Area", .width = 2000, .locked = true}},
    {OwnershipColumn::DocStatus, {.caption = "Document Status", .width = 2200, .button = true, .holdsIndex = true}},
});

constexpr auto orderColumns = inPlace<ULCOrderColumn, GridColumn>({
    {ULCOrderColumn::ExtNo, {.caption = "Group No", .width = 1000, .locked = true}},
    {ULCOrderColumn::Name, {.caption = "Owner(s) Name", .width = 3000, .locked = true}},
    {ULCOrderColumn::ULCOrderSelection, {.caption = "ULC Order", .width = 2400, .button = true, .holdsIndex = true}},
    {ULCOrderColumn::OrderNo, {.caption = "Order No", .width = 1500}},
    {ULCOrderColumn::Details, {.caption = "Details", .width = 900, .button = true}},
    {ULCOrderColumn::Remarks, {.caption = "Remarks", .width = 2400}},
});

/// An event that passes over what fails in it.
template <class Body>
void passingOver(const Body& body) {
    try {
        body();
    } catch (const RuntimeError&) {
        // The grid stays as far as it came; the system tells nothing of it.
    }
}

/// Puts the list over the cell of the grid's current row and chooses the item whose index the cell holds.
void placeList(Grid& grid, ComboBox& list, int column) {
    if (grid.currentRow() < 0)
        return;
    grid.place(list, column);
    list.setListIndex(toInteger16(leadingNumber(grid.cellText(grid.currentRow(), column))));
}

}  // namespace

frmScrutinyULC::frmScrutinyULC(Proposal& proposal) : DataForm(proposal, formName, "Scrutiny of U.L.C. Order") {
    for (const std::string_view status : {"---- Select ----", "ULC Order"})
        cmbDocStatus.addItem(status);
    for (const std::string_view order : {"---- Select ULC U/S ----", "8 (4) Order", "U/S 20 (a) (1)", "U/S 22"})
        cmbULCORDERDetails.addItem(order);
    for (Control* editor : {static_cast<Control*>(&cmbDocStatus), static_cast<Control*>(&cmbULCORDERDetails),
                            static_cast<Control*>(&cmdDetails)})
        editor->setVisible(false);
    dgdOwner.allowDelete = dgdULCOrderDetails.allowDelete = false;
    wire();
}

void frmScrutinyULC::wire() {
    for (OptionButton& option : optDocCtrlOwn)
        option.click = [this] { optDocCtrlOwn_Click(); };
    cmbExtract.click = [this] { cmbExtract_Click(); };
    dgdOwner.buttonClick = dgdOwner.click = [this](int column) { openDocStatus(column); };
    dgdOwner.listOf = [this](int column) { return column == OwnershipColumn::DocStatus ? &cmbDocStatus : nullptr; };
    dgdULCOrderDetails.buttonClick = dgdULCOrderDetails.click = [this](int column) { openOrderCell(column); };
    dgdULCOrderDetails.listOf = [this](int column) {
        return column == ULCOrderColumn::ULCOrderSelection ? &cmbULCORDERDetails : nullptr;
    };
    dgdULCOrderDetails.editStart = [this](int column) {
        if (column == ULCOrderColumn::Details)
            openOrderCell(column);
        return column != ULCOrderColumn::Details;
    };
    cmbDocStatus.click = [this] { cmbDocStatus_Click(); };
    cmbULCORDERDetails.click = [this] { cmbULCORDERDetails_Click(); };
    cmdDetails.click = [this] { cmdDetails_Click(); };
    cmdSave.click = [this] { cmdSave_Click(); };
    cmdClose.click = [this] { hide(); };
    procedure("optDocCtrlOwn_Click", [this] { optDocCtrlOwn_Click(); });
    procedure("fillRsULCDetails", [this] { fillRsULCDetails(); });
}

void frmScrutinyULC::load() {
    const auto& first = proposal.forms.get<frmAnnexureA>();
    txtProposalDate.setText(first.DTPicker1.date().text());
    txtCaseType.setText(first.cboCaseType.text());
    optDocCtrlOwn_Click();
    setFormColors(*this, proposal);
}

std::string_view frmScrutinyULC::ownershipCode() const {
    return optDocCtrlOwn[0].value() ? "1" : optDocCtrlOwn[1].value() ? "2" : "";
}

void frmScrutinyULC::optDocCtrlOwn_Click() {
    if (optDocCtrlOwn[0].value())
        lblNoOfExt.setCaption("No of 7/12 Extracts");
    else if (optDocCtrlOwn[1].value())
        lblNoOfExt.setCaption("No of PRC Extracts");
    if (!proposal.ownershipRelationSaved)
        return;
    chooseOwnership();
    proposal.tables.ensure(&Tables::rsOwnership).setFilter("");
    fillRsULCDetails();
    listExtracts();
}

void frmScrutinyULC::chooseOwnership() {
    Tables& tables = proposal.tables;
    if (optDocCtrlOwn[0].value()) {
        proposal.is712Current = true;
        proposal.forms.get<frmMain712>().cmdSave_Click();
        tables.ensure(&Tables::rsOwnership712);
        tables.rsOwnership = tables.rsOwnership712;
    } else if (optDocCtrlOwn[1].value()) {
        proposal.is712Current = false;
        tables.create(&Tables::rsOwnershipPRC);
        proposal.forms.get<frmPRCEXT>().cmdSave_Click();
        tables.rsOwnership = tables.rsOwnershipPRC;  // the new empty one: no extract is in sight until 7/12 is chosen
    }
}

void frmScrutinyULC::fillRsULCDetails() {
    Recordset& ownership = proposal.tables.ensure(&Tables::rsOwnership);
    Recordset& orders = proposal.tables.ensure(&Tables::rsULCOrder);
    const Bookmark place = ownership.bookmark();
    for (ownership.moveFirst(); !ownership.eof(); ownership.moveNext()) {
        orders.setFilter("");
        orders.setFilter(" ExtNo = " + valueText(ownership.get(OwnershipColumn::ExtNo)));
        if (orders.recordCount() == 0)
            orders.addNew();
        orders.set(ULCOrderColumn::ExtNo, ownership.get(OwnershipColumn::ExtNo));
        orders.set(ULCOrderColumn::Name, ownership.get(OwnershipColumn::Name));
        orders.update();
    }
    if (ownership.recordCount() == 0)
        return;
    orders.moveFirst();
    ownership.setBookmark(place);
}

void frmScrutinyULC::listExtracts() {
    cmbExtract.clear();
    Recordset& ownership = proposal.tables.ensure(&Tables::rsOwnership);
    Recordset& plots712 = proposal.tables.ensure(&Tables::rsPlot712);
    Recordset& plotsPRC = proposal.tables.ensure(&Tables::rsPlotPRC);
    // Without ownership rows the walk goes on from where the last one ended: no 7/12 extract is listed then.
    if (ownership.recordCount() > 0)
        plots712.moveFirst();
    addExtracts(cmbExtract, plots712, family712.entry);
    if (plotsPRC.recordCount() > 0) {
        lblNoOfExt.setCaption("No of 7/12 Extracts + PRC ");
        plotsPRC.moveFirst();
    }
    addExtracts(cmbExtract, plotsPRC, familyPRC.entry);
    txtNoOfExtranct.setText(std::to_string(cmbExtract.listCount()));
    cmbExtract.setEnabled(true);
    cmbExtract.setVisible(true);
}

void frmScrutinyULC::cmbExtract_Click() {
    passingOver([this] {
        const int extract = cmbExtract.listIndex() + 1;
        proposal.tables.ensure(&Tables::rsOwner712).setFilter("");
        showOwnership(extract);
        showOrders(extract);
    });
}

void frmScrutinyULC::showOwnership(int extract) {
    rowsOfExtract(proposal, &Tables::rsOwnership, extract);
    dgdOwner.bind(proposal.tables.rsOwnership);
    dgdOwner.setColumns(ownerColumns);
    placeDocStatus();
}

void frmScrutinyULC::showOrders(int extract) {
    rowsOfExtract(proposal, &Tables::rsULCOrder, extract);
    dgdULCOrderDetails.bind(proposal.tables.rsULCOrder);
    dgdULCOrderDetails.setColumns(orderColumns);
    placeOrderCell(ULCOrderColumn::ULCOrderSelection);
    placeOrderCell(ULCOrderColumn::Details);
}

void frmScrutinyULC::placeDocStatus() {
    placeList(dgdOwner, cmbDocStatus, OwnershipColumn::DocStatus);
}

void frmScrutinyULC::placeOrderCell(int column) {
    if (column == ULCOrderColumn::ULCOrderSelection)
        placeList(dgdULCOrderDetails, cmbULCORDERDetails, column);
    else if (column == ULCOrderColumn::Details && dgdULCOrderDetails.currentRow() >= 0)
        dgdULCOrderDetails.place(cmdDetails, column);
}

void frmScrutinyULC::openDocStatus(int column) {
    if (column != OwnershipColumn::DocStatus)
        return;
    try {
        placeDocStatus();
        cmbDocStatus.setFocus();
    } catch (const RuntimeError&) {
        screen().message("Error Occured !!  ", "");
    }
}

void frmScrutinyULC::openOrderCell(int column) {
    passingOver([&] {
        placeOrderCell(column);
        if (column == ULCOrderColumn::ULCOrderSelection)
            cmbULCORDERDetails.setFocus();
        else if (column == ULCOrderColumn::Details)
            cmdDetails.setFocus();
    });
}

void frmScrutinyULC::cmbDocStatus_Click() {
    Recordset& ownership = proposal.tables.ensure(&Tables::rsOwnership);
    if (ownership.recordCount() == 0)
        return;
    ownership.set(OwnershipColumn::DocStatus, std::to_string(cmbDocStatus.listIndex()));
    ownership.update();
    dgdOwner.refresh();
}

void frmScrutinyULC::cmbULCORDERDetails_Click() {
    Recordset& orders = proposal.tables.ensure(&Tables::rsULCOrder);
    if (orders.eof())
        return;
    orders.set(ULCOrderColumn::ULCOrderSelection, std::to_string(cmbULCORDERDetails.listIndex()));
    orders.update();
    dgdULCOrderDetails.refresh();
}

void frmScrutinyULC::cmdDetails_Click() {
    Recordset& orders = proposal.tables.ensure(&Tables::rsULCOrder);
    if (orders.recordCount() == 0)
        return;
    orders.moveFirst();
    const auto open = [this]<class Own>(void (Own::*loadOrder)()) {
        auto& form = proposal.forms.get<Own>();
        form.show();
        form.openedFor = orderExtract(proposal);
        (form.*loadOrder)();
    };
    const double selection = valueNumber(orders.get(ULCOrderColumn::ULCOrderSelection));
    if (selection == 1)
        open(&frmUS84::loadUS84Order);
    else if (selection == 2)
        open(&frmULC20aDetails::loadUS20a1Order);
    else if (selection == 3)
        open(&frmUS22::loadUS22Order);
}

void frmScrutinyULC::cmdSave_Click() {
    proposal.commands.buildBlock(&Proposal::ULCScrutinyXML);
    cmbExtract_Click();
}

}  // namespace plandesk
