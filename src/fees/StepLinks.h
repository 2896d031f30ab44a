#pragma once

#include "controls/Controls.h"

namespace plandesk {

class Proposal;

/// The links above the fee form and the checklists, by which one step of the proposal leads to its siblings.
struct StepLinks {
    StepLinks(Form& form, Proposal& proposal);

    Label lblPayment;
    Label lblAnnextureA;
    Label lblAnnexureB;
};

}  // namespace plandesk
