#pragma once

#include <string_view>

#include "controls/Controls.h"
#include "particulars/StepLinks.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// Payment detail: the fees that the architect worked out, and how they were paid. The rates are typed; the form holds
/// no tariff, only amount = area x rate and the sum. Its answers stay in its boxes and, once saved, in two lists for
/// the document.
class frmPayDetail : public DataForm {
public:
    static constexpr std::string_view formName = "frmPayDetail";

    explicit frmPayDetail(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;

    /// Fills every empty box with "0.00" and, when `validate` is true, leaves both lists for the document.
    void SaveData();
    /// False, after one message, when the rate or the bank's details cannot stand.
    bool validate();
    /// `txtGrandTotal` becomes the sum of all amounts as they are displayed. RuntimeError 6 beyond the range of a
    /// double.
    void calcTotal();
    void showPaymentColors();

    StepLinks links;

    // A: scrutiny
    TextBox txtScrutinyRArea{*this, "txtScrutinyRArea"};
    TextBox txtScrutinyRRate{*this, "txtScrutinyRRate"};
    TextBox txtScrutinyRAmount{*this, "txtScrutinyRAmount"};
    TextBox txtScrutinyCArea{*this, "txtScrutinyCArea"};
    TextBox txtScrutinyCRate{*this, "txtScrutinyCRate"};
    TextBox txtScrutinyCAmount{*this, "txtScrutinyCAmount"};
    TextBox txtScrutinyIndArea{*this, "txtScrutinyIndArea"};
    TextBox txtScrutinyINDRate{*this, "txtScrutinyINDRate"};
    TextBox txtScrutinyINDAmount{*this, "txtScrutinyINDAmount"};

    // B: scrutiny of a subdivision or amalgamation
    TextBox txtScrutinyRArea2{*this, "txtScrutinyRArea2"};
    TextBox txtScrutinyRRate2{*this, "txtScrutinyRRate2"};
    TextBox txtScrutinyRAmount2{*this, "txtScrutinyRAmount2"};
    TextBox txtScrutinyCArea2{*this, "txtScrutinyCArea2"};
    TextBox txtScrutinyCRate2{*this, "txtScrutinyCRate2"};
    TextBox txtScrutinyCAmount2{*this, "txtScrutinyCAmount2"};
    TextBox txtScrutinyIndArea2{*this, "txtScrutinyIndArea2"};
    TextBox txtScrutinyINDRate2{*this, "txtScrutinyINDRate2"};
    TextBox txtScrutinyINDAmount2{*this, "txtScrutinyINDAmount2"};

    // C: development permission
    TextBox txtArea{*this, "txtArea"};
    TextBox txtRate{*this, "txtRate"};
    TextBox txtTotal{*this, "txtTotal"};
    TextBox txtDevAreaC{*this, "txtDevAreaC"};
    TextBox txtDevRateC{*this, "txtDevRateC"};
    TextBox txtDevAmtC{*this, "txtDevAmtC"};
    TextBox txtDevAreaI{*this, "txtDevAreaI"};
    TextBox txtDevRateI{*this, "txtDevRateI"};
    TextBox txtDevAmtI{*this, "txtDevAmtI"};

    TextBox txtCompoundFees{*this, "txtCompoundFees"};
    TextBox txtOther{*this, "txtOther"};
    TextBox txtGrandTotal{*this, "txtGrandTotal"};

    // Payment
    OptionGroup mode;
    OptionButton OptCash{*this, mode, "OptCash", "Cash"};
    OptionButton OptCheque{*this, mode, "OptCheque", "Pay Order"};
    OptionButton OptDraft{*this, mode, "OptDraft", "Draft"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    Frame frmChequeDetail{*this, "frmChequeDetail", "Bank Detail :"};
    Label lblName{*this, "lblName", "Pay Order No."};
    TextBox txtChqDraftNo{*this, "txtChqDraftNo"};
    TextBox txtBankNm{*this, "txtBankNm"};
    TextBox txtBranchNm{*this, "txtBranchNm"};

    // Foot
    Button cmdPrevious{*this, "cmdPrevious", "Previous"};
    Button cmdNext{*this, "cmdNext", "Next"};
    Button cmdSave{*this, "cmdSave", "Save"};
    Button cmdSaveALL{*this, "cmdSaveALL", "Save Proposal Information"};
    Button cmdPrint{*this, "cmdPrint", "Print Payment Details"};
    Button cmdClose{*this, "cmdClose", "Close"};

private:
    void wireSingleFees();
    void wirePayment();
    void cmdPrint_Click();
    bool refuseSpecialCharacter(TextBox& box, std::string_view boxTitle);
    bool refuseEmpty(TextBox& box, std::string_view text);
    void fillEmptyBoxes();
    void saveFirstList();
    void saveSecondList();
};

/// Shows frmPayDetail with the fee area of the Particulars, whatever area stood there.
void showPayment(Proposal& proposal);

}  // namespace plandesk
