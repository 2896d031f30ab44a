#include "reports/papers/Chalan.h"

namespace plandesk {

Report rptPaymentDetails() {
    return {
        .name = "rptPaymentDetails",
        .feed = &feedPayment,
        .procedure = "fillPayment",
        .shownBy = ShownBy::Nobody,
        .window = letterWindow,
        .layout = [] { return layouts::chalan(true); },
    };
}

}  // namespace plandesk
