// What feeds the payment reports.

#include "reports/Feeds.h"

namespace plandesk {

namespace {

constexpr FeedRow text(std::string_view column, std::string_view box) {
    return {column, 200, FeedRule::Text, box, "frmPayDetail"};
}

constexpr std::array rows = std::to_array<FeedRow>({
    text("AreaDevResi", "txtArea"),
    text("RateDevResi", "txtRate"),
    text("AmtDevResi", "txtTotal"),
    text("AreaDevComm", "txtDevAreaC"),
    text("RateDevComm", "txtDevRateC"),
    text("AmtDevComm", "txtDevAmtC"),
    text("AreaDevInd", "txtDevAreaI"),
    text("RateDevInd", "txtDevRateI"),
    text("AmtDevInd", "txtDevAmtI"),
    text("AreaScuResi", "txtScrutinyRArea"),
    text("RateScuResi", "txtScrutinyRRate"),
    text("AmtScuResi", "txtScrutinyRAmount"),
    text("AreaScuComm", "txtScrutinyCArea"),
    text("RateScuComm", "txtScrutinyCRate"),
    text("AmtScuComm", "txtScrutinyCAmount"),
    text("AreaScuInd", "txtScrutinyIndArea"),
    text("RateScuInd", "txtScrutinyINDRate"),
    text("AmtScuInd", "txtScrutinyINDAmount"),
    text("CompoundFees", "txtCompoundFees"),
    text("Other", "txtOther"),
    text("TotalAmount", "txtGrandTotal"),
    {"PayMode", 200, FeedRule::Fixed, "Cash"},  // whichever mode is chosen
    {"PayDate", 200, FeedRule::Date, "DTPicker1", "frmPayDetail"},
    text("PayOrderNo", "txtChqDraftNo"),
    text("BankName", "txtBankNm"),
    text("BranchName", "txtBranchNm"),
    text("AreaScuResi2", "txtScrutinyRArea2"),
    text("RateScuResi2", "txtScrutinyRRate2"),
    text("AmtScuResi2", "txtScrutinyRAmount2"),
    text("AreaScuComm2", "txtScrutinyCArea2"),
    text("RateScuComm2", "txtScrutinyCRate2"),
    text("AmtScuComm2", "txtScrutinyCAmount2"),
    text("AreaScuInd2", "txtScrutinyIndArea2"),
    text("RateScuInd2", "txtScrutinyINDRate2"),
    text("AmtScuInd2", "txtScrutinyINDAmount2"),
});
constexpr auto columns = columnsOf(rows);

}  // namespace

const Feed feedPayment{.rows = rows, .columns = columns, .table = &Tables::rsReportPayment};

}  // namespace plandesk
