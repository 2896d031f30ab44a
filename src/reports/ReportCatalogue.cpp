#include "reports/ReportCatalogue.h"

#include <array>

namespace plandesk {

namespace {

constexpr std::span<const Report* const> reports;  // none yet

constexpr std::array toCome = std::to_array<std::string_view>({
    "rptAnnexutreA",
    "rptAnnexutreA1",
    "rptAnnexutreA2",
    "rptAnnexutreA3",
    "rptAnnexutreA4",
    "rptAnnexutreA5",
    "rptPaymentDetails",
    "rptPaymentDetails123",
    "rptReciept",
    "rptDocChecklist",
    "rptFormofSupervision",
    "rptNoticeforcommencementofwork",
    "rptformforintimationofcompletionofworkuptoplinthlevel",
    "forbldgcompletion",
    "rptforpartoccupancycertificate",
    "rptTDRfortransferringownership",
    "rptDiscretionNewCase",
    "rptDiscretionRevCase",
});

}  // namespace

std::span<const Report* const> reportCatalogue() {
    return reports;
}

std::span<const std::string_view> reportsToCome() {
    return toCome;
}

}  // namespace plandesk
