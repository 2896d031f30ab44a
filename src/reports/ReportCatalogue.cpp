#include "reports/ReportCatalogue.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"

namespace plandesk {

// Each stands in a file of its name in papers/.
Report rptAnnexutreA();
Report rptAnnexutreA1();
Report rptAnnexutreA2();
Report rptAnnexutreA3();
Report rptAnnexutreA4();
Report rptAnnexutreA5();
Report rptPaymentDetails();
Report rptPaymentDetails123();
Report rptReciept();
Report rptDocChecklist();
Report rptDiscretionNewCase();
Report rptDiscretionRevCase();
Report rptFormofSupervision();
Report rptNoticeforcommencementofwork();
Report rptformforintimationofcompletionofworkuptoplinthlevel();
Report forbldgcompletion();
Report rptforpartoccupancycertificate();
Report rptTDRfortransferringownership();

std::span<const Report> reportCatalogue() {
    static const std::array catalogue = std::to_array<Report>({
        rptAnnexutreA(),
        rptAnnexutreA1(),
        rptAnnexutreA2(),
        rptAnnexutreA3(),
        rptAnnexutreA4(),
        rptAnnexutreA5(),
        rptPaymentDetails(),
        rptPaymentDetails123(),
        rptReciept(),
        rptDocChecklist(),
        rptDiscretionNewCase(),
        rptDiscretionRevCase(),
        rptFormofSupervision(),
        rptNoticeforcommencementofwork(),
        rptformforintimationofcompletionofworkuptoplinthlevel(),
        forbldgcompletion(),
        rptforpartoccupancycertificate(),
        rptTDRfortransferringownership(),
    });
    return catalogue;
}

namespace {

/// Place of the report in the catalogue; its size when there is none of that name.
std::size_t placeOf(std::string_view name) {
    const auto found = std::ranges::find_if(
        reportCatalogue(), [&](const Report& report) { return equalsIgnoringCase(report.name, name); });
    return static_cast<std::size_t>(found - reportCatalogue().begin());
}

}  // namespace

const Report& findReport(std::string_view name) {
    const std::size_t place = placeOf(name);
    if (place == reportCatalogue().size())
        throw RuntimeError(ErrorNumber::ItemNotFound, "There is no report " + std::string(name));
    return reportCatalogue()[place];
}

bool isReport(std::string_view name) {
    return placeOf(name) < reportCatalogue().size();
}

std::span<const Paper> reportLayouts() {
    static const std::vector<Paper> layouts = [] {
        std::vector<Paper> made;
        for (const Report& report : reportCatalogue())
            made.emplace_back(report.layout()).name = report.name;
        return made;
    }();
    return layouts;
}

const Paper* findLayout(std::string_view report) {
    return isReport(report) ? &reportLayouts()[placeOf(report)] : nullptr;
}

}  // namespace plandesk
