#include <array>

#include "document/SectionTables.h"

namespace plandesk {

namespace {

constexpr std::array fees = std::to_array<FieldRow>({
    {0, "AREADEVRESI", FieldRow::whole, "txtArea"},
    {1, "RATEDEVRESI", FieldRow::whole, "txtRate"},
    {2, "AMTDEVRESI", FieldRow::whole, "txtTotal"},
    {3, "AREADEVCOM", FieldRow::whole, "txtDevAreaC"},
    {4, "RATEDEVCOM", FieldRow::whole, "txtDevRateC"},
    {5, "AMTDEVCOM", FieldRow::whole, "txtDevAmtC"},
    {6, "AREADEVIND", FieldRow::whole, "txtDevAreaI"},
    {7, "RATEDEVIND", FieldRow::whole, "txtDevRateI"},
    {8, "AMTDEVIND", FieldRow::whole, "txtDevAmtI"},
    {9, "AREASCRUTINYRESI", FieldRow::whole, "txtScrutinyRArea"},
    {10, "RATESCRUTINYRESI", FieldRow::whole, "txtScrutinyRRate"},
    {11, "AMTSCRUTINYRESI", FieldRow::whole, "txtScrutinyRAmount"},
    {12, "AREASCRUTINYCOM", FieldRow::whole, "txtScrutinyCArea"},
    {13, "RATESCRUTINYCOM", FieldRow::whole, "txtScrutinyCRate"},
    {14, "AMTSCRUTINYCOM", FieldRow::whole, "txtScrutinyCAmount"},
    {15, "AREASCRUTINYIND", FieldRow::whole, "txtScrutinyIndArea"},
    {16, "RATESCRUTINYIND", FieldRow::whole, "txtScrutinyINDRate"},
    {17, "AMTSCRUTINYIND", FieldRow::whole, "txtScrutinyINDAmount"},
    {18, "COMPUNDFEES", FieldRow::whole, "txtCompoundFees"},
    {19, "OTHER", FieldRow::whole, "txtOther"},
    {20, "TOTALAMOUNT", FieldRow::whole, "txtGrandTotal"},
});

constexpr std::array bankDetails = std::to_array<FieldRow>({
    {22, "PAYDATE", FieldRow::whole, "DTPicker1"},
    {23, "DRAFTCHQNO", FieldRow::whole, "txtChqDraftNo"},
    {24, "BANKNAME", FieldRow::whole, "txtBankNm"},
    {25, "BRANCHNM", FieldRow::whole, "txtBranchNm"},
});

constexpr std::array secondScrutiny = std::to_array<FieldRow>({
    {26, "AREA-SCRUT-RESI-2", FieldRow::whole, "txtScrutinyRArea2"},
    {27, "RATE-SCRUT-RESI-2", FieldRow::whole, "txtScrutinyRRate2"},
    {28, "AMOUNT-SCRUT-RESI-2", FieldRow::whole, "txtScrutinyRAmount2"},
    {29, "AREA-SCRUT-COMM-2", FieldRow::whole, "txtScrutinyCArea2"},
    {30, "RATE-SCRUT-COMM-2", FieldRow::whole, "txtScrutinyCRate2"},
    {31, "AMOUNT-SCRUT-COMM-2", FieldRow::whole, "txtScrutinyCAmount2"},
    {32, "AREA-SCRUT-IND-2", FieldRow::whole, "txtScrutinyIndArea2"},
    {33, "RATE-SCRUT-IND-2", FieldRow::whole, "txtScrutinyINDRate2"},
    {34, "AMOUNT-SCRUT-IND-2", FieldRow::whole, "txtScrutinyINDAmount2"},
});

constexpr FeeTables tables = {"frmPayDetail", fees, 21, bankDetails, secondScrutiny};

}  // namespace

const FeeTables& feeTables() {
    return tables;
}

}  // namespace plandesk
