#pragma once

#include <limits>
#include <optional>
#include <set>
#include <span>
#include <string_view>
#include <vector>

#include "proposal/Value.h"

// Columns of an in-memory table, and the filter and sort expressions over them.

namespace plandesk {

/// One column. Names are exact, blanks at their ends included; `width` is the most characters that a text is meant to
/// have and limits nothing. The name must outlive every table with the column, as a literal does.
struct Column {
    std::string_view name;
    ColumnKind kind = ColumnKind::Text;
    int width = 0;

    static constexpr Column integer(std::string_view name) { return {name, ColumnKind::Integer}; }
    static constexpr Column text(std::string_view name, int width) { return {name, ColumnKind::Text, width}; }
    static constexpr Column date(std::string_view name) { return {name, ColumnKind::Date}; }
    static constexpr Column number(std::string_view name) { return {name, ColumnKind::Double}; }
    static constexpr Column boolean(std::string_view name) { return {name, ColumnKind::Boolean}; }

    bool operator==(const Column&) const = default;
};

/// Place of the column of that name, in any case, from 0. RuntimeError 3265 when there is none.
int columnIndex(std::span<const Column> columns, std::string_view name);

/// What a filter asks of one numeric column. Every chain of comparisons on it comes down to one closed range and the
/// numbers left out of it.
struct ColumnCondition {
    int column = 0;
    double low = -std::numeric_limits<double>::infinity();
    double high = std::numeric_limits<double>::infinity();
    std::set<double> excluded = {};

    /// A null fulfils no condition.
    bool holds(const Value& value) const;
};

/// At most one condition for each column; all must hold. None lets every row through.
using RowFilter = std::vector<ColumnCondition>;

/// Reads comparisons "COLUMN OPERATOR NUMBER" joined by AND, with = < <= > >= <> on integer and double columns. A
/// column is named bare or in [brackets], in any case; blanks between the parts mean nothing, and an expression of
/// blanks alone is no filter. RuntimeError 3265 for an unknown column, 3001 for anything else that cannot be read.
RowFilter parseFilter(std::string_view expression, std::span<const Column> columns);

struct SortOrder {
    int column = 0;
    bool descending = false;

    /// Whether a row of these cells comes before one of those. Nulls are the least.
    bool before(std::span<const Value> a, std::span<const Value> b) const;
};

/// Reads "COLUMN", "COLUMN ASC" or "COLUMN DESC"; blanks alone are no order. Columns and errors as in parseFilter, but
/// of any kind.
std::optional<SortOrder> parseSort(std::string_view expression, std::span<const Column> columns);

}  // namespace plandesk
