#pragma once

#include <span>
#include <string_view>

#include "controls/Paper.h"

namespace plandesk {

/// The layouts of all reports, in the order of the print list. Made once, at the first call.
std::span<const Paper> reportLayouts();

/// Null when there is no report of that name, in any case.
const Paper* findLayout(std::string_view report);

// One file each.
Paper rptAnnexutreA();
Paper rptAnnexutreA1();
Paper rptAnnexutreA2();
Paper rptAnnexutreA3();
Paper rptAnnexutreA4();
Paper rptAnnexutreA5();
Paper rptPaymentDetails();
Paper rptPaymentDetails123();
Paper rptReciept();
Paper rptDocChecklist();
Paper rptDiscretionNewCase();
Paper rptDiscretionRevCase();
Paper rptFormofSupervision();
Paper rptNoticeforcommencementofwork();
Paper rptformforintimationofcompletionofworkuptoplinthlevel();
Paper forbldgcompletion();
Paper rptforpartoccupancycertificate();
Paper rptTDRfortransferringownership();

}  // namespace plandesk
