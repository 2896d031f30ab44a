#pragma once

#include <cstddef>
#include <span>

#include "document/BlockText.h"

namespace plandesk {

class Proposal;

/// The rows of tables that the element of an extract holds, in their order. The plots are numbered.
std::span<const JoinedRow> orderRows();

/// How many pairs of figures, "built^sold", stand behind the row of an order under section 20.
std::size_t schemePairs();

/// Sets `ULCScrutinyXML` to the block ULCORDER-SCRUTINY: the ownership rows, the orders and their details of each
/// extract. Leaves its filters set on the tables.
void buildULCScrutinyXML(Proposal& proposal);

}  // namespace plandesk
