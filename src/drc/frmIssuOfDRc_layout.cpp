// What frmIssuOfDRc looks like.

#include "drc/frmIssuOfDRc.h"

namespace plandesk {

namespace {

constexpr LayoutRow headRows[] = {
    {"", "Inward Number :", "txtInwardNo"},
    {"", "Inward Date :", "DTPInwardDate"},
    {"", "Folio Number :", "txtFolioNumber"},
};

constexpr LayoutRow applicantRows[] = {
    {"", "C.S/CTS no. :", "txtCSCTSNo"},
    {"", "Village :", "txtVillage"},
    {"", "Name of the applicant :", "txtApplicantName"},
    {"", "Address of applicant :", "txtApplicantAddress"},
    {"", "Name(s) of the owner(s) :", "txtOwnersName"},
};

constexpr LayoutRow licensedRows[] = {
    {"", "", "optLAOrdSurveyor(0) optLAOrdSurveyor(1)"},
    {"", "Name :", "txtEnggName"},
    {"", "Address :", "txtEnggAddress"},
    {"", "Licence number :", "txtEnggLicenceNo"},
    {"", "Date of issue :", "DTPLiIssueDate"},
    {"", "Valid upto :", "DTPValidUpto"},
};

constexpr LayoutRow landRows[] = {
    {"",
     "No. of issue of certificate by the additional collector and competent authority, U.L.C. sindhavali showing the "
     "land retainable :",
     "txtCertificateNo"},
    {"",
     "Date of issue of certificate by the additional collector and competent authority, U.L.C. sindhavali showing the "
     "land retainable :",
     "DTPicker1"},
    {"", "Area of land for which N.O.C has been obtained :", "txtLandAreaNOCObtain"},
    {"", "In case of non-retainable land, No. of the clearance given by the state government :", "txtClearanceNo"},
    {"", "In case of non-retainable land, Date of the clearance given by the state government :", "DTPicker2"},
    {"", "Whether the reservation is included in the prior list finalized by the mun. Commisioner :",
     "IsReservationInc(1) IsReservationInc(0)"},
    {"", "Serial number of the reservation in the priority list :", "txtReservationSerialNo"},
    {"", "Where is land situated :", "OPTLadSituatedAt(0) OPTLadSituatedAt(1)"},
    {"", "Zone in which land is situated :", "cmbDrcZone"},
    {"", "Sector in which land is situated :", "cboSector"},
    {"", "Permissible FSI of zone :", "txtFSIZone"},
};

constexpr LayoutRow reservationRows[] = {
    {"", "Total area of the land :", "txtTotalAreaOfLand"},
    {"", "Whether land under reservation from a part of larger reservation :",
     "IsLargerReservation(1) IsLargerReservation(0)"},
    {"", "Details of other various reservation affecting the land under reference :", "txtOtherReservation"},
    {"", "Details of the reservation proposed to be surrendered to corporation : ", "cmbProposedReservation"},
    {"", "Acquisition date :", "DTPAcquisitionDate"},
    {"", "Whether Compensation or FSI has been reccieved by the applicant :",
     "IsFSICompensationRec(1) IsFSICompensationRec(0)"},
    {"", "For how much area :", "txtFSICompensationArea"},
    {"", "", "CheckedByDE"},
};

constexpr LayoutGroup head[] = {{"", headRows}};
constexpr LayoutGroup landGroups[] = {{"", applicantRows}, {"", licensedRows}, {"", landRows}};
constexpr LayoutGroup reservationGroups[] = {{"", reservationRows}};
constexpr LayoutPage pages[] = {{landGroups}, {reservationGroups}};
constexpr std::string_view tabs[] = {"Land Details ", "Reservation and compensation"};

constexpr Layout sheet{
    .top = head,
    .tabs = "SSTab1",
    .tabCaptions = tabs,
    .pages = pages,
    .buttons = "cmdSave cmdReferesh cmdClose",
};

}  // namespace

const Layout& frmIssuOfDRc::layout() const {
    return sheet;
}

}  // namespace plandesk
