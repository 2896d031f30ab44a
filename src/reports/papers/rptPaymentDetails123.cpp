#include "reports/papers/Chalan.h"

namespace plandesk {

// The older layout, which nothing shows.
Report rptPaymentDetails123() {
    return {
        .name = "rptPaymentDetails123",
        .feed = &feedPayment,
        .shownBy = ShownBy::Nobody,
        .window = letterWindow,
        .layout = [] { return layouts::chalan(false); },
    };
}

}  // namespace plandesk
