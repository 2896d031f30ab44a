#pragma once

#include <array>
#include <span>
#include <string_view>

#include "document/BlockText.h"
#include "landrecords/ExtractFormKind.h"
#include "proposal/PackedRow.h"

namespace plandesk {

class Proposal;

/// One of the two blocks of extracts: their number, a numbered element for each, a remark.
struct WrittenExtracts {
    std::string_view element;
    std::string_view count;
    std::string_view extract;  ///< numbered
    std::string_view remark;
    const ExtractFormKind& form;
    JoinedRow statics;
    /// What an extract has several of: an element with their number, then a numbered one for each.
    struct Members {
        std::string_view count;
        JoinedRow row;
    };
    std::array<Members, 2> members;
};

/// The 7/12 extracts, then the PRCs.
std::span<const WrittenExtracts> writtenExtracts();

/// The elements of NAOrder; their values are those of frmNaOrder.
std::span<const PackedRow> naOrderRows();

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
