// What feeds the reports of the discretion cases.

#include "reports/Feeds.h"

namespace plandesk {

namespace {

constexpr std::string_view newCaseForm = "frmDiscretionNewCase";
constexpr std::array newCaseRows = std::to_array<FeedRow>({
    {"FLD1", 200, FeedRule::Trimmed, "txtRule(0)", newCaseForm},
    {"FLD2", 200, FeedRule::Trimmed, "txtRule(1)", newCaseForm},
    {"FLD3", 200, FeedRule::Trimmed, "txtRule(2)", newCaseForm},
    {"FLD4", 200, FeedRule::Trimmed, "txtRule(3)", newCaseForm},
    {"FLD5", 200, FeedRule::Trimmed, "txtRule(4)", newCaseForm},
    {"FLD6", 200, FeedRule::Trimmed, "txtRule(5)", newCaseForm},
    {"FLD7", 200, FeedRule::Trimmed, "txtRule(6)", newCaseForm},
    {"FLD8", 200, FeedRule::Trimmed, "txtRule(7)", newCaseForm},
    {"FLD9", 200, FeedRule::Trimmed, "txtRule(8)", newCaseForm},
    {"FLD10", 200, FeedRule::Trimmed, "txtRule(9)", newCaseForm},
    {"FLD11", 200, FeedRule::Trimmed, "txtRule(10)", newCaseForm},
    {"FLD12", 200, FeedRule::Trimmed, "txtRule(11)", newCaseForm},
    {"FLD13", 200, FeedRule::Trimmed, "txtRule(12)", newCaseForm},
    {"FLD14", 200, FeedRule::Trimmed, "txtRule(13)", newCaseForm},
    {"FLD15", 200, FeedRule::Trimmed, "txtRule(14)", newCaseForm},
});
constexpr auto newCaseColumns = columnsOf(newCaseRows);

// One row for each of the 19 amendments.
constexpr int amendments = 19;
constexpr std::string_view revisedForm = "frmDiscretionrevisedCase";
constexpr std::array revisedRows = std::to_array<FeedRow>({
    {"SRNO", 20, FeedRule::RowNumber},
    {"RULE", 200, FeedRule::Trimmed, "lblRule", revisedForm},
    {"FLDB", 500, FeedRule::Trimmed, "txtRule", revisedForm},
    {"FLDC", 500, FeedRule::Trimmed, "txtRuleC", revisedForm},
    {"FLDD", 500, FeedRule::Trimmed, "txtRuleD", revisedForm},
});
constexpr auto revisedColumns = columnsOf(revisedRows);

}  // namespace

const Feed feedDiscretionNewCase{.rows = newCaseRows, .columns = newCaseColumns};
const Feed feedDiscretionRevCase{.rows = revisedRows, .columns = revisedColumns, .count = amendments};

}  // namespace plandesk
