#pragma once

#include <string_view>

#include "drc/DRCForm.h"

namespace plandesk {

struct DRCTable;

/// The application for a development right certificate: the land, the applicant, the licensed person, the reservation
/// surrendered and the compensation received.
class frmIssuOfDRc : public DataForm {
public:
    static constexpr std::string_view formName = "frmIssuOfDRc";
    static const DRCTable table;  ///< what a save keeps, column by column

    explicit frmIssuOfDRc(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void functionKey(std::string_view key) override;

    /// Fills `rsDRCIssue` anew, builds `drcIssueXML` and shows both the count of rows and the text.
    void SaveIssueOfDRC();

    TextBox txtInwardNo{*this, "txtInwardNo"};
    DatePicker DTPInwardDate{*this, "DTPInwardDate"};
    TextBox txtFolioNumber{*this, "txtFolioNumber"};
    TabStrip SSTab1{*this, "SSTab1", 2};

    // Land, applicant and licensed person
    TextBox txtCSCTSNo{*this, "txtCSCTSNo"};
    TextBox txtVillage{*this, "txtVillage"};
    TextBox txtApplicantName{*this, "txtApplicantName"};
    TextBox txtApplicantAddress{*this, "txtApplicantAddress"};
    TextBox txtOwnersName{*this, "txtOwnersName"};
    OptionGroup licensed;
    OptionButton optArchitect{*this, licensed, "optLAOrdSurveyor", "Licence architect", 0};
    OptionButton optSurveyor{*this, licensed, "optLAOrdSurveyor", "Surveyor ", 1};
    TextBox txtEnggName{*this, "txtEnggName"};
    TextBox txtEnggAddress{*this, "txtEnggAddress"};
    TextBox txtEnggLicenceNo{*this, "txtEnggLicenceNo"};
    DatePicker DTPLiIssueDate{*this, "DTPLiIssueDate"};
    DatePicker DTPValidUpto{*this, "DTPValidUpto"};
    TextBox txtCertificateNo{*this, "txtCertificateNo"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    TextBox txtLandAreaNOCObtain{*this, "txtLandAreaNOCObtain"};
    TextBox txtClearanceNo{*this, "txtClearanceNo"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    OptionGroup included;
    OptionButton includedYes{*this, included, "IsReservationInc", "Yes", 1};
    OptionButton includedNo{*this, included, "IsReservationInc", "No", 0};
    TextBox txtReservationSerialNo{*this, "txtReservationSerialNo"};
    OptionGroup situated;
    OptionButton receiving{*this, situated, "OPTLadSituatedAt", "Receiving zone ", 0};
    OptionButton nonReceiving{*this, situated, "OPTLadSituatedAt", "Non-Receiving zone ", 1};
    ComboBox cmbDrcZone{*this, "cmbDrcZone", {"residential", "commercial"}};
    ComboBox cboSector{*this, "cboSector"};
    TextBox txtFSIZone{*this, "txtFSIZone"};

    // Reservation and compensation
    TextBox txtTotalAreaOfLand{*this, "txtTotalAreaOfLand"};
    OptionGroup larger;
    OptionButton largerYes{*this, larger, "IsLargerReservation", "Yes", 1};
    OptionButton largerNo{*this, larger, "IsLargerReservation", "No", 0};
    TextBox txtOtherReservation{*this, "txtOtherReservation"};
    ComboBox cmbProposedReservation{*this, "cmbProposedReservation", {"Road", "Garden"}};
    DatePicker DTPAcquisitionDate{*this, "DTPAcquisitionDate"};
    OptionGroup compensation;
    OptionButton compensationYes{*this, compensation, "IsFSICompensationRec", "Yes", 1};
    OptionButton compensationNo{*this, compensation, "IsFSICompensationRec", "No", 0};
    TextBox txtFSICompensationArea{*this, "txtFSICompensationArea"};
    CheckBox CheckedByDE{*this, "CheckedByDE", "Checked by D.E. :"};
    DRCButtons buttons{*this, [this] { SaveIssueOfDRC(); }};
};

}  // namespace plandesk
