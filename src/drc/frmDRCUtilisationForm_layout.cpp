// What frmDRCUtilisationForm looks like.

#include "drc/frmDRCUtilisationForm.h"

namespace plandesk {

namespace {

constexpr LayoutRow headRows[] = {
    {"", "", "lblSave lblToggle lblEsc"},
    {"", "Deve. Right certificate number :", "txtDRCNumber"},
};

constexpr LayoutRow transferorRows[] = {
    {"", "Transferor's Folio number :", "txtTransferorFolioNo"},
    {"1", "Name in full :", "txtTransferorName1"},
    {"2", "Name in full :", "txtTransferorName2"},
    {"3", "Name in full :", "txtTransferorName3"},
    {"4", "Name in full :", "txtTransferorName4"},
    {"5", "Name in full :", "txtTransferorName5"},
};

constexpr LayoutRow attestationRows[] = {
    {"", "Name :", "txtAttestationName"},
    {"", "Address :", "txtAttestationAddress"},
    {"", "Space for attestation :", "txtAttestationSign"},
};

constexpr LayoutRow figureRows[] = {
    {"", "Area to be utilized in sq. mt. (In figures) :", "txtAreaUtilizeFigure"},
    {.question = "Area to be utilized in sq. mt. (In words) :", .controls = "txtAreaUtilizedToWords", .lines = 2},
    {"", "Consideration (In Rs.) :", "txtConsiderationRs"},
    {.question = "Consideration (In words) :", .controls = "txtConsiderationRsWord", .lines = 2},
    {"", "Balance built-up area as per D.R.C. in sq. mt. (In figure) :", "txtBalanceBuiltUpAreaFig"},
    {.question = "Balance built-up area as per D.R.C. in sq. mt. (In words) :",
     .controls = "txtBalanceBuiltUpAreaWord",
     .lines = 2},
    {"", "Balance area in the D.R.C. after utilization (In figure) :", "txtBalanceDrcAreaFig"},
    {.question = "Balance area in the D.R.C. after utilization (In words) :",
     .controls = "txtBalanceDrcAreaWords",
     .lines = 2},
    {"", "Balance Area :", "txtBalanceArea"},
};

constexpr LayoutRow transfereeRows[] = {
    {"1", "Name in full :", "txtTransfareeName1"},
    {"2", "Name in full :", "txtTransfareeName2"},
    {"3", "Name in full :", "txtTransfareeName3"},
    {"4", "Name in full :", "txtTransfareeName4"},
    {"5", "Name in full :", "txtTransfareeName5"},
    {"", "Transferee(s) Existing Folio number :", "txtTransfareeExistingFolioNo"},
    {"", "Date :", "DTPTransfareeDate"},
    {"", "Place :", "txtTransfareePlace"},
    {"", "Checked by :", "txtTransfareeCheckedBy"},
    {"", "Signature tallied by :", "txtSingTalliedBy"},
    {"", "Entered in the register of transfer No. :", "txtRegTransferNo"},
    {"", "Approval Date :", "DTPApprovalDate"},
    {"", "Approval Number :", "txtApprovalPlace"},
    {"1", "Folio number :", "txtFolioNumber1"},
    {"2", "Folio number :", "txtFolioNumber2"},
    {"3", "Folio number :", "txtFolioNumber3"},
    {"4", "Folio number :", "txtFolioNumber4"},
    {"5", "Folio number :", "txtFolioNumber5"},
};

constexpr LayoutRow officeRows[] = {
    {"", "Administrative register No. :", "txtSMCAdminRegNo"},
    {"", "Date :", "DTPicker1"},
    {"", "Logged by :", "txtLoggedBy"},
    {"", "Full Address :", "txtFullAddress"},
    {"", "Name  :", "txtDRCNameAddress"},
    {"", "Address :", "txtDRCNameAddress1"},
    {"", "Vide receipt No. :", "txtVideReceiptNo"},
    {"", "Date :", "DTPReceiptDate"},
};

constexpr LayoutGroup head[] = {{"", headRows}};
constexpr LayoutGroup transferorGroups[] = {{"", transferorRows}, {"Attestation", attestationRows}, {"", figureRows}};
constexpr LayoutGroup transfereeGroups[] = {{"", transfereeRows}};
constexpr LayoutGroup officeGroups[] = {{"", officeRows}};
constexpr LayoutPage pages[] = {{transferorGroups}, {transfereeGroups}, {officeGroups}};
constexpr std::string_view tabs[] = {"Transferors", "Transferees", "For office use"};

constexpr Layout sheet{
    .questionWidth = 62,
    .top = head,
    .tabs = "SSTab1",
    .tabCaptions = tabs,
    .pages = pages,
    .buttons = "cmdSave cmdReferesh cmdClose",
};

}  // namespace

const Layout& frmDRCUtilisationForm::layout() const {
    return sheet;
}

}  // namespace plandesk
