#pragma once

#include <array>
#include <span>
#include <string_view>

#include "reports/Report.h"

namespace plandesk {

/// The pages of the Particulars of Development, which the navigator turns.
inline constexpr std::array particularsPages = std::to_array<std::string_view>({
    "rptAnnexutreA",
    "rptAnnexutreA1",
    "rptAnnexutreA2",
    "rptAnnexutreA3",
    "rptAnnexutreA4",
    "rptAnnexutreA5",
});

/// Every report, in the order of the print list.
std::span<const Report> reportCatalogue();

/// The report of that name in any case. RuntimeError 3265 that tells its name when there is none.
const Report& findReport(std::string_view name);
bool isReport(std::string_view name);

/// The layouts of all reports, in the order of the catalogue, each under its report's name. Made once, at the first
/// call.
std::span<const Paper> reportLayouts();

/// Null when there is no report of that name, in any case.
const Paper* findLayout(std::string_view report);

}  // namespace plandesk
