#pragma once

#include <string>
#include <string_view>

#include "proposal/Proposal.h"

namespace plandesk {

/// Leads the user to a control: its form to the front, its page turned, in a grid the cell of that row and column
/// current, the control focused; of a land record the extract of the row is chosen first. An act of the user, with the
/// reactions that such acts have. False, and nothing happens, when there is no such control, or when it stands on a
/// page that opens once the first page is complete. `row` counts all rows of the grid's table. `extract`: the extract
/// of an answer about an order, else 0; the order's own form is opened from the list of orders, as a user does, and
/// where the order is another one the list is where the way ends.
bool goTo(Proposal& proposal, std::string_view form, std::string_view control, int row = -1, int column = -1,
          int extract = 0);

/// Where `goTo` refuses since the first page is not complete: the question of it that is to be answered next. Empty
/// where the control's page is open.
std::string whatOpens(const Proposal& proposal, std::string_view form, std::string_view control);

}  // namespace plandesk
