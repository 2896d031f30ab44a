#pragma once

namespace plandesk {

class Proposal;

/// Builds the `a712Extract` block from the 7/12 tables and sets `extractOwnerXML`. With no extract visible under the
/// present filter nothing happens, and the block built before stays. Leaves the extracts without a filter and the
/// owners and holders filtered to the last extract.
void buildExtractBlock(Proposal& proposal);

/// The same for the PRC tables: the `PRC` block and `prcOwnerXML`.
void buildPRCBlock(Proposal& proposal);

}  // namespace plandesk
