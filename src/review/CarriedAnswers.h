#pragma once

#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "proposal/Proposal.h"

namespace plandesk {

/// One answer of a proposal that its document is meant to carry: of a question of a form, or one cell of a grid's
/// table.
struct Answered {
    std::string form;
    std::string control;  ///< key of the control, of the first of a question's options, or of the grid
    int row = -1;         ///< place of the row in the table, filter or not; -1 for a question
    int column = -1;
    std::string
        rowKey{};  ///< what the row is known by in another proposal: its number, and its place among those of it
    std::string text;

    bool isCell() const { return row >= 0; }
    /// What the place of the answer is known by in any proposal.
    using Place = std::tuple<std::string_view, std::string_view, std::string_view, int>;
    Place place() const { return {form, control, rowKey, column}; }
    bool samePlace(const Answered& other) const { return place() == other.place(); }
};

/// A table whose cells the document carries, and the grid that shows it.
struct CarriedTable {
    Tables::Member table;
    std::string_view form;
    std::string_view grid;
    int without = -1;  ///< a column that nobody types and that is read from elsewhere; -1 for none
};
std::span<const CarriedTable> carriedTables();

/// Every answer that stands now, forms in the order of the save, then tables; blank ones too. Of forms that are loaded.
std::vector<Answered> carriedAnswers(const Proposal& proposal);

/// The words of the question, or the head of the cell's column, as `proposal` shows them.
std::string questionOf(const Proposal& proposal, const Answered& answered);

/// What stands at one place in one proposal and otherwise in another.
struct Difference {
    Answered first;
    std::string second;
    enum class Row { Both, FirstOnly, SecondOnly } row = Row::Both;  ///< only one of them has the row of the cell
};

/// In the order of `first`; rows that `second` alone has come behind. A row that one side lacks is told once.
std::vector<Difference> differencesOf(const std::vector<Answered>& first, const std::vector<Answered>& second);

}  // namespace plandesk
