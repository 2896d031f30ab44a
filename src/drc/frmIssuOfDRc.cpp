#include "drc/frmIssuOfDRc.h"

#include <string>

#include "drc/DRCTable.h"
#include "proposal/DRCColumns.h"
#include "proposal/InPlace.h"

namespace plandesk {

namespace {

using Column = DRCIssueColumn;

// The owner's name and the dates of certificate and clearance are asked for on the form, but nothing sets their
// columns.
constexpr auto sources = inPlace<Column, DRCSource>({
    {Column::InwardNo, {"txtInwardNo"}},
    {Column::InwardDate, {"DTPInwardDate"}},
    {Column::FolioNo, {"txtFolioNumber"}},
    {Column::CSCTSNo, {"txtCSCTSNo"}},
    {Column::Village, {"txtVillage"}},
    {Column::ApplicantName, {"txtApplicantName"}},
    {Column::ApplicantAddress, {"txtApplicantAddress"}},
    {Column::OwnerName, {}},
    {Column::IsAchitectorSurveyor, {"optLAOrdSurveyor", "LA", "SUR"}},
    {Column::Name, {"txtEnggName"}},
    {Column::Address, {"txtEnggAddress"}},
    {Column::LicenceNumber, {"txtEnggLicenceNo"}},
    {Column::IssueDate, {"DTPLiIssueDate"}},
    {Column::ValidityDate, {"DTPValidUpto"}},
    {Column::CertificateNo, {"txtCertificateNo"}},
    {Column::CertificateDate, {}},
    {Column::LandAreaNOCObtain, {"txtLandAreaNOCObtain"}},
    {Column::ClearanceNo, {"txtClearanceNo"}},
    {Column::ClearanceDate, {}},
    {Column::IsReservationInc, {"IsReservationInc"}},
    {Column::ReservationSerialNo, {"txtReservationSerialNo"}},
    {Column::LadSituatedAt, {"OPTLadSituatedAt", "REC", "NON-REC"}},
    {Column::DrcZone, {"cmbDrcZone"}},
    {Column::Sector, {"cboSector"}},
    {Column::FSIZone, {"txtFSIZone"}},
    {Column::TotalAreaOfLand, {"txtTotalAreaOfLand"}},
    {Column::IsLargerReservation, {"IsLargerReservation"}},
    {Column::OtherReservation, {"txtOtherReservation"}},
    {Column::ProposedReservation, {"cmbProposedReservation"}},
    {Column::AcquisitionDate, {"DTPAcquisitionDate"}},
    {Column::IsFSICompensationRec, {"IsFSICompensationRec"}},
    {Column::FSICompensationArea, {"txtFSICompensationArea"}},
    {Column::CheckedByDE, {"CheckedByDE", "Y", "N"}},
});

constexpr int sectors = 11;

}  // namespace

constinit const DRCTable frmIssuOfDRc::table{&Tables::rsDRCIssue, sources, &Proposal::drcIssueXML, "ISSUEOFDRC",
                                             "CheckedByDE"};

frmIssuOfDRc::frmIssuOfDRc(Proposal& proposal) : DataForm(proposal, formName, "Issue Of DRC") {
    for (int sector = 1; sector <= sectors; ++sector)
        cboSector.addItem("Sector " + std::to_string(sector));
    markNotSaved({&txtOwnersName, &DTPicker1, &DTPicker2});
    procedure("SaveIssueOfDRC", [this] { SaveIssueOfDRC(); });
}

void frmIssuOfDRc::load() {
    setAllDatesToToday(*this);
    setFormColors(*this, proposal);
}

void frmIssuOfDRc::functionKey(std::string_view key) {
    if (key != "F3")
        return Form::functionKey(key);
    const bool onFirst = SSTab1.tab() == 0;
    SSTab1.setTab(onFirst ? 1 : 0);
    (onFirst ? txtTotalAreaOfLand : txtCSCTSNo).setFocus();
}

void frmIssuOfDRc::SaveIssueOfDRC() {
    const int count = fillDRCTable(proposal, *this, table).recordCount();
    screen().message("RecodCOunt " + std::to_string(count), "");
    buildDRCFragment(proposal, table);
    screen().message(proposal.drcIssueXML, "");
}

}  // namespace plandesk
