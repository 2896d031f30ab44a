#include "reports/papers/Particulars.h"

namespace plandesk {

using namespace layouts;

namespace {

// Asks the last questions of the page before it again, under other numbers.
Paper paper() {
    return particularsPage(
        "Particulars of Development, page 6",
        {
            questions({lastQuestions(
                {.materials = "30.", .closets = "31.", .water = "32.", .sewer = "33.", .stacking = "34."},
                "Materials to be used in construction with specification")}),
            declaration(),
            signature(),
        });
}

}  // namespace

Report rptAnnexutreA5() {
    return particularsReport("rptAnnexutreA5", paper);
}

}  // namespace plandesk
