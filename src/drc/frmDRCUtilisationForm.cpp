#include "drc/frmDRCUtilisationForm.h"

#include <array>

#include "drc/DRCTable.h"
#include "proposal/DRCColumns.h"
#include "proposal/InPlace.h"

namespace plandesk {

namespace {

using Column = DRCUtilisationColumn;

constexpr auto sources = inPlace<Column, DRCSource>({
    {Column::DRCNumber, {"txtDRCNumber"}},
    {Column::TransferorFolioNo, {"txtTransferorFolioNo"}},
    {Column::TransferorName1, {"txtTransferorName1"}},
    {Column::TransferorName2, {"txtTransferorName2"}},
    {Column::TransferorName3, {"txtTransferorName3"}},
    {Column::TransferorName4, {"txtTransferorName4"}},
    {Column::TransferorName5, {"txtTransferorName5"}},
    {Column::AttestationName, {"txtAttestationName"}},
    {Column::AttestationAddress, {"txtAttestationAddress"}},
    {Column::AttestationSign, {"txtAttestationSign"}},
    {Column::AreaUtilizeFigure, {"txtAreaUtilizeFigure"}},
    {Column::ConsiderationRs, {"txtConsiderationRs"}},
    {Column::BalanceBuiltUpAreaFig, {"txtBalanceBuiltUpAreaFig"}},
    {Column::BalanceDrcAreaFig, {"txtBalanceDrcAreaFig"}},
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
    {Column::FolioNumber1, {"txtFolioNumber1"}},
    {Column::FolioNumber2, {"txtFolioNumber2"}},
    {Column::FolioNumber3, {"txtFolioNumber3"}},
    {Column::FolioNumber4, {"txtFolioNumber4"}},
    {Column::FolioNumber5, {"txtFolioNumber5"}},
    {Column::LoggedBy, {"txtLoggedBy"}},
    {Column::FullAddress, {"txtFullAddress"}},
    {Column::DRCNameAddress, {"txtDRCNameAddress"}},
    {Column::VideReceiptNo, {"txtVideReceiptNo"}},
    {Column::ReceiptDate, {"DTPReceiptDate"}},
});

constexpr std::array firstFields = {&frmDRCUtilisationForm::txtTransferorFolioNo,
                                    &frmDRCUtilisationForm::txtTransfareeName1,
                                    &frmDRCUtilisationForm::txtSMCAdminRegNo};

}  // namespace

constinit const DRCTable frmDRCUtilisationForm::table{&Tables::rsDRCUtilisation, sources, &Proposal::drcUtilisationXML,
                                                      "UTILIZATIONDRC", "ReceiptDate"};

frmDRCUtilisationForm::frmDRCUtilisationForm(Proposal& proposal) : DataForm(proposal, formName, "DRC Utilzation Form") {
    readFigure(txtAreaUtilizeFigure, txtAreaUtilizedToWords, " sq. mtrs.");
    readFigure(txtConsiderationRs, txtConsiderationRsWord, " Rupees");
    readFigure(txtBalanceBuiltUpAreaFig, txtBalanceBuiltUpAreaWord, " sq. mtrs.");
    readFigure(txtBalanceDrcAreaFig, txtBalanceDrcAreaWords, " sq. mtrs.");
    formatWhenLeft(txtBalanceArea);
    txtBalanceArea.enter = [this] { goToTab(1); };
    txtFolioNumber5.enter = [this] { goToTab(2); };
    lblSave.click = [this] { functionKey("F2"); };
    lblToggle.click = [this] { functionKey("F3"); };
    lblEsc.click = [this] { functionKey("Esc"); };
    markNotSaved({&txtAreaUtilizedToWords, &txtConsiderationRsWord, &txtBalanceBuiltUpAreaWord, &txtBalanceDrcAreaWords,
                  &txtBalanceArea, &txtDRCNameAddress1, &txtSMCAdminRegNo, &DTPicker1});
    procedure("SaveUtilisationDRC", [this] { SaveUtilisationDRC(); });
}

void frmDRCUtilisationForm::load() {
    setAllDatesToToday(*this);
    setFormColors(*this, proposal);
}

void frmDRCUtilisationForm::functionKey(std::string_view key) {
    if (key == "F2")
        SaveUtilisationDRC();
    else if (key == "F3")
        goToTab((SSTab1.tab() + 1) % SSTab1.count());
    else if (key == "Esc")
        hide();
}

void frmDRCUtilisationForm::goToTab(int tab) {
    SSTab1.setTab(tab);
    (this->*firstFields.at(static_cast<std::size_t>(tab))).setFocus();
}

void frmDRCUtilisationForm::SaveUtilisationDRC() {
    fillDRCTable(proposal, *this, table);
    buildDRCFragment(proposal, table);
    screen().message(proposal.drcUtilisationXML, "");
}

}  // namespace plandesk
