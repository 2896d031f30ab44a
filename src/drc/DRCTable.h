#pragma once

#include <span>
#include <string>
#include <string_view>

#include "proposal/Proposal.h"

// The forms of development rights keep what they save in a table of one row and in one list of the document. The
// description of a form's columns is data; what is done with it is the same for all of them.

namespace plandesk {

class Form;
class Recordset;

/// Where a column of the row comes from: a control of the form, a project-wide text, or nowhere, which leaves it null.
///
/// A text box and a list give their trimmed text, a date picker its date. Options with indexes 1 (Yes) and 0 (No) give
/// the yes/no code; with `chosen` set, an option 0 or a check box that is on gives that and `otherwise` else.
struct DRCSource {
    std::string_view control{};
    std::string_view chosen{};
    std::string_view otherwise{};
    std::string Proposal::*text = nullptr;
};

struct DRCTable {
    Tables::Member table;
    std::span<const DRCSource> sources;  ///< one a column, in the order of the table
    std::string Proposal::*fragment;
    std::string_view element;
    std::string_view lastColumn;  ///< the column that no "#" follows
};

/// Creates the table anew with one row of what the form holds now.
Recordset& fillDRCTable(Proposal& proposal, const Form& form, const DRCTable& description);

/// The element with the values of the table's current row as they stand, unescaped, with "#" behind each but that of
/// the last column, which is told by its name in any case. A null is an empty text.
/// RuntimeError 3021 for a table without a row.
std::string developmentRightsFragment(Recordset& table, std::string_view element, std::string_view lastColumn);

/// Replaces the form's fragment by that of its table.
void buildDRCFragment(Proposal& proposal, const DRCTable& description);

}  // namespace plandesk
