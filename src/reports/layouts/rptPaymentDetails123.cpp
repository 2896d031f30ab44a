#include "reports/layouts/Chalan.h"
#include "reports/layouts/Layouts.h"

namespace plandesk {

// The older layout, which nothing shows.
Paper rptPaymentDetails123() {
    return layouts::chalan("rptPaymentDetails123", false);
}

}  // namespace plandesk
