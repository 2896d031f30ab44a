#include "reports/ReportCatalogue.h"

#include <algorithm>
#include <string>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "reports/Feeds.h"

namespace plandesk {

namespace {

constexpr PaperPlace pageWindow{.left = 0, .top = 0, .width = 15000, .height = 9500};
constexpr PaperPlace receiptWindow{.left = 0, .top = 0, .width = 15000, .height = 8750};
constexpr PaperPlace letterWindow{.left = 0, .top = 600, .width = 15000, .height = 8750};
constexpr PaperPlace discretionWindow{.left = 50, .top = 600, .width = 15000, .height = 8750};

constexpr ReportRow page(std::size_t number, std::string_view procedure = "") {
    return {particularsPages.at(number), &feedParticulars, procedure, ShownBy::Procedure, pageWindow};
}

constexpr std::array catalogue = std::to_array<ReportRow>({
    page(0, "fillParticulars"),
    page(1),
    page(2),
    page(3),
    page(4),
    page(5),
    {"rptPaymentDetails", &feedPayment, "fillPayment", ShownBy::Nobody, letterWindow},
    {"rptPaymentDetails123", &feedPayment, "", ShownBy::Nobody, letterWindow},
    {"rptReciept", &feedHeader, "fillHeader", ShownBy::Button, receiptWindow},
    {"rptDocChecklist", &feedChecklist, "fillChecklist", ShownBy::Procedure, letterWindow},
    {"rptDiscretionNewCase", &feedDiscretionNewCase, "", ShownBy::Button, discretionWindow},
    {"rptDiscretionRevCase", &feedDiscretionRevCase, "", ShownBy::Button, discretionWindow},
    {"rptFormofSupervision", &feedSupervision, "fillSupervision", ShownBy::Button, letterWindow},
    {"rptNoticeforcommencementofwork", &feedCommencement, "fillCommencement", ShownBy::Button, letterWindow},
    {"rptformforintimationofcompletionofworkuptoplinthlevel", &feedPlinthCompletion, "fillPlinthCompletion",
     ShownBy::Button, letterWindow},
    {"forbldgcompletion", &feedBuildingCompletion, "fillBuildingCompletion", ShownBy::Button, letterWindow},
    {"rptforpartoccupancycertificate", &feedPartOccupancy, "fillPartOccupancy", ShownBy::Procedure, letterWindow},
    {"rptTDRfortransferringownership", &feedTDROwnership, "fillTDROwnership", ShownBy::Button, letterWindow},
});

auto placeOf(std::string_view name) {
    return std::ranges::find_if(catalogue, [&](const ReportRow& row) { return equalsIgnoringCase(row.name, name); });
}

}  // namespace

std::span<const ReportRow> reportCatalogue() {
    return catalogue;
}

const ReportRow& findReport(std::string_view name) {
    const auto row = placeOf(name);
    if (row == catalogue.end())
        throw RuntimeError(ErrorNumber::ItemNotFound, "There is no report " + std::string(name));
    return *row;
}

bool isReport(std::string_view name) {
    return placeOf(name) != catalogue.end();
}

}  // namespace plandesk
