#include "fees/frmPayDetail.h"

#include <array>
#include <initializer_list>
#include <span>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Meaning.h"

namespace plandesk {

namespace {

using Box = TextBox frmPayDetail::*;

/// When a change of the rate works the amount out anew.
enum class RateCounts { AtOnce, WhenLeft };

struct FeeRow {
    Box area;
    Box rate;
    Box amount;
    RateCounts rateCounts = RateCounts::AtOnce;
};

constexpr std::array feeRows = std::to_array<FeeRow>({
    {&frmPayDetail::txtArea, &frmPayDetail::txtRate, &frmPayDetail::txtTotal, RateCounts::WhenLeft},
    {&frmPayDetail::txtDevAreaC, &frmPayDetail::txtDevRateC, &frmPayDetail::txtDevAmtC},
    {&frmPayDetail::txtDevAreaI, &frmPayDetail::txtDevRateI, &frmPayDetail::txtDevAmtI},
    {&frmPayDetail::txtScrutinyRArea, &frmPayDetail::txtScrutinyRRate, &frmPayDetail::txtScrutinyRAmount},
    {&frmPayDetail::txtScrutinyCArea, &frmPayDetail::txtScrutinyCRate, &frmPayDetail::txtScrutinyCAmount},
    {&frmPayDetail::txtScrutinyIndArea, &frmPayDetail::txtScrutinyINDRate, &frmPayDetail::txtScrutinyINDAmount},
    {&frmPayDetail::txtScrutinyRArea2, &frmPayDetail::txtScrutinyRRate2, &frmPayDetail::txtScrutinyRAmount2},
    {&frmPayDetail::txtScrutinyCArea2, &frmPayDetail::txtScrutinyCRate2, &frmPayDetail::txtScrutinyCAmount2},
    {&frmPayDetail::txtScrutinyIndArea2, &frmPayDetail::txtScrutinyINDRate2, &frmPayDetail::txtScrutinyINDAmount2},
});

// The sum is taken in two steps, in this order.
constexpr std::array firstSum =
    std::to_array<Box>({&frmPayDetail::txtCompoundFees, &frmPayDetail::txtOther, &frmPayDetail::txtScrutinyCAmount,
                        &frmPayDetail::txtScrutinyRAmount, &frmPayDetail::txtScrutinyINDAmount,
                        &frmPayDetail::txtDevAmtI, &frmPayDetail::txtDevAmtC, &frmPayDetail::txtTotal});
constexpr std::array secondSum = std::to_array<Box>(
    {&frmPayDetail::txtScrutinyCAmount2, &frmPayDetail::txtScrutinyINDAmount2, &frmPayDetail::txtScrutinyRAmount2});

void formatMoney(TextBox& box) {
    box.setText(formatAmount(box.text()));
}

void wireFeeRow(frmPayDetail& form, const FeeRow& row) {
    TextBox& area = form.*row.area;
    TextBox& rate = form.*row.rate;
    TextBox& amount = form.*row.amount;
    for (TextBox* box : {&area, &rate, &amount}) {
        box->keyPress = keyFilterDecimal;
        box->rightAligned = true;
    }
    const auto multiply = [&] { checkRateBox(rate, area, amount, true); };
    area.change = [&] { checkRateBox(area, rate, amount, true); };
    area.lostFocus = [&] { formatMoney(area); };
    amount.change = [&form, &amount] {
        form.calcTotal();
        formatMoney(amount);
    };
    switch (row.rateCounts) {
    case RateCounts::AtOnce:
        rate.change = multiply;
        rate.lostFocus = [&] { formatMoney(rate); };
        break;
    case RateCounts::WhenLeft:
        rate.lostFocus = [&rate, multiply] {
            formatMoney(rate);
            multiply();
        };
        amount.lostFocus = [&] { formatMoney(amount); };
        break;
    }
}

std::string sumText(const frmPayDetail& form, double start, std::span<const Box> boxes) {
    double sum = start;
    for (const Box box : boxes)
        sum += leadingNumber((form.*box).text());
    return numberText(sum);
}

}  // namespace

frmPayDetail::frmPayDetail(Proposal& proposal)
    : DataForm(proposal, formName, "Payment Detail"), links(*this, proposal, &StepLinks::lblPayment) {
    for (const FeeRow& row : feeRows)
        wireFeeRow(*this, row);
    wireSingleFees();
    wirePayment();
    cmdSave.click = [this] { SaveData(); };
    cmdSaveALL.click = [this] { this->proposal.commands.saveProposal(); };
    cmdPrint.click = [this] { cmdPrint_Click(); };
    cmdSave.toolTip = keepsAnswersTip;
    cmdSaveALL.toolTip = savesAllTip;
    cmdPrint.toolTip = "Prepares the chalan; the list of papers prints it: Ctrl+P, Chalan Payment";
    cmdClose.toolTip = closesProgramTip;
    cmdClose.click = [this] { closeAllForms(this->proposal); };
    procedure("SaveData", [this] { SaveData(); });
    procedure("validate", [this] { validate(); });
    procedure("calcTotal", [this] { calcTotal(); });
}

void frmPayDetail::wireSingleFees() {
    txtGrandTotal.rightAligned = true;
    for (TextBox* box : {&txtCompoundFees, &txtOther}) {
        box->keyPress = keyFilterDecimal;
        box->rightAligned = true;
        box->change = [this, box] {
            checkRateBox(*box, *box, *box, false);
            calcTotal();
        };
        box->lostFocus = [box] { formatMoney(*box); };
    }
}

void frmPayDetail::wirePayment() {
    OptCash.click = [this] { frmChequeDetail.setVisible(false); };
    const auto askDetails = [this](std::string_view nameOfNumber) {
        frmChequeDetail.setVisible(true);
        lblName.setCaption(nameOfNumber);
    };
    OptCheque.click = [askDetails] { askDetails("Pay Order No."); };
    OptDraft.click = [askDetails] { askDetails("Draft No."); };
}

void frmPayDetail::load() {
    OptCash.setValue(true);
    setAllDatesToToday(*this);
    cmdNext.setEnabled(false);
    cmdPrevious.setEnabled(false);
    setFormColors(*this, proposal);
    showPaymentColors();
}

void frmPayDetail::showPaymentColors() {
    links.lblAnnextureA.setForeColor(blue);
    links.lblAnnexureB.setForeColor(blue);
    links.lblPayment.setForeColor(red);
    txtArea.setText(std::to_string(proposal.feeArea));
}

void frmPayDetail::calcTotal() {
    txtGrandTotal.setText(sumText(*this, 0, firstSum));
    txtGrandTotal.setText(sumText(*this, leadingNumber(txtGrandTotal.text()), secondSum));
    formatMoney(txtGrandTotal);
}

bool frmPayDetail::refuseSpecialCharacter(TextBox& box, std::string_view boxTitle) {
    const bool refused = chkString(box.text(), "amp") == -1;
    if (refused) {
        const Meaning meant(screen(), box);
        screen().message(noSpecialCharacter, boxTitle);
        box.setFocus();
    }
    return refused;
}

bool frmPayDetail::refuseEmpty(TextBox& box, std::string_view text) {
    const bool refused = box.text().empty();
    if (refused) {
        const Meaning meant(screen(), box);
        screen().message(text, "");
        box.setFocus();
    }
    return refused;
}

bool frmPayDetail::validate() {
    if (refuseSpecialCharacter(txtRate, "Payment Details")) {
        txtRate.setText("");
        return false;
    }
    if (OptCash.value())
        return true;
    if (refuseSpecialCharacter(txtChqDraftNo, "Payment Details")) {
        txtChqDraftNo.setText("");
        return false;
    }
    return !refuseEmpty(txtChqDraftNo, OptCheque.value() ? "Enter Cheque No" : "Enter Draft No") &&
           !refuseSpecialCharacter(txtBankNm, "Proposal Details") && !refuseEmpty(txtBankNm, "Enter Bank Name") &&
           !refuseSpecialCharacter(txtBranchNm, "Proposal Details") && !refuseEmpty(txtBranchNm, "Enter Branch Name");
}

void frmPayDetail::cmdPrint_Click() {
    proposal.commands.print("rptPaymentDetails");
    proposal.noReportReturn = true;
}

void showPayment(Proposal& proposal) {
    auto& form = proposal.forms.get<frmPayDetail>();
    form.showPaymentColors();
    form.show();
}

}  // namespace plandesk
