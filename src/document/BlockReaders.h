#pragma once

namespace plandesk {

class Proposal;
class XmlDocument;

// The readers of the blocks behind the sections. Each works on the tables and forms of the proposal and stops at its
// first failure, a RuntimeError: rows read so far stay, the one under way unfinished. 91 without a root or a child that
// must be there, 9 for a missing piece, 13 and 6 for a text that its column cannot take. Nothing tests that the numbers
// in a document agree with what they count.

/// PLOT-REL and PLOT-PRCDETAILS: the plots, and the counts on frmPlotExtractRelation.
void readPlotRelations(Proposal& proposal, const XmlDocument& document);

/// The 7/12 extracts with owners and holders, as many as the plots say, and `remark712`.
void readExtracts712(Proposal& proposal, const XmlDocument& document);

/// The same for the PRCs and `remarkPRC`.
void readExtractsPRC(Proposal& proposal, const XmlDocument& document);

/// The boxes of frmNaOrder.
void readNAOrder(Proposal& proposal, const XmlDocument& document);

/// The ownership rows, the orders and their details, and the controlling document, which is turned on as by the user.
void readULCScrutiny(Proposal& proposal, const XmlDocument& document);

/// DISC-REV and DISC-NEW: the rows of both discretion forms.
void readDiscretion(Proposal& proposal, const XmlDocument& document);

}  // namespace plandesk
