#include "reports/Report.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "controls/Answers.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

std::string valueOf(const ReportColumn& column, Proposal& proposal) {
    if (column.value)
        return column.value(proposal);
    if (column.staysEmpty)
        return "";
    const Form* form = proposal.forms.touch(column.form);
    if (!form)
        throw RuntimeError(ErrorNumber::ItemNotFound, "There is no form " + std::string(column.form));
    return answer(*form, column.control);
}

std::string columnFault(const ReportColumn& column, Proposal& proposal) {
    const int feeds = (column.value ? 1 : 0) + (column.control.empty() ? 0 : 1);
    if (feeds == 0)
        return column.staysEmpty ? "" : "nothing feeds it";
    if (feeds > 1 || column.staysEmpty)
        return "it is fed and something else besides";
    if (column.value)
        return "";
    try {
        valueOf(column, proposal);
    } catch (const RuntimeError& error) {
        return error.description;
    }
    return "";
}

std::string itemFault(const ReportItem& item, const Report& report) {
    if (item.text.empty() == item.field.empty())
        return "it is neither a text nor a field, or both";
    const bool bound = item.field.empty() || std::ranges::count(report.columns, item.field, &ReportColumn::name) > 0;
    return bound ? "" : "it has no column";
}

}  // namespace

std::vector<std::string> fillReport(const Report& report, Proposal& proposal) {
    std::vector<std::string> values;
    for (const ReportColumn& column : report.columns)
        values.push_back(valueOf(column, proposal));
    return values;
}

std::vector<std::string> reportFaults(const Report& report, Proposal& proposal) {
    std::vector<std::string> faults;
    const auto tell = [&](std::string_view kind, std::string_view name, const std::string& fault) {
        if (!fault.empty())
            faults.push_back(std::string(report.name) + ", " + std::string(kind) + " " + std::string(name) + ": " +
                             fault);
    };
    for (const ReportColumn& column : report.columns) {
        tell("column", column.name, columnFault(column, proposal));
        tell("column", column.name,
             std::ranges::count(report.columns, column.name, &ReportColumn::name) > 1 ? "it is there twice" : "");
    }
    for (const ReportItem& item : report.items)
        tell("item", item.field.empty() ? item.text : item.field, itemFault(item, report));
    return faults;
}

}  // namespace plandesk
