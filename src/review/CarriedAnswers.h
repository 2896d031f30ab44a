#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "proposal/Proposal.h"
#include "review/Questions.h"

namespace plandesk {

/// One answer of a proposal that its document is meant to carry: of a question of a form, or one cell of a table.
struct Answered {
    std::string form;
    std::string control;  ///< key of the control, of the first of a question's options, of the cell's grid or box
    int row = -1;         ///< place of the row in the table, filter or not; -1 for a question
    int column = -1;
    std::string
        rowKey{};  ///< what the row is known by in another proposal: its number, and its place among those of it
    std::string text{};
    int table = -1;  ///< of a cell: place of its table among carriedTables()

    bool isCell() const { return row >= 0; }
    /// What the place of the answer is known by in any proposal.
    using Place = std::tuple<int, std::string_view, std::string_view, std::string_view, int>;
    Place place() const { return {table, form, control, rowKey, column}; }
    bool samePlace(const Answered& other) const { return place() == other.place(); }
    /// Number of the row: of an extract, or of a plot. 0 for a question.
    int number() const;
};

/// Questions of a form that the document carries.
struct CarriedForm {
    std::string_view name;
    std::string_view only{};     ///< keys of these questions, separated by blanks; empty: all of them
    std::string_view without{};  ///< keys of questions that it does not carry
    std::string_view hidden{};   ///< keys of boxes that nobody sees and that are written all the same
    /// Where the form's one answer is found while the form is not loaded.
    std::string Proposal::*unloaded = nullptr;

    bool carries(std::string_view key) const;
};
std::span<const CarriedForm> carriedForms();

/// A table whose cells the document carries, and where they are seen.
struct CarriedTable {
    Tables::Member table;
    std::string_view form;
    std::string_view grid{};  ///< that shows the rows; empty where the boxes of the form show one of them
    std::span<const std::string_view> boxes{};  ///< then: of each column; empty for one that has none
    std::uint32_t without = 0;                  ///< columns, as bits, that nobody types
    std::uint32_t firstIsNone = 0;              ///< columns, as bits, in which "0" is the item that is no choice
    std::uint32_t byPlace = 0;                  ///< columns, as bits, that the reader fills with the row's place
    bool rowsMayBeBlank = false;                ///< a row without any answer is as good as none

    /// Whether the cells of the column are answers.
    bool carries(std::size_t column, std::size_t key) const { return column != key && !(without >> column & 1U); }
    /// Whether the reader gives the column what nobody needs to type.
    bool numbers(std::size_t column) const { return byPlace >> column & 1U; }
    std::string_view controlOf(std::size_t column) const { return boxes.empty() ? grid : boxes[column]; }
    /// The cell as an answer: a list's item that means no choice, and a count or sum of 0, are none.
    std::string text(const Recordset& rows, std::size_t column, const Value& value) const;
    /// Whether a row of the table has no answer and is as good as none for that.
    bool isNone(const Recordset& rows, std::span<const Value> row) const;
};
std::span<const CarriedTable> carriedTables();

/// The column by which rows are matched, the first one of whole numbers, as the filters of the tables are.
std::size_t keyColumnOf(const Recordset& table);

/// What one row of a table is known by in another proposal: its number, and its place among the rows of that number.
struct RowKey {
    std::int32_t number;
    int nth;

    auto operator<=>(const RowKey&) const = default;  // NOLINT(modernize-use-nullptr): misread by the check
    std::string text() const { return std::to_string(number) + "/" + std::to_string(nth); }
};
/// Of every row, in table order.
std::vector<RowKey> rowKeysOf(const Recordset& table);

/// The text of a list that is no choice, "-- Select --" or the like, is no answer.
std::string_view meant(std::string_view text);

/// What stands at one place in one proposal and otherwise in another.
struct Difference {
    Answered first;
    std::string second;
    enum class Row { Both, FirstOnly, SecondOnly } row = Row::Both;  ///< only one of them has the row of the cell
};

/// What the document carries of two proposals, laid side by side: questions of the forms that are loaded in the first
/// one, cells of the tables, rows by their numbers. A row that one side lacks is told once, at the row's first column.
/// Forms come in the order of the save, then tables; of each table the rows that the second alone has come last.
/// `instead`: where forms are taken from that the first one has not loaded.
std::vector<Difference> differencesOf(const Proposal& first, const Proposal& second, const Proposal* instead = nullptr);

/// The words of the question, or the head of the cell's column, as `proposal` shows them.
std::string questionOf(const Proposal& proposal, const Answered& answered);

/// Which cell of its control shows an answer, and under which extract.
struct Spot {
    int row;  ///< of the control's table; -1 for a question
    int column;
    int extract;  ///< of a cell of the land records or orders; else 0
};
Spot spotOf(const Answered& answered);

}  // namespace plandesk
