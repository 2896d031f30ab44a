#pragma once

#include <string>
#include <string_view>

#include "proposal/Proposal.h"

namespace plandesk {

/// Leads the user to a control: its form to the front, its page turned, in a grid the cell of that row and column
/// current, the control focused; of a land record the extract of the row is chosen first. An act of the user, with the
/// reactions that such acts have. False, and nothing happens, when there is no such control, or when it stands on a
/// page that opens once the first page is complete. `row` counts all rows of the grid's table. `extract`: the extract
/// of an answer about an order, else 0. An order's own form is entered only while its Save writes the order that it was
/// opened for; the list of orders opens it, as for a user, where the extract's order is of that form. Otherwise the
/// list is where the way ends, and it goes on showing what it shows while an order of another extract is open.
bool goTo(Proposal& proposal, std::string_view form, std::string_view control, int row = -1, int column = -1,
          int extract = 0);

/// Where `goTo` refuses since the first page is not complete: the question of it that is to be answered next. Empty
/// where the control's page is open.
std::string whatOpens(const Proposal& proposal, std::string_view form, std::string_view control);

}  // namespace plandesk
