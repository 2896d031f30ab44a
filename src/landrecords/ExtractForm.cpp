#include "landrecords/ExtractForm.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "landrecords/Encumbrances.h"
#include "landrecords/Ownership.h"
#include "landrecords/PlotNumbering.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

constexpr std::array<Tables::Member, 3> dropped712 = {&Tables::rsExtract712, &Tables::rsOwner712, &Tables::rsPAH712};
constexpr std::array<Tables::Member, 2> droppedPRC = {&Tables::rsPAHPRC, &Tables::rsOwnerPRC};  // the PRCs stay

constexpr ExtractFamily family712 = {
    .formName = frmMain712::formName,
    .caption = "Scrutiny Of 7/12 Extract",
    .head = " Scrutiny Of 7/12 Extract",
    .saveCaption = "Save 7/12 Scrutiny Data",
    .resetCaption = "Reset 7/12 Information ",
    .extracts = &Tables::rsExtract712,
    .owners = &Tables::rsOwner712,
    .holders = &Tables::rsPAH712,
    .droppedByReset = dropped712,
    .total = &Proposal::noOfExtract712,
    .lastRemark = &Proposal::remark712,
    .prc = false,
};

constexpr ExtractFamily familyPRC = {
    .formName = frmPRCEXT::formName,
    .caption = "PRC Extract Scruitny ",
    .head = " Scrutiny Of PRC Extract",
    .saveCaption = "Save PRC Scrutiny Information",
    .resetCaption = "Reset",
    .extracts = &Tables::rsExtractPRC,
    .owners = &Tables::rsOwnerPRC,
    .holders = &Tables::rsPAHPRC,
    .droppedByReset = droppedPRC,
    .total = &Proposal::noOfPRC,
    .lastRemark = &Proposal::remarkPRC,
    .prc = true,
};

enum InfoColumn { infoDate = 3, infoOwners = 5, infoHolders = 7 };
enum OwnerColumn { ownerStatus = 3, ownerEncumbrance = 4, ownerType = 5 };
constexpr int holderSign = 3;

constexpr GridColumn hidden = {.caption = "", .width = 0};

constexpr std::array<GridColumn, 8> infoColumns712 = {{
    hidden,
    {.caption = "Survey No", .width = 1400},
    {.caption = "Hissa No", .width = 1400},
    {.caption = "Date of 7/12", .width = 1500, .button = true},
    {.caption = "Ferfar No", .width = 1600},
    {.caption = "No of Owners", .width = 1300},
    {.caption = "Cumulative 7/12 Area in Sq.Mt", .width = 2600},
    {.caption = "No Of PAHs", .width = 1200},
}};

constexpr std::array<GridColumn, 8> infoColumnsPRC = {{
    hidden,
    {.caption = "City Survey No", .width = 1600},
    {.caption = "Tika Sheet No ", .width = 1600},
    {.caption = "PRC Date", .width = 1500, .button = true},
    {.caption = "Ferfar No", .width = 0},
    {.caption = "No of Owners", .width = 1300},
    {.caption = "Cumulative PRC Area", .width = 2200},
    {.caption = "No Of PAHs", .width = 1200},
}};

constexpr std::array<GridColumn, 6> ownerColumns712 = {{
    hidden,
    {.caption = "Sr No", .width = 700},
    {.caption = "Name Of Owner", .width = 4200},
    {.caption = "Owner Signing Status ", .width = 2100, .button = true},
    {.caption = "Encumbrances", .width = 2600, .button = true},
    {.caption = "Owner Type", .width = 0},
}};

constexpr std::array<GridColumn, 6> ownerColumnsPRC = {{
    hidden,
    {.caption = "Sr No", .width = 700},
    {.caption = "Name Of Owner", .width = 3600},
    {.caption = "Owner Signing Status ", .width = 2100},
    {.caption = "Encumbrances", .width = 2600},
    {.caption = "Owner Type", .width = 2100},
}};

constexpr std::array<GridColumn, 4> holderColumns = {{
    hidden,
    {.caption = "SrNo", .width = 700},
    {.caption = "Holder Name", .width = 4200},
    {.caption = "PAH Sign", .width = 1000, .locked = true, .button = true, .yesNo = true},
}};

constexpr std::string_view typeDefault = "  ------ Select------  ";
constexpr std::array<std::string_view, 3> statusList = {"---- Select ----", "Signed", "PAH Given"};
constexpr std::array<std::string_view, 4> typeList = {typeDefault, "H - Holder", "L - Lease", "E - Easement"};

void addItems(ComboBox& list, std::span<const std::string_view> items) {
    for (const std::string_view item : items)
        list.addItem(item);
}

void deleteVisible(Recordset& table) {
    for (table.moveFirst(); !table.eof(); table.moveNext())
        table.deleteRow();
}

bool hasCurrentRow(Recordset& table) {
    return table.absolutePosition() > 0;
}

}  // namespace

ExtractForm::ExtractForm(Proposal& proposal, const ExtractFamily& family)
    : DataForm(proposal, family.formName, family.caption),
      lblHead(*this, "lblHead", family.head),
      cmdSave(*this, "cmdSave", family.saveCaption),
      cmdReferesh(*this, "cmdReferesh", family.resetCaption),
      family(family),
      ownerLists{{{cmbOwnSingingStatus, ownerStatus}, {cmbEncumber, ownerEncumbrance}, {cmbOwnType, ownerType}}} {
    addItems(cmbOwnSingingStatus, statusList);
    cmbEncumber.addItem(noEncumbrance);
    addItems(cmbEncumber, encumbrances);
    addItems(cmbOwnType, typeList);
    txtRemark.multiLine = true;
    for (Grid* grid : {&dgdInfoOfExtract, &dgdOwner, &dgdPAH})
        grid->allowDelete = false;
    showEditors(false);
    wire();
}

frmMain712::frmMain712(Proposal& proposal) : ExtractForm(proposal, family712) {}

frmPRCEXT::frmPRCEXT(Proposal& proposal) : ExtractForm(proposal, familyPRC) {}

void ExtractForm::wire() {
    txtNoOfExtranct.keyPress = keyFilterNumeric;
    txtNoOfExtranct.lostFocus = [this] { txtNoOfExtranct_LostFocus(); };
    cmbExtract.click = [this] { cmbExtract_Click(); };
    dgdInfoOfExtract.afterColumnUpdate = [this](int column) { infoUpdated(column); };
    dgdInfoOfExtract.buttonClick = [this](int) { placeDate(true); };
    dgdInfoOfExtract.editStart = [this](int column) {
        if (column == infoDate)
            placeDate(true);
        return column != infoDate;
    };
    DTPicker1.change = [this] { dateChosen(); };
    dgdOwner.buttonClick = dgdOwner.click = [this](int column) { openList(column); };
    dgdOwner.rowColumnChange = [this] { ownerCellChanged(); };
    for (OwnerList& owner : ownerLists) {
        owner.list.click = [this, &owner] { owner.opened = owner.opened || !placing; };
        owner.list.lostFocus = [this, &owner] { leaveList(owner); };
    }
    dgdPAH.buttonClick = [this](int) { toggleSign(); };
    cmdSave.click = [this] { cmdSave_Click(); };
    cmdReferesh.click = [this] { cmdReferesh_Click(); };
    cmdClose.click = [this] { hide(); };
    Command1.click = [this] {
        alreadyFilled = true;
        txtNoOfExtranct_LostFocus();
    };
    procedure("dgdPAHCallSetting", [this] { dgdPAHCallSetting(); });
}

void ExtractForm::load() {
    txtNoOfExtranct.setEnabled(false);
    txtCaseType.setText(proposal.forms.get<frmAnnexureA>().cboCaseType.text());
    txtNoOfExtranct.setText(std::to_string(proposal.*family.total));
    if (showsPrc()) {
        applyPrcLabels();
        txtNoOfExtranct.setText(std::to_string(proposal.noOfPRC));
    }
    txtNoOfExtranct_LostFocus();
    txtRemark.setText(proposal.*family.lastRemark);
    setFormColors(*this, proposal);
}

void ExtractForm::applyPrcLabels() {
    lblInfoExtract.setCaption("Information For PRC No :- 1");
    fraExt.setCaption("PRC Details");
    lblNoOfExt.setCaption("No of PRC");
    lblSelectExtract.setCaption("Select PRC for details");
    lblRemark.setCaption("PRC Remark");
}

// The PRC form has no key handling of its own: Enter is handled in its grids and its count box alone.
int ExtractForm::keyPress(int key) const {
    return family.prc ? key : DataForm::keyPress(key);
}

bool ExtractForm::enterActsAsTab() const {
    return !family.prc || txtNoOfExtranct.focused();
}

void ExtractForm::txtNoOfExtranct_LostFocus() {
    const bool refill = std::exchange(alreadyFilled, false);
    if (!refill && leadingNumber(txtNoOfExtranct.text()) == 0)
        return;
    if (family.prc && refill)
        reread();
    Recordset& plots712 = proposal.tables.ensure(&Tables::rsPlot712);
    if (family.prc)
        plots712.moveFirst();
    else if (plots712.rowCount() == 0)  // also while the plots of the PRCs are listed
        return;
    listExtracts();
    if (!refill)
        buildRows();
    if (cmbExtract.listCount() > 0)
        cmbExtract.setListIndex(0);
    txtNoOfExtranct.setEnabled(false);
    cmbExtract.setEnabled(true);
    showEditors(false);
    for (Grid* grid : {&dgdInfoOfExtract, &dgdOwner, &dgdPAH})
        grid->setVisible(true);
}

/// Reads the block of the present family again from the document last opened.
void ExtractForm::reread() {
    const auto step = proposal.procedures.find(proposal.is712Current ? "readExtracts712" : "readExtractsPRC");
    if (step != proposal.procedures.end())
        step->second();
    txtNoOfExtranct.setText(std::to_string(proposal.tables.ensure(&Tables::rsExtractPRC).recordCount()));
    txtRemark.setText(proposal.remark712);  // the 7/12 remark, for PRCs too
}

void ExtractForm::listExtracts() {
    cmbExtract.clear();
    const bool prc = showsPrc();
    Recordset& plots = proposal.tables.ensure(prc ? &Tables::rsPlotPRC : &Tables::rsPlot712);
    int listed = 0;
    for (plots.moveFirst(); !plots.eof(); plots.moveNext()) {
        const std::string plot =
            " " + std::string(trim(valueText(plots.get("Plot Name")))) + " --- " + (prc ? " PRC " : " EXTRACT ");
        for (std::int16_t i = extractCount(plots); i > 0; --i)
            cmbExtract.addItem(plot + std::to_string(++listed) + " ");
    }
}

/// Fills an empty table; changes of the plots keep a filled one in step by themselves.
void ExtractForm::buildRows() {
    const std::int16_t count = toInteger16(leadingNumber(txtNoOfExtranct.text()));
    Recordset* extracts = &proposal.tables.ensure(family.extracts);
    if (extracts->recordCount() > 0)
        return extracts->moveFirst();
    extracts->setFilter("");
    int number = extracts->recordCount() + 1;
    if (number > count) {
        number = 1;
        if (!family.prc) {  // PRCs are added beside the old ones
            proposal.tables.create(extractTables);
            extracts = &proposal.tables.ensure(family.extracts);
        }
    }
    for (; number <= count; ++number) {
        extracts->addNew();
        extracts->set("ExtNo", number);
        extracts->set("DateOf712", screen().ports.clock.today());
        for (const std::string_view column : {"FerFarNo", "NoOfOwners ", "CumulativeArea", "NoOfPAHs"})
            extracts->set(column, 0);
        extracts->update();
    }
}

void ExtractForm::showEditors(bool on) {
    DTPicker1.setVisible(on);
    for (OwnerList& owner : ownerLists)
        owner.list.setVisible(on);
}

Recordset& ExtractForm::chosen(Tables::Member table) {
    Recordset& rows = proposal.tables.ensure(table);
    rows.setFilter("");
    rows.setFilter("ExtNo = " + std::to_string(chosenExtract));
    return rows;
}

void ExtractForm::bindInfo() {
    chosen(family.extracts);
    dgdInfoOfExtract.bind(proposal.tables.*family.extracts);
    dgdInfoOfExtract.setColumns(showsPrc() ? infoColumnsPRC : infoColumns712);
}

void ExtractForm::bindOwners() {
    bindingOwners = true;
    chosen(family.owners);
    dgdOwner.bind(proposal.tables.*family.owners);
    dgdOwner.setColumns(showsPrc() ? ownerColumnsPRC : ownerColumns712);
    ownerCellChanged();
    bindingOwners = false;
}

void ExtractForm::bindHolders() {
    chosen(family.holders);
    dgdPAH.bind(proposal.tables.*family.holders);
    dgdPAHCallSetting();
}

void ExtractForm::dgdPAHCallSetting() {
    dgdPAH.setColumns(holderColumns);
}

void ExtractForm::cmbExtract_Click() {
    chosenExtract = toInteger16(static_cast<double>(cmbExtract.listIndex()) + 1);
    lblInfoExtract.setCaption((showsPrc() ? " Information For PRC No :- " : " Information For Extract No :- ") +
                              std::to_string(chosenExtract));
    bindInfo();
    bindOwners();
    bindHolders();
    placeDate(visible());
}

void ExtractForm::infoUpdated(int column) {
    const auto number = [this, column] {
        return toInteger16(valueNumber(proposal.tables.ensure(family.extracts).get(column)));
    };
    if (column == infoDate) {
        placeDate(false);
    } else if (column == infoOwners) {
        addOwner(number());
    } else if (column == infoHolders) {
        addPAH(number());
    }
}

void ExtractForm::addOwner(std::int16_t count) {
    dgdOwner.bind(nullptr);
    Recordset& owners = chosen(family.owners);
    deleteVisible(owners);
    for (int number = 1; number <= count; ++number) {
        owners.addNew();
        owners.set("ExtNo", chosenExtract);
        owners.set("OwnNo", number);
        owners.set("SingingStatus", " -- Select -- ");  // no item of its list
        owners.set("Encumbrances", std::string(noEncumbrance));
        owners.set("OwnerType", std::string(typeDefault));
        owners.update();
    }
    bindOwners();
}

void ExtractForm::addPAH(std::int16_t count) {
    dgdPAH.bind(nullptr);
    Recordset& holders = chosen(family.holders);
    deleteVisible(holders);
    for (int number = 1; number <= count; ++number) {
        holders.addNew();
        holders.set("ExtNo", chosenExtract);
        holders.set("PAHNo", number);
        holders.set("PAHSing", false);
        holders.update();
    }
    bindHolders();
}

void ExtractForm::placeDate(bool focus) {
    Recordset& extracts = proposal.tables.ensure(family.extracts);
    if (!hasCurrentRow(extracts))
        return;  // nothing to place the picker over
    if (const auto* date = std::get_if<Date>(&extracts.get(infoDate)))
        DTPicker1.setDate(*date);
    dgdInfoOfExtract.place(DTPicker1, infoDate);
    if (focus)
        DTPicker1.setFocus();
}

void ExtractForm::dateChosen() {
    Recordset& extracts = proposal.tables.ensure(family.extracts);
    if (!hasCurrentRow(extracts))
        return;
    extracts.set(infoDate, DTPicker1.date());
    extracts.update();
    dgdInfoOfExtract.refresh();
}

void ExtractForm::openList(int column) {
    const auto owner = std::ranges::find(ownerLists, column, &OwnerList::column);
    if (owner == ownerLists.end() || dgdOwner.currentRow() < 0)
        return;
    placeList(*owner);
    owner->opened = true;
    owner->list.setFocus();
}

/// Puts the list over the cell with the cell's text chosen. A text that the list does not have leaves the choice as it
/// was, maybe from another row.
void ExtractForm::placeList(OwnerList& owner) {
    placing = true;
    const std::string text = dgdOwner.cellText(dgdOwner.currentRow(), owner.column);
    const bool anyCase = owner.column == ownerEncumbrance;  // what was read from a document is in upper case
    for (int item = 0; item < owner.list.listCount(); ++item) {
        const std::string_view known = trim(owner.list.item(item));
        if (anyCase ? equalsIgnoringCase(known, trim(text)) : known == trim(text)) {
            owner.list.setListIndex(item);
            break;
        }
    }
    dgdOwner.place(owner.list, owner.column);
    placing = false;
}

void ExtractForm::leaveList(OwnerList& owner) {
    if (!std::exchange(owner.opened, false) || owner.list.listIndex() < 0)
        return;
    // The owner type alone is written without a look whether there is a row for it.
    if (owner.column != ownerType && dgdOwner.currentRow() < 0)
        return;
    Recordset& owners = proposal.tables.ensure(family.owners);
    owners.set(owner.column, std::string(trim(owner.list.text())));
    owners.update();
    dgdOwner.refresh();
}

void ExtractForm::ownerCellChanged() {
    if (dgdOwner.currentRow() < 0 || proposal.isSavingLandRecord)
        return;
    const int column = dgdOwner.currentColumn();
    for (OwnerList& owner : ownerLists) {
        if (owner.column != column)
            owner.list.setVisible(false);
        else if (!bindingOwners && (family.prc || column != ownerType))
            placeList(owner);
    }
}

void ExtractForm::toggleSign() {
    Recordset& holders = proposal.tables.ensure(family.holders);
    if (!hasCurrentRow(holders))
        return;
    holders.set(holderSign, valueNumber(holders.get(holderSign)) == 0);
    holders.update();
    dgdPAH.refresh();
}

void ExtractForm::cmdSave_Click() {
    if (family.prc) {
        proposal.is712Current = false;
        proposal.commands.buildPRCBlock();
    } else {
        if (leadingNumber(txtNoOfExtranct.text()) == 0)
            return;
        dgdOwner.bind(nullptr);  // until an extract is chosen again
        proposal.commands.buildExtractBlock();
    }
    buildOwnership(proposal);
    proposal.tables.rsOwnership712 = proposal.tables.rsOwnership;
    if (family.prc)
        for (Grid* grid : {&dgdInfoOfExtract, &dgdOwner, &dgdPAH})
            grid->refresh();
    hide();
}

void ExtractForm::cmdReferesh_Click() {
    txtNoOfExtranct.setEnabled(true);
    for (Grid* grid : {&dgdInfoOfExtract, &dgdOwner, &dgdPAH})
        grid->setVisible(false);
    showEditors(false);
    cmbExtract.setEnabled(false);
    txtRemark.setText("");
    cmbExtract.clear();
    txtNoOfExtranct.setText("");
    for (const Tables::Member table : family.droppedByReset)
        (proposal.tables.*table).reset();
}

}  // namespace plandesk
