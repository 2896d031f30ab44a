#pragma once

namespace plandesk {

class Proposal;

/// Replaces `annexureBXML` by the block of the questions that are stored under their own names. Touches both forms of
/// the Particulars. An element whose control is hidden or disabled is written with what the control holds.
void buildAnnexureB(Proposal& proposal);

}  // namespace plandesk
