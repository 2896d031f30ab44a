#pragma once

#include <array>
#include <span>
#include <string_view>

#include "controls/Paper.h"
#include "reports/Feed.h"

namespace plandesk {

enum class ShownBy {
    Procedure,  ///< its own procedure shows it
    Button,     ///< the print button of its form, after the procedure
    Nobody,     ///< it is seen on paper alone
};

/// One report of the system.
struct ReportRow {
    std::string_view name;
    const Feed* feed;            ///< reports of one feed are given their data together
    std::string_view procedure;  ///< that feeds it, by the system's own name; empty where another report's does
    ShownBy shownBy;
    PaperPlace window;
};

/// The pages of the Particulars of Development, which the navigator turns.
inline constexpr std::array particularsPages = std::to_array<std::string_view>({
    "rptAnnexutreA",
    "rptAnnexutreA1",
    "rptAnnexutreA2",
    "rptAnnexutreA3",
    "rptAnnexutreA4",
    "rptAnnexutreA5",
});

/// Every report, in the order of the layouts.
std::span<const ReportRow> reportCatalogue();

/// The report of that name in any case. RuntimeError 3265 that tells its name when there is none.
const ReportRow& findReport(std::string_view name);
bool isReport(std::string_view name);

}  // namespace plandesk
