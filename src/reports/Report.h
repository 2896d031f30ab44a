#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace plandesk {

class Proposal;

/// One column of the one-row table that feeds a report: the answer of a control as it stands, or what `value` makes of
/// the proposal. One of the two, unless the column stays empty.
struct ReportColumn {
    std::string_view name;
    std::string_view form{};
    std::string_view control{};  ///< as controls/Answers.h knows it
    std::string (*value)(Proposal& proposal) = nullptr;
    bool staysEmpty = false;  ///< nothing feeds it, as the paper wants it
};

/// One item of a report: a fixed text, or a field bound to the column of that name.
struct ReportItem {
    std::string_view text{};
    std::string_view field{};
};

/// A report as data.
struct Report {
    std::string_view name;
    std::span<const ReportColumn> columns;
    std::span<const ReportItem> items;  ///< in reading order
};

/// The values of the columns, from the live controls; touches their forms. RuntimeError 3265 that tells its name for a
/// control that is not there.
std::vector<std::string> fillReport(const Report& report, Proposal& proposal);

/// What is wrong with the report, one sentence for each fault: a column that nothing or two things feed, that is there
/// twice, or whose control is not there; a field without a column; an item that is both a text and a field, or neither.
std::vector<std::string> reportFaults(const Report& report, Proposal& proposal);

}  // namespace plandesk
