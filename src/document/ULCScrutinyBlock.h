#pragma once

namespace plandesk {

class Proposal;

/// Sets `ULCScrutinyXML` to the block ULCORDER-SCRUTINY: the ownership rows, the orders and their details of each
/// extract. Leaves its filters set on the tables.
void buildULCScrutinyXML(Proposal& proposal);

}  // namespace plandesk
