#pragma once

namespace plandesk {

class Proposal;

/// Brings `rsOwnership` up to the land records: one row for each 7/12 extract with its owners' names and its area, then
/// for each PRC, numbered past the 7/12 extracts. Rows that stand there already keep their `DocStatus`. Leaves the
/// owner tables filtered to the last extract.
void buildOwnership(Proposal& proposal);

}  // namespace plandesk
