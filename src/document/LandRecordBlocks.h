#pragma once

namespace plandesk {

class Proposal;

/// Builds the `a712Extract` block from the 7/12 tables and sets `extractOwnerXML`. With no extract visible under the
/// present filter nothing happens, and the block built before stays. Leaves the extracts without a filter and the
/// owners and holders filtered to the last extract.
void buildExtractBlock(Proposal& proposal);

/// The same for the PRC tables: the `PRC` block and `prcOwnerXML`.
void buildPRCBlock(Proposal& proposal);

/// Sets `plotRelXML` and `noOfExtract712` from frmPlotExtractRelation and the visible 7/12 plots. RuntimeError 6 or 13
/// for a total or count that is no 16-bit number; the text then ends before the list of plots.
void buildPlotRelation712(Proposal& proposal);

/// The same for the PRC plots: `plotPrcDetailsXML` and `noOfPRC`.
void buildPlotRelationPRC(Proposal& proposal);

/// Sets `naOrderXML` from frmNaOrder. No value is escaped.
void buildNAOrder(Proposal& proposal);

}  // namespace plandesk
