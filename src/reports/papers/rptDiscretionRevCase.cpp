#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

// One row for each of the 19 amendments.
constexpr int amendments = 19;
constexpr std::string_view form = "frmDiscretionrevisedCase";
constexpr std::array rows = std::to_array<FeedRow>({
    {"SRNO", 20, FeedRule::RowNumber},
    {"RULE", 200, FeedRule::Trimmed, "lblRule", form},
    {"FLDB", 500, FeedRule::Trimmed, "txtRule", form},
    {"FLDC", 500, FeedRule::Trimmed, "txtRuleC", form},
    {"FLDD", 500, FeedRule::Trimmed, "txtRuleD", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns, .count = amendments};

Paper paper() {
    return {
        .title = "Discretion : Revised Case",
        .header = {{SectionKind::Heading,
                    {line({text("Discretion : Revised Case")}), line({text("%D")}, RowStyle::Right)}}},
        .body = {{
            .kind = SectionKind::Table,
            .rows =
                {
                    {{{text("No")},
                      {text("      Rule")},
                      {text("(B) Details/areas in Revised drawing")},
                      {text("(C) Details/areas in sanctioned drawing")},
                      {text("(D)Architect's Remarks for discretion")}},
                     RowStyle::Head},
                    {{{field("SRNO")}, {field("RULE")}, {field("FLDB")}, {field("FLDC")}, {field("FLDD")}}},
                },
            .widths = {6, 28, 17, 17, 32},
            .repeats = true,
        }},
    };
}

}  // namespace

Report rptDiscretionRevCase() {
    return {
        .name = "rptDiscretionRevCase",
        .feed = &feed,
        .shownBy = ShownBy::Button,
        .window = discretionWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
