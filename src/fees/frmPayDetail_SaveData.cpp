// How the payment is packed for the document.

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "fees/PackedFees.h"
#include "fees/frmPayDetail.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

constexpr std::string_view separator = "$$";

std::string mode(const Form& form, std::string_view /*controls*/) {
    const auto& payment = dynamic_cast<const frmPayDetail&>(form);
    return payment.OptCash.value() ? "CASH" : payment.OptCheque.value() ? "PAYORDER" : "";
}

constexpr std::array payment = std::to_array<PackedRow>({
    {"AREADEVRESI", "txtArea", asTyped},
    {"RATEDEVRESI", "txtRate", asTyped},
    {"AMTDEVRESI", "txtTotal", asTyped},
    {"AREADEVCOM", "txtDevAreaC", asTyped},
    {"RATEDEVCOM", "txtDevRateC", asTyped},
    {"AMTDEVCOM", "txtDevAmtC", asTyped},
    {"AREADEVIND", "txtDevAreaI", asTyped},
    {"RATEDEVIND", "txtDevRateI", asTyped},
    {"AMTDEVIND", "txtDevAmtI", asTyped},
    {"AREASCRUTINYRESI", "txtScrutinyRArea", asTyped},
    {"RATESCRUTINYRESI", "txtScrutinyRRate", asTyped},
    {"AMTSCRUTINYRESI", "txtScrutinyRAmount", asTyped},
    {"AREASCRUTINYCOM", "txtScrutinyCArea", asTyped},
    {"RATESCRUTINYCOM", "txtScrutinyCRate", asTyped},
    {"AMTSCRUTINYCOM", "txtScrutinyCAmount", asTyped},
    {"AREASCRUTINYIND", "txtScrutinyIndArea", asTyped},
    {"RATESCRUTINYIND", "txtScrutinyINDRate", asTyped},
    {"AMTSCRUTINYIND", "txtScrutinyINDAmount", asTyped},
    {"COMPUNDFEES", "txtCompoundFees", asTyped},
    {"OTHER", "txtOther", asTyped},
    {"TOTALAMOUNT", "txtGrandTotal", asTyped},
    {"PAYMODE", "OptCash OptCheque OptDraft", mode},
    {"PAYDATE", "DTPicker1"},
    {"DRAFTCHQNO", "txtChqDraftNo"},
    {"BANKNAME", "txtBankNm"},
    {"BRANCHNM", "txtBranchNm"},
});

constexpr std::array secondScrutiny = std::to_array<PackedRow>({
    {"AREA-SCRUT-RESI-2", "txtScrutinyRArea2", asTyped},
    {"RATE-SCRUT-RESI-2", "txtScrutinyRRate2", asTyped},
    {"AMOUNT-SCRUT-RESI-2", "txtScrutinyRAmount2", asTyped},
    {"AREA-SCRUT-COMM-2", "txtScrutinyCArea2", asTyped},
    {"RATE-SCRUT-COMM-2", "txtScrutinyCRate2", asTyped},
    {"AMOUNT-SCRUT-COMM-2", "txtScrutinyCAmount2", asTyped},
    {"AREA-SCRUT-IND-2", "txtScrutinyIndArea2", asTyped},
    {"RATE-SCRUT-IND-2", "txtScrutinyINDRate2", asTyped},
    {"AMOUNT-SCRUT-IND-2", "txtScrutinyINDAmount2", asTyped},
});

}  // namespace

constexpr std::span<const PackedRow> paymentRows = payment;
constexpr std::size_t paymentMode =
    static_cast<std::size_t>(std::ranges::find(payment, "PAYMODE", &PackedRow::element) - payment.begin());
constexpr std::span<const PackedRow> secondScrutinyRows = secondScrutiny;

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
    std::string text;
    for (const PackedRow& row : paymentRows) {
        const std::string value = packedValue(*this, row);
        // A draft has no mode, not even an empty one: the values behind it slide one place forward.
        if (&row == &paymentRows[paymentMode] && value.empty())
            continue;
        text.append(&row == &paymentRows.front() ? "" : separator).append(value);
    }
    proposal.forms.get<frmAnnexureA>().txtPayDetail.setText(text);
}

void frmPayDetail::saveSecondList() {
    // Never emptied, not even for a new proposal, and the document reads its first nine values: those of the first save
    // stand for good, and later ones need not be kept.
    if (!proposal.secondScrutinyFees.empty())
        return;
    for (const PackedRow& row : secondScrutinyRows)
        proposal.secondScrutinyFees.append(separator).append(packedValue(*this, row));
}

}  // namespace plandesk
