#include "particulars/StepLinks.h"

#include "particulars/particulars.h"
#include "proposal/Proposal.h"

namespace plandesk {

StepLinks::StepLinks(Form& form, Proposal& proposal, Label StepLinks::*here)
    : lblAnnextureA(form, "lblAnnextureA", "Sections I to III"),
      lblAnnexureB(form, "lblAnnexureB", "Sections IV and V"),
      lblPayment(form, "lblPayment", "Payment Detail") {
    struct Link {
        Label StepLinks::*label;
        std::function<void()> lead;
    };
    const Link links[] = {
        {&StepLinks::lblAnnextureA, [&proposal] { showAnnexureFirstPage(proposal); }},
        {&StepLinks::lblAnnexureB, [&proposal] { showSectionFourPage(proposal); }},
        {&StepLinks::lblPayment, [&proposal] { proposal.commands.open("frmPayDetail"); }},
    };
    for (const Link& link : links) {
        (this->*link.label).setForeColor(blue);
        if (link.label != here)
            (this->*link.label).click = link.lead;
    }
}

}  // namespace plandesk
