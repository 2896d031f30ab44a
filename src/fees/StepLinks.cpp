#include "fees/StepLinks.h"

#include "fees/frmPayDetail.h"
#include "particulars/particulars.h"

namespace plandesk {

StepLinks::StepLinks(Form& form, Proposal& proposal)
    : lblPayment(form, "lblPayment", "Payment Detail"),
      lblAnnextureA(form, "lblAnnextureA", "Sections I to III"),
      lblAnnexureB(form, "lblAnnexureB", "Sections IV and V") {
    for (Label* link : {&lblPayment, &lblAnnextureA, &lblAnnexureB})
        link->setForeColor(blue);
    lblPayment.click = [&proposal] { showPayment(proposal); };
    lblAnnextureA.click = [&proposal] { showAnnexureFirstPage(proposal); };
    lblAnnexureB.click = [&proposal] { showSectionFourPage(proposal); };
}

}  // namespace plandesk
