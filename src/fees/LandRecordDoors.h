#pragma once

namespace plandesk {

class Proposal;

/// Opens the form of the land records behind icon 0 to 3 of the checklists: 7/12 extracts, PRCs, NA order, orders under
/// the ULC Act. Extracts and PRCs are refused with a message while none is related to a plot.
void openLandRecord(Proposal& proposal, int icon);

}  // namespace plandesk
