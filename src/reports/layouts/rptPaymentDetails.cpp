#include "reports/layouts/Chalan.h"
#include "reports/layouts/Layouts.h"

namespace plandesk {

Paper rptPaymentDetails() {
    return layouts::chalan("rptPaymentDetails", true);
}

}  // namespace plandesk
