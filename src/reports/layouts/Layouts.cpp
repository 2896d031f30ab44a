#include "reports/layouts/Layouts.h"

#include <algorithm>
#include <vector>

#include "base/Text.h"

namespace plandesk {

std::span<const Paper> reportLayouts() {
    static const std::vector<Paper> layouts = {
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
    };
    return layouts;
}

const Paper* findLayout(std::string_view report) {
    const auto layouts = reportLayouts();
    const auto found =
        std::ranges::find_if(layouts, [&](const Paper& paper) { return equalsIgnoringCase(paper.name, report); });
    return found == layouts.end() ? nullptr : &*found;
}

}  // namespace plandesk
