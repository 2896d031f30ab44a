#include "reports/layouts/Chalan.h"

#include <utility>

#include "reports/layouts/Parts.h"

namespace plandesk::layouts {

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

Paper chalan(std::string_view name, bool subdivision) {
    return {
        .name = name,
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

}  // namespace plandesk::layouts
