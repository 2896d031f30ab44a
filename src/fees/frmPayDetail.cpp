#include "fees/frmPayDetail.h"

#include <array>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "particulars/frmAnnexureA.h"

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

// The fee rows in the order in which the document lists them: those whose values open the first list, and those that
// make up the second.
constexpr std::array firstListRows = std::to_array<FeeRow>({
    {&frmPayDetail::txtArea, &frmPayDetail::txtRate, &frmPayDetail::txtTotal, RateCounts::WhenLeft},
    {&frmPayDetail::txtDevAreaC, &frmPayDetail::txtDevRateC, &frmPayDetail::txtDevAmtC},
    {&frmPayDetail::txtDevAreaI, &frmPayDetail::txtDevRateI, &frmPayDetail::txtDevAmtI},
    {&frmPayDetail::txtScrutinyRArea, &frmPayDetail::txtScrutinyRRate, &frmPayDetail::txtScrutinyRAmount},
    {&frmPayDetail::txtScrutinyCArea, &frmPayDetail::txtScrutinyCRate, &frmPayDetail::txtScrutinyCAmount},
    {&frmPayDetail::txtScrutinyIndArea, &frmPayDetail::txtScrutinyINDRate, &frmPayDetail::txtScrutinyINDAmount},
});
constexpr std::array secondListRows = std::to_array<FeeRow>({
    {&frmPayDetail::txtScrutinyRArea2, &frmPayDetail::txtScrutinyRRate2, &frmPayDetail::txtScrutinyRAmount2},
    {&frmPayDetail::txtScrutinyCArea2, &frmPayDetail::txtScrutinyCRate2, &frmPayDetail::txtScrutinyCAmount2},
    {&frmPayDetail::txtScrutinyIndArea2, &frmPayDetail::txtScrutinyINDRate2, &frmPayDetail::txtScrutinyINDAmount2},
});

// The sum is taken in two steps, in this order.
constexpr std::array<Box, 8> firstSum = {&frmPayDetail::txtCompoundFees,      &frmPayDetail::txtOther,
                                         &frmPayDetail::txtScrutinyCAmount,   &frmPayDetail::txtScrutinyRAmount,
                                         &frmPayDetail::txtScrutinyINDAmount, &frmPayDetail::txtDevAmtI,
                                         &frmPayDetail::txtDevAmtC,           &frmPayDetail::txtTotal};
constexpr std::array<Box, 3> secondSum = {&frmPayDetail::txtScrutinyCAmount2, &frmPayDetail::txtScrutinyINDAmount2,
                                          &frmPayDetail::txtScrutinyRAmount2};

constexpr std::string_view separator = "$$";

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
    for (const FeeRow& row : firstListRows)
        wireFeeRow(*this, row);
    for (const FeeRow& row : secondListRows)
        wireFeeRow(*this, row);
    wireSingleFees();
    wirePayment();
    cmdSave.click = [this] { SaveData(); };
    cmdSaveALL.click = [this] { this->proposal.commands.saveProposal(); };
    cmdPrint.click = [this] { cmdPrint_Click(); };
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
        screen().message(noSpecialCharacter, boxTitle);
        box.setFocus();
    }
    return refused;
}

bool frmPayDetail::refuseEmpty(TextBox& box, std::string_view text) {
    const bool refused = box.text().empty();
    if (refused) {
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

void frmPayDetail::SaveData() {
    fillEmptyBoxes();
    if (!validate())
        return;
    saveFirstList();
    saveSecondList();
}

void frmPayDetail::fillEmptyBoxes() {
    // The bank and number boxes too: a pay order without a bank name is saved with bank "0.00".
    forEach<TextBox>([](TextBox& box) {
        if (trim(box.text()).empty())
            box.setText("0.00");
    });
}

void frmPayDetail::saveFirstList() {
    std::vector<std::string> pieces;
    for (const FeeRow& row : firstListRows)
        for (const Box box : {row.area, row.rate, row.amount})
            pieces.push_back((this->*box).text());
    for (const TextBox* box : {&txtCompoundFees, &txtOther, &txtGrandTotal})
        pieces.push_back(box->text());
    // A draft has no mode, not even an empty one: the pieces behind it slide one place forward.
    if (OptCash.value())
        pieces.emplace_back("CASH");
    else if (OptCheque.value())
        pieces.emplace_back("PAYORDER");
    pieces.push_back(DTPicker1.date().text());
    for (const TextBox* box : {&txtChqDraftNo, &txtBankNm, &txtBranchNm})
        pieces.emplace_back(trim(box->text()));
    proposal.forms.get<frmAnnexureA>().txtPayDetail.setText(join(pieces, separator));
}

void frmPayDetail::saveSecondList() {
    // Never emptied, not even for a new proposal, and the document reads its first nine values: those of the first save
    // stand for good, and later ones need not be kept.
    if (!proposal.secondScrutinyFees.empty())
        return;
    for (const FeeRow& row : secondListRows)
        for (const Box box : {row.area, row.rate, row.amount})
            proposal.secondScrutinyFees.append(separator).append((this->*box).text());
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
