#include "landrecords/ExtractForm.h"

#include <string>

#include "base/Numbers.h"
#include "controls/Meaning.h"
#include "landrecords/Encumbrances.h"
#include "landrecords/ExtractFormKind.h"
#include "landrecords/Ownership.h"
#include "landrecords/PlotNumbering.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk {

namespace {

bool hasCurrentRow(Recordset& table) {
    return table.absolutePosition() > 0;
}

}  // namespace

ExtractForm::ExtractForm(Proposal& proposal, const ExtractFormKind& kind)
    : DataForm(proposal, kind.formName, kind.caption),
      lblHead(*this, "lblHead", kind.head),
      cmdSave(*this, "cmdSave", kind.saveCaption),
      cmdReferesh(*this, "cmdReferesh", kind.resetCaption),
      kind(kind),
      family(kind.family),
      ownerLists(dgdOwner, cmbOwnSingingStatus, cmbEncumber, cmbOwnType, !family->is712) {
    txtRemark.multiLine = true;
    for (Grid* grid : {&dgdInfoOfExtract, &dgdOwner, &dgdPAH})
        grid->allowDelete = false;
    showEditors(false);
    wire();
}

frmMain712::frmMain712(Proposal& proposal) : ExtractForm(proposal, form712) {}

frmPRCEXT::frmPRCEXT(Proposal& proposal) : ExtractForm(proposal, formPRC) {}

void ExtractForm::wire() {
    txtNoOfExtranct.keyPress = keyFilterNumeric;
    txtNoOfExtranct.lostFocus = [this] { txtNoOfExtranct_LostFocus(); };
    cmbExtract.click = [this] { cmbExtract_Click(); };
    dgdInfoOfExtract.afterColumnUpdate = [this](int column) { infoUpdated(column); };
    dgdInfoOfExtract.buttonClick = [this](int) { placeDate(true); };
    dgdInfoOfExtract.editStart = [this](int column) {
        if (column == ExtractColumn::DateOf712)
            placeDate(true);
        return column != ExtractColumn::DateOf712;
    };
    DTPicker1.change = [this] { dateChosen(); };
    dgdOwner.buttonClick = dgdOwner.click = [this](int column) { ownerLists.open(column); };
    dgdOwner.listOf = [this](int column) { return ownerLists.of(column); };
    dgdOwner.rowColumnChange = [this] { ownerCellChanged(); };
    dgdPAH.buttonClick = [this](int) { toggleSign(); };
    cmdSave.toolTip = "Keeps the extracts for the proposal's file and closes the form";
    cmdReferesh.toolTip = "Empties the owners and lets the number of extracts be typed";
    Command1.toolTip = readsAgainTip;
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
    wording = family->is712 && proposal.is712Current ? &wording712 : &wordingPRC;
    txtNoOfExtranct.setText(std::to_string(proposal.*wording->family.total));
    applyWording();
    txtNoOfExtranct_LostFocus();
    txtRemark.setText(proposal.*family->remark);
    setFormColors(*this, proposal);
}

void ExtractForm::applyWording() {
    lblInfoExtract.setCaption(wording->firstInfo);
    fraExt.setCaption(wording->frame);
    lblNoOfExt.setCaption(wording->count);
    lblSelectExtract.setCaption(wording->select);
    lblRemark.setCaption(wording->remark);
}

// The PRC form has no key handling of its own: Enter is handled in its grids and its count box alone.
int ExtractForm::keyPress(int key) const {
    return family->is712 ? DataForm::keyPress(key) : key;
}

bool ExtractForm::enterActsAsTab() const {
    return family->is712 || txtNoOfExtranct.focused();
}

void ExtractForm::txtNoOfExtranct_LostFocus() {
    if (!alreadyFilled && leadingNumber(txtNoOfExtranct.text()) == 0)
        return;
    if (!family->is712 && alreadyFilled)
        reread();
    Recordset& plots712 = proposal.tables.ensure(&Tables::rsPlot712);
    if (family->is712 && plots712.rowCount() == 0)  // also while the plots of the PRCs are listed
        return;
    if (!family->is712)
        plots712.moveFirst();
    listExtracts();
    if (!alreadyFilled)
        buildRows();
    if (cmbExtract.listCount() > 0)
        cmbExtract.setListIndex(0);
    txtNoOfExtranct.setEnabled(false);
    cmbExtract.setEnabled(true);
    showEditors(false);
    for (Grid* grid : {&dgdInfoOfExtract, &dgdOwner, &dgdPAH})
        grid->setVisible(true);
    alreadyFilled = false;
}

/// Reads the block of the present family again from the document last opened.
void ExtractForm::reread() {
    proposal.commands.readBlock(proposal.is712Current ? &Proposal::extractOwnerXML : &Proposal::prcOwnerXML);
    txtNoOfExtranct.setText(std::to_string(proposal.tables.ensure(&Tables::rsExtractPRC).recordCount()));
    txtRemark.setText(proposal.remark712);  // the 7/12 remark, for PRCs too
}

void ExtractForm::listExtracts() {
    cmbExtract.clear();
    Recordset& plots = proposal.tables.ensure(wording->family.plots);
    plots.moveFirst();
    addExtracts(cmbExtract, plots, wording->family.entry);
}

/// Fills an empty table; changes of the plots keep a filled one in step by themselves.
void ExtractForm::buildRows() {
    const Meaning meant(screen(), txtNoOfExtranct);
    const std::int16_t count = toInteger16(leadingNumber(txtNoOfExtranct.text()));
    Recordset* extracts = &proposal.tables.ensure(family->extracts);
    if (extracts->recordCount() > 0)
        return extracts->moveFirst();
    extracts->setFilter("");
    int number = extracts->recordCount() + 1;
    if (number > count) {
        number = 1;
        if (family->is712) {  // PRCs are added beside the old ones
            proposal.tables.create(extractTables);
            extracts = &proposal.tables.ensure(family->extracts);
        }
    }
    for (; number <= count; ++number) {
        extracts->addNew();
        extracts->set(ExtractColumn::ExtNo, number);
        extracts->set(ExtractColumn::DateOf712, screen().ports.clock.today());
        for (const int column : {ExtractColumn::FerFarNo, ExtractColumn::NoOfOwners, ExtractColumn::CumulativeArea,
                                 ExtractColumn::NoOfPAHs})
            extracts->set(column, 0);
        extracts->update();
    }
}

void ExtractForm::showEditors(bool on) {
    DTPicker1.setVisible(on);
    ownerLists.setVisible(on);
}

Recordset& ExtractForm::chosen(Tables::Member table) {
    Recordset& rows = proposal.tables.ensure(table);
    rows.setFilter("");
    rows.setFilter("ExtNo = " + std::to_string(chosenExtract));
    return rows;
}

void ExtractForm::bindInfo() {
    chosen(family->extracts);
    dgdInfoOfExtract.bind(proposal.tables.*family->extracts);
    dgdInfoOfExtract.setColumns(wording->infoColumns);
}

void ExtractForm::bindOwners() {
    bindingOwners = true;
    chosen(family->owners);
    dgdOwner.bind(proposal.tables.*family->owners);
    dgdOwner.setColumns(wording->ownerColumns);
    ownerCellChanged();
    bindingOwners = false;
}

void ExtractForm::bindHolders() {
    chosen(family->holders);
    dgdPAH.bind(proposal.tables.*family->holders);
    dgdPAHCallSetting();
}

void ExtractForm::dgdPAHCallSetting() {
    dgdPAH.setColumns(holderColumns);
}

void ExtractForm::cmbExtract_Click() {
    chosenExtract = toInteger16(static_cast<double>(cmbExtract.listIndex()) + 1);
    lblInfoExtract.setCaption(std::string(wording->info) + std::to_string(chosenExtract));
    bindInfo();
    bindOwners();
    bindHolders();
    placeDate(visible());
}

void ExtractForm::infoUpdated(int column) {
    const auto number = [this, column] {
        return toInteger16(valueNumber(proposal.tables.ensure(family->extracts).get(column)));
    };
    if (column == ExtractColumn::DateOf712) {
        placeDate(false);
    } else if (column == ExtractColumn::NoOfOwners) {
        addOwner(number());
    } else if (column == ExtractColumn::NoOfPAHs) {
        addPAH(number());
    }
}

void ExtractForm::addOwner(std::int16_t count) {
    dgdOwner.bind(nullptr);
    Recordset& owners = chosen(family->owners);
    owners.deleteVisible();
    for (int number = 1; number <= count; ++number) {
        owners.addNew();
        owners.set(OwnerColumn::ExtNo, chosenExtract);
        owners.set(OwnerColumn::OwnNo, number);
        owners.set(OwnerColumn::SingingStatus, std::string(noStatus));
        owners.set(OwnerColumn::Encumbrances, std::string(noEncumbrance));
        owners.set(OwnerColumn::OwnerType, std::string(noOwnerType));
        owners.update();
    }
    bindOwners();
}

void ExtractForm::addPAH(std::int16_t count) {
    dgdPAH.bind(nullptr);
    Recordset& holders = chosen(family->holders);
    holders.deleteVisible();
    for (int number = 1; number <= count; ++number) {
        holders.addNew();
        holders.set(HolderColumn::ExtNo, chosenExtract);
        holders.set(HolderColumn::PAHNo, number);
        holders.set(HolderColumn::PAHSing, false);
        holders.update();
    }
    bindHolders();
}

void ExtractForm::placeDate(bool focus) {
    Recordset& extracts = proposal.tables.ensure(family->extracts);
    if (!hasCurrentRow(extracts))
        return;  // nothing to place the picker over
    if (const auto* date = std::get_if<Date>(&extracts.get(ExtractColumn::DateOf712)))
        DTPicker1.setDate(*date);
    dgdInfoOfExtract.place(DTPicker1, ExtractColumn::DateOf712);
    if (focus)
        DTPicker1.setFocus();
}

void ExtractForm::dateChosen() {
    Recordset& extracts = proposal.tables.ensure(family->extracts);
    if (!hasCurrentRow(extracts))
        return;
    extracts.set(ExtractColumn::DateOf712, DTPicker1.date());
    extracts.update();
    dgdInfoOfExtract.refresh();
}

void ExtractForm::ownerCellChanged() {
    if (dgdOwner.currentRow() >= 0 && !proposal.isSavingLandRecord)
        ownerLists.cellChanged(!bindingOwners);
}

void ExtractForm::toggleSign() {
    Recordset& holders = proposal.tables.ensure(family->holders);
    if (!hasCurrentRow(holders))
        return;
    holders.set(HolderColumn::PAHSing, valueNumber(holders.get(HolderColumn::PAHSing)) == 0);
    holders.update();
    dgdPAH.refresh();
}

void ExtractForm::cmdSave_Click() {
    if (kind->savesWithCountOnly && leadingNumber(txtNoOfExtranct.text()) == 0)
        return;
    if (kind->saveUnbindsOwners)
        dgdOwner.bind(nullptr);  // until an extract is chosen again
    if (kind->saveMakesPRCsTheSubject)
        proposal.is712Current = false;
    proposal.commands.buildBlock(kind->family.extractList);
    buildOwnership(proposal);
    proposal.tables.rsOwnership712 = proposal.tables.rsOwnership;
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
    for (const Tables::Member table : kind->droppedByReset)
        (proposal.tables.*table).reset();
}

}  // namespace plandesk
