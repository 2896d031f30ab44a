// What frmPayDetail looks like.

#include "fees/frmPayDetail.h"

namespace plandesk {

namespace {

constexpr std::string_view feeHeads[] = {" Description", "Total Area ", "Rate", "Amount"};

constexpr LayoutRow scrutinyRows[] = {
    {"", "Total Residential FSI", "txtScrutinyRArea txtScrutinyRRate txtScrutinyRAmount"},
    {"", "Total Commercial FSI", "txtScrutinyCArea txtScrutinyCRate txtScrutinyCAmount"},
    {"", "Total Industrial FSI", "txtScrutinyIndArea txtScrutinyINDRate txtScrutinyINDAmount"},
};

constexpr LayoutRow subdivisionRows[] = {
    {"", "Total area of plot (Residential use)", "txtScrutinyRArea2 txtScrutinyRRate2 txtScrutinyRAmount2"},
    {"", "Total area of plot (Commercial use)", "txtScrutinyCArea2 txtScrutinyCRate2 txtScrutinyCAmount2"},
    {"", "Total area of plot (Industrial use)", "txtScrutinyIndArea2 txtScrutinyINDRate2 txtScrutinyINDAmount2"},
};

constexpr LayoutRow developmentRows[] = {
    {"", "Total Residential FSI", "txtArea txtRate txtTotal"},
    {"", "Total Commercial FSI", "txtDevAreaC txtDevRateC txtDevAmtC"},
    {"", "Total Industrial FSI", "txtDevAreaI txtDevRateI txtDevAmtI"},
};

constexpr LayoutRow singleRows[] = {
    {"", "B . Compound Wall Fees", "txtCompoundFees"},
    {"", "E . Other", "txtOther"},
    {"", "TOTAL AMOUNT :", "txtGrandTotal"},
};

constexpr LayoutRow paymentRows[] = {
    {.controls = "OptCash OptCheque OptDraft", .spoken = "Mode of payment"},
    {"", "Payment Date", "DTPicker1"},
};

constexpr LayoutRow bankRows[] = {
    {"", "Pay Order No.", "txtChqDraftNo", "", "", "lblName"},
    {"", "Bank Name", "txtBankNm"},
    {"", "Branch Name", "txtBranchNm"},
};

constexpr LayoutGroup groups[] = {
    {"A . Scrutiny Fees  ", scrutinyRows, feeHeads},
    {"B . Scrutiny Fees  (Subdivision/Amalgamation)", subdivisionRows, feeHeads},
    {"C . Development Permission Fees", developmentRows, feeHeads},
    {"", singleRows},
    {"", paymentRows},
    {"", bankRows, {}, "frmChequeDetail"},
};

constexpr LayoutPage pages[] = {{groups}};

constexpr Layout sheet{
    .head = "lblAnnextureA lblAnnexureB lblPayment",
    .pages = pages,
    .buttons = "cmdPrevious cmdNext cmdSave cmdSaveALL cmdPrint cmdClose",
};

}  // namespace

const Layout& frmPayDetail::layout() const {
    return sheet;
}

}  // namespace plandesk
