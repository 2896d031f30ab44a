#pragma once

// The roads by which other forms lead to and from the Particulars of Development.

namespace plandesk {

class Proposal;

/// Shows frmAnnexureA with its first tab and presses its cmdPrevious.
void showAnnexureFirstPage(Proposal& proposal);

/// Shows AnnexureACont with its first tab and paints its links.
void showSectionFourPage(Proposal& proposal);

/// Hides both forms of the Particulars and the two discretion forms, each when it is loaded. Their contents stay.
void hideParticulars(Proposal& proposal);

}  // namespace plandesk
