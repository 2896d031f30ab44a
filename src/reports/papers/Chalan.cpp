#include "reports/papers/Chalan.h"

#include <utility>

#include "reports/papers/Parts.h"

namespace plandesk {

namespace {

constexpr FeedRow box(std::string_view column, std::string_view control) {
    return {column, 200, FeedRule::Text, control, "frmPayDetail"};
}

constexpr std::array rows = std::to_array<FeedRow>({
    box("AreaDevResi", "txtArea"),
    box("RateDevResi", "txtRate"),
    box("AmtDevResi", "txtTotal"),
    box("AreaDevComm", "txtDevAreaC"),
    box("RateDevComm", "txtDevRateC"),
    box("AmtDevComm", "txtDevAmtC"),
    box("AreaDevInd", "txtDevAreaI"),
    box("RateDevInd", "txtDevRateI"),
    box("AmtDevInd", "txtDevAmtI"),
    box("AreaScuResi", "txtScrutinyRArea"),
    box("RateScuResi", "txtScrutinyRRate"),
    box("AmtScuResi", "txtScrutinyRAmount"),
    box("AreaScuComm", "txtScrutinyCArea"),
    box("RateScuComm", "txtScrutinyCRate"),
    box("AmtScuComm", "txtScrutinyCAmount"),
    box("AreaScuInd", "txtScrutinyIndArea"),
    box("RateScuInd", "txtScrutinyINDRate"),
    box("AmtScuInd", "txtScrutinyINDAmount"),
    box("CompoundFees", "txtCompoundFees"),
    box("Other", "txtOther"),
    box("TotalAmount", "txtGrandTotal"),
    {"PayMode", 200, FeedRule::Fixed, "Cash"},  // whichever mode is chosen
    {"PayDate", 200, FeedRule::Date, "DTPicker1", "frmPayDetail"},
    box("PayOrderNo", "txtChqDraftNo"),
    box("BankName", "txtBankNm"),
    box("BranchName", "txtBranchNm"),
    box("AreaScuResi2", "txtScrutinyRArea2"),
    box("RateScuResi2", "txtScrutinyRRate2"),
    box("AmtScuResi2", "txtScrutinyRAmount2"),
    box("AreaScuComm2", "txtScrutinyCArea2"),
    box("RateScuComm2", "txtScrutinyCRate2"),
    box("AmtScuComm2", "txtScrutinyCAmount2"),
    box("AreaScuInd2", "txtScrutinyIndArea2"),
    box("RateScuInd2", "txtScrutinyINDRate2"),
    box("AmtScuInd2", "txtScrutinyINDAmount2"),
});
constexpr auto columns = columnsOf(rows);

}  // namespace

const Feed feedPayment{.rows = rows, .columns = columns, .table = &Tables::rsReportPayment};

namespace layouts {

namespace {

using Rows = std::vector<PaperRow>;

/// Columns of one use: area, rate, amount.
struct Use {
    std::string_view name;
    std::string_view area;
    std::string_view rate;
    std::string_view amount;
};

/// The letter of a section, its words, and its uses below.
void addSection(Rows& rows, std::string_view letter, std::string_view words, std::initializer_list<Use> uses) {
    rows.push_back(line({text(letter), text(words)}, RowStyle::Band));
    for (const Use& use : uses)
        rows.push_back({{{}, {text(use.name)}, {field(use.area)}, {field(use.rate)}, {field(use.amount)}}});
}

/// A fee that is an amount alone.
PaperRow amount(std::string_view letter, std::string_view words, std::string_view column, RowStyle style) {
    return {{letter.empty() ? PaperCell{} : PaperCell{text(letter)}, {text(words)}, {}, {}, {field(column)}}, style};
}

Rows fees(bool subdivision) {
    Rows rows = {
        {{{}, {text("      Description ")}, {text("Total Area ")}, {text("Rate")}, {text("Amount")}}, RowStyle::Head}};
    addSection(rows, "A.", "Development Permission Fees",
               {{"Residential", "AreaDevResi", "RateDevResi", "AmtDevResi"},
                {"Commercial", "AreaDevComm", "RateDevComm", "AmtDevComm"},
                {"Industrial", "AreaDevInd", "RateDevInd", "AmtDevInd"}});
    addSection(rows, "B.", "Scrutiny Fees  ",
               {{"Residential", "AreaScuResi", "RateScuResi", "AmtScuResi"},
                {"Commercial", "AreaScuComm", "RateScuComm", "AmtScuComm"},
                {"Industrial", "AreaScuInd", "RateScuInd", "AmtScuInd"}});
    if (subdivision)
        addSection(rows, "C.", "Scrutiny Fees  (Subdivision/Amalgamation)",
                   {{"Residential", "AreaScuResi2", "RateScuResi2", "AmtScuResi2"},
                    {"Commercial", "AreaScuComm2", "RateScuComm2", "AmtScuComm2"},
                    {"Industrial", "AreaScuInd2", "RateScuInd2", "AmtScuInd2"}});
    rows.push_back(amount(subdivision ? "D." : "C.", "Compound Fees", "CompoundFees", RowStyle::Plain));
    rows.push_back(amount(subdivision ? "E." : "D.", "Other", "other", RowStyle::Plain));
    rows.push_back(amount("", "TOTAL AMOUNT :", "TotalAmount", RowStyle::Bold));
    return rows;
}

}  // namespace

Paper chalan(bool subdivision) {
    return {
        .title = "Payment Detail",
        .header = {{SectionKind::Heading, {line({text("Payment Detail")}), line({text("%D")}, RowStyle::Right)}}},
        .body =
            {
                {.kind = SectionKind::Table, .rows = fees(subdivision), .widths = {7, 39, 17, 17, 20}, .figures = 3},
                {SectionKind::Pairs,
                 {
                     pair("Mode of Payment ", {field("PayMode")}),
                     pair("Payment Date", {field("PayDate")}),
                 }},
                {SectionKind::Letter, {line({text("Bank Detail :")}, RowStyle::Bold)}},
                {SectionKind::Pairs,
                 {
                     pair("Pay Order No", {field("PayOrderNo")}),
                     pair("Bank Name", {field("BankName")}),
                     pair("Branch Name", {field("BranchName")}),
                 }},
            },
    };
}

}  // namespace layouts
}  // namespace plandesk
