#pragma once

#include <string_view>

#include "drc/DRCForm.h"

namespace plandesk {

struct DRCTable;

/// The use of a development right certificate on a plot. No balance is computed: each figure is typed, and the form
/// only writes it out in words.
class frmDRCUtilisationForm : public DataForm {
public:
    static constexpr std::string_view formName = "frmDRCUtilisationForm";
    static const DRCTable table;  ///< what a save keeps, column by column

    explicit frmDRCUtilisationForm(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    void functionKey(std::string_view key) override;

    /// Fills `rsDRCUtilisation` anew, builds `drcUtilisationXML` and shows it.
    void SaveUtilisationDRC();

    TextBox txtDRCNumber{*this, "txtDRCNumber"};
    TabStrip SSTab1{*this, "SSTab1", 3};

    // Transferors and figures
    TextBox txtTransferorFolioNo{*this, "txtTransferorFolioNo"};
    TextBox txtTransferorName1{*this, "txtTransferorName1"};
    TextBox txtTransferorName2{*this, "txtTransferorName2"};
    TextBox txtTransferorName3{*this, "txtTransferorName3"};
    TextBox txtTransferorName4{*this, "txtTransferorName4"};
    TextBox txtTransferorName5{*this, "txtTransferorName5"};
    TextBox txtAttestationName{*this, "txtAttestationName"};
    TextBox txtAttestationAddress{*this, "txtAttestationAddress"};
    TextBox txtAttestationSign{*this, "txtAttestationSign"};
    TextBox txtAreaUtilizeFigure{*this, "txtAreaUtilizeFigure"};
    TextBox txtAreaUtilizedToWords{*this, "txtAreaUtilizedToWords"};
    TextBox txtConsiderationRs{*this, "txtConsiderationRs"};
    TextBox txtConsiderationRsWord{*this, "txtConsiderationRsWord"};
    TextBox txtBalanceBuiltUpAreaFig{*this, "txtBalanceBuiltUpAreaFig"};
    TextBox txtBalanceBuiltUpAreaWord{*this, "txtBalanceBuiltUpAreaWord"};
    TextBox txtBalanceDrcAreaFig{*this, "txtBalanceDrcAreaFig"};
    TextBox txtBalanceDrcAreaWords{*this, "txtBalanceDrcAreaWords"};
    EnterBox txtBalanceArea{*this, "txtBalanceArea"};

    // Transferees
    TextBox txtTransfareeName1{*this, "txtTransfareeName1"};
    TextBox txtTransfareeName2{*this, "txtTransfareeName2"};
    TextBox txtTransfareeName3{*this, "txtTransfareeName3"};
    TextBox txtTransfareeName4{*this, "txtTransfareeName4"};
    TextBox txtTransfareeName5{*this, "txtTransfareeName5"};
    TextBox txtTransfareeExistingFolioNo{*this, "txtTransfareeExistingFolioNo"};
    DatePicker DTPTransfareeDate{*this, "DTPTransfareeDate"};
    TextBox txtTransfareePlace{*this, "txtTransfareePlace"};
    TextBox txtTransfareeCheckedBy{*this, "txtTransfareeCheckedBy"};
    TextBox txtSingTalliedBy{*this, "txtSingTalliedBy"};
    TextBox txtRegTransferNo{*this, "txtRegTransferNo"};
    DatePicker DTPApprovalDate{*this, "DTPApprovalDate"};
    TextBox txtApprovalPlace{*this, "txtApprovalPlace"};
    TextBox txtFolioNumber1{*this, "txtFolioNumber1"};
    TextBox txtFolioNumber2{*this, "txtFolioNumber2"};
    TextBox txtFolioNumber3{*this, "txtFolioNumber3"};
    TextBox txtFolioNumber4{*this, "txtFolioNumber4"};
    EnterBox txtFolioNumber5{*this, "txtFolioNumber5"};

    // Office use
    TextBox txtSMCAdminRegNo{*this, "txtSMCAdminRegNo"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    TextBox txtLoggedBy{*this, "txtLoggedBy"};
    TextBox txtFullAddress{*this, "txtFullAddress"};
    TextBox txtDRCNameAddress{*this, "txtDRCNameAddress"};
    TextBox txtDRCNameAddress1{*this, "txtDRCNameAddress1"};
    TextBox txtVideReceiptNo{*this, "txtVideReceiptNo"};
    DatePicker DTPReceiptDate{*this, "DTPReceiptDate"};

    // The hints stand above every tab; a click acts as the key
    Label lblSave{*this, "lblSave", "Press {F2} for Save"};
    Label lblToggle{*this, "lblToggle", "Press {F3} for Toggle"};
    Label lblEsc{*this, "lblEsc", "Press {Esc} for Close"};
    DRCButtons buttons{*this, [this] { SaveUtilisationDRC(); }};

private:
    /// Shows the tab with the focus on its first field.
    void goToTab(int tab);
};

}  // namespace plandesk
