#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "proposal/Proposal.h"

namespace plandesk {

/// Number of the extract whose order is being filled in: `ExtNo` of the current row of `rsULCOrder`. RuntimeError 3021
/// without one.
std::int32_t orderExtract(Proposal& proposal);

/// The table with the rows of that extract alone in sight, the first of them current. The filter stays: `filter` is its
/// text up to the number.
Recordset& rowsOfExtract(Proposal& proposal, Tables::Member table, std::int32_t extract,
                         std::string_view filter = "ExtNo = ");

/// The row of that extract afresh: an earlier one is deleted, the new one is current and holds its number alone.
Recordset& freshRow(Proposal& proposal, Tables::Member table, std::int32_t extract);

/// Text of the current row's cell without blanks around it. RuntimeErrors as Recordset::get.
std::string trimmedText(Recordset& row, int column);

}  // namespace plandesk
