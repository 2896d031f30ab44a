#include "drc/frmDRCTransfer.h"

#include "drc/DRCTable.h"
#include "drc/frmDRCTransferCont.h"
#include "proposal/DRCColumns.h"
#include "proposal/InPlace.h"

namespace plandesk {

namespace {

using Column = DRCTransferColumn;

constexpr auto sources = inPlace<Column, DRCSource>({
    {Column::DRCNumber, {"txtDRCNumber"}},
    {Column::TotalBalanceAreaFigure, {"txtTotalBalanceAreaFigure"}},
    {Column::TransferorFolioNo, {"txtTransferorFolioNo"}},
    {Column::TransferorName1, {"txtTransferorName1"}},
    {Column::TransferorName2, {"txtTransferorName2"}},
    {Column::TransferorName3, {"txtTransferorName3"}},
    {Column::TransferorName4, {"txtTransferorName4"}},
    {Column::TransferorName5, {"txtTransferorName5"}},
    {Column::AttestationName, {"txtAttestationName"}},
    {Column::AttestationAddress, {"txtAttestationAddress"}},
    {Column::TransfareeName1, {"txtTransfareeName1"}},
    {Column::TransfareeName2, {"txtTransfareeName2"}},
    {Column::TransfareeName3, {"txtTransfareeName3"}},
    {Column::TransfareeName4, {"txtTransfareeName4"}},
    {Column::TransfareeName5, {"txtTransfareeName5"}},
    {Column::TransfareeExistingFolioNo, {"txtTransfareeExistingFolioNo"}},
    {Column::TransfareeDate, {"DTPTransfareeDate"}},
    {Column::TransfareePlace, {"txtTransfareePlace"}},
    {Column::TransfareeCheckedBy, {"txtTransfareeCheckedBy"}},
    {Column::SingTalliedBy, {"txtSingTalliedBy"}},
    {Column::RegTransferNo, {"txtRegTransferNo"}},
    {Column::ApprovalDate, {"DTPApprovalDate"}},
    {Column::ApprovalPlace, {"txtApprovalPlace"}},
    // What the continuation left when it was closed, not the fields of the same names on this form's second tab.
    {Column::FolioNumber1, {.text = &Proposal::drcFolioNumber1}},
    {Column::FolioNumber2, {.text = &Proposal::drcFolioNumber2}},
    {Column::FolioNumber3, {.text = &Proposal::drcFolioNumber3}},
    {Column::FolioNumber4, {.text = &Proposal::drcFolioNumber4}},
    {Column::FolioNumber5, {.text = &Proposal::drcFolioNumber5}},
    {Column::LoggedBy, {.text = &Proposal::drcLoggedBy}},
    {Column::FullAddress, {.text = &Proposal::drcFullAddress}},
    {Column::DRCNameAddress, {.text = &Proposal::drcNameAddress}},
    {Column::VideReceiptNo, {.text = &Proposal::drcVideReceiptNo}},
    {Column::ReceiptDate, {.text = &Proposal::drcReceiptDate}},
});

}  // namespace

constinit const DRCTable frmDRCTransfer::table{&Tables::rsDRCTransfer, sources, &Proposal::drcTransferXML,
                                               "TRANSFERDRC", "ReceiptDate"};

frmDRCTransfer::frmDRCTransfer(Proposal& proposal) : DataForm(proposal, formName, "DRC Transfer Form") {
    readFigure(txtTotalBalanceAreaFigure, txtTotalBalanceAreaWords, " sq. mtrs.");
    txtApprovalPlace.enter = [this] { functionKey("F3"); };
    Command1.click = [this] { this->proposal.forms.get<frmDRCTransferCont>().showModal(); };
    markNotSaved({&txtTotalBalanceAreaWords, &txtFolioNumber1, &txtFolioNumber2, &txtFolioNumber3, &txtFolioNumber4,
                  &txtFolioNumber5, &txtLoggedBy, &txtFullAddress, &txtDRCNameAddress, &txtVideReceiptNo,
                  &DTPReceiptDate, &Text1, &Text3, &Text4, &Text5, &DTPicker1});
    procedure("SaveDRCTransfer", [this] { SaveDRCTransfer(); });
}

void frmDRCTransfer::load() {
    setAllDatesToToday(*this);
    setFormColors(*this, proposal);
}

void frmDRCTransfer::functionKey(std::string_view key) {
    if (key != "F3")
        return Form::functionKey(key);
    const bool onFirst = SSTab1.tab() == 0;
    SSTab1.setTab(onFirst ? 1 : 0);
    if (onFirst)
        txtFolioNumber1.setFocus();
}

void frmDRCTransfer::SaveDRCTransfer() {
    fillDRCTable(proposal, *this, table);
    buildDRCFragment(proposal, table);
    screen().message(proposal.drcTransferXML, "");
}

}  // namespace plandesk
