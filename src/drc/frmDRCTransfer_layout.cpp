// What frmDRCTransfer looks like.

#include "drc/frmDRCTransfer.h"

namespace plandesk {

namespace {

constexpr LayoutRow certificateRows[] = {
    {"", "DEVELOPMENT RIGHT CERTIFICATE NO.", "txtDRCNumber"},
    {"", "TOTAL BALANCE AREA (IN FIGURES) ", "txtTotalBalanceAreaFigure"},
    {.question = "TOTAL BALANCE AREA (IN WORDS) :", .controls = "txtTotalBalanceAreaWords", .lines = 2},
};

constexpr LayoutRow transferorRows[] = {
    {"", "Transferor's Folio number ", "txtTransferorFolioNo"},
    {"1", "Name in full :", "txtTransferorName1"},
    {"2", "Name in full :", "txtTransferorName2"},
    {"3", "Name in full :", "txtTransferorName3"},
    {"4", "Name in full :", "txtTransferorName4"},
    {"5", "Name in full :", "txtTransferorName5"},
};

constexpr LayoutRow attestationRows[] = {
    {"", "Name :", "txtAttestationName"},
    {"", "Address :", "txtAttestationAddress"},
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
};

constexpr LayoutRow officeRows[] = {
    {"", "Checked by :", "txtTransfareeCheckedBy"},
    {"", "Signature tallied by :", "txtSingTalliedBy"},
    {"", "Entered in the register of transfer No. :", "txtRegTransferNo"},
    {"", "Approval Date :", "DTPApprovalDate"},
    {"", "No. ", "txtApprovalPlace"},
};

constexpr LayoutRow particularRows[] = {
    {"1", "Folio No.", "txtFolioNumber1"},          {"2", "Folio No.", "txtFolioNumber2"},
    {"3", "Folio No.", "txtFolioNumber3"},          {"4", "Folio No.", "txtFolioNumber4"},
    {"5", "Folio No.", "txtFolioNumber5"},          {"", "Logged by :", "txtLoggedBy"},
    {"", "Full Address :", "txtFullAddress"},       {"", "Name and Address :", "txtDRCNameAddress"},
    {"", "Vide receipt No. :", "txtVideReceiptNo"}, {"", "Date :", "DTPReceiptDate"},
};

constexpr LayoutRow noteRows[] = {
    {"", "Note 1 :", "Text1"}, {"", "Note 2 :", "Text3"},   {"", "Note 3 :", "Text4"},
    {"", "Note 4 :", "Text5"}, {"", "Date :", "DTPicker1"},
};

constexpr LayoutGroup deedGroups[] = {
    {"", certificateRows},           {"Transferors", transferorRows}, {"Attestation", attestationRows},
    {"Transferees", transfereeRows}, {"For office use", officeRows},
};
constexpr LayoutGroup particularGroups[] = {{"", particularRows}, {"Notes", noteRows}};
constexpr LayoutPage pages[] = {{deedGroups}, {particularGroups}};
constexpr std::string_view tabs[] = {"Transfer deed", "Fee and return particulars"};

constexpr Layout sheet{
    .questionWidth = 40,
    .tabs = "SSTab1",
    .tabCaptions = tabs,
    .pages = pages,
    .buttons = "cmdSave cmdReferesh cmdClose Command1",
};

}  // namespace

const Layout& frmDRCTransfer::layout() const {
    return sheet;
}

}  // namespace plandesk
