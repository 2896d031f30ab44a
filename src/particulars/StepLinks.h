#pragma once

#include "controls/Controls.h"

namespace plandesk {

class Proposal;

/// The links above Sections IV and V, the fee form and the checklists, by which one step of the proposal leads to its
/// siblings.
struct StepLinks {
    /// `here`: the link that stands for the form itself and leads nowhere; null for none.
    StepLinks(Form& form, Proposal& proposal, Label StepLinks::*here = nullptr);

    Label lblAnnextureA;
    Label lblAnnexureB;
    Label lblPayment;
};

}  // namespace plandesk
