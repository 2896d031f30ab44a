#include "reports/layouts/Layouts.h"
#include "reports/layouts/Particulars.h"

namespace plandesk {

using namespace layouts;

// Asks the last questions of the page before it again, under other numbers.
Paper rptAnnexutreA5() {
    return particularsPage(
        "rptAnnexutreA5", "Particulars of Development, page 6",
        {
            questions({lastQuestions(
                {.materials = "30.", .closets = "31.", .water = "32.", .sewer = "33.", .stacking = "34."},
                "Materials to be used in construction with specification")}),
            declaration(),
            signature(),
        });
}

}  // namespace plandesk
