#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <memory_resource>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "proposal/RecordView.h"
#include "proposal/RowFilter.h"
#include "proposal/Value.h"

namespace plandesk {

/// A place to come back to: a row, or behind the last row when no row was current. Good for one table only.
class Bookmark {
    friend class Recordset;
    std::uint64_t row = 0;
};

/// An in-memory table: ordered rows of named, typed columns with a current row, a filter and a sort. A variable that is
/// a reference to a table holds it by std::shared_ptr; only `copy` makes a second table of one.
///
/// *Visible rows.* The rows that the filter lets through, in sort order (table order among equals, nulls first), are
/// listed when the filter or the sort is set, and the first of them becomes current. A row stays in the list, at its
/// place, whatever is done to its values, until the filter or the sort is set again; so a walk that changes the very
/// column it is filtered or sorted by comes to each row exactly once. A deleted row leaves the list at once, an added
/// one goes behind its end.
///
/// *Current row.* After a deletion no row is current, but the place stays: the next move goes to the row that came
/// behind. A row that is added while the filter hides it is current but not visible. Update, and every move, looks at
/// it again: if the filter lets it through by then it joins the list, otherwise the first move leaves it.
///
/// The first integer column (`ExtNo` or `SrNo` in this system) is the key: filtering on it costs the rows found, not
/// the whole table.
class Recordset {
public:
    /// An empty table. The columns must outlive it.
    explicit Recordset(std::span<const Column> columns);
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    /// A second table with the same rows, filter, sort, visible rows and current row. Both share the rows until one of
    /// them changes a row, and that one then pays for rows of its own. The two may live in two threads.
    std::shared_ptr<Recordset> copy() const;

    std::span<const Column> columns() const { return columnList; }

    // Columns are given by place, from 0, or by name in any case. RuntimeError 3265 for one that the table does not
    // have, 3021 where there is no current row.
    const Value& get(int column);
    const Value& get(std::string_view column);
    /// All cells of the current row, good until the table changes. RuntimeError 3021 where there is none.
    std::span<const Value> row() { return currentRow().values; }
    /// Takes effect at once. Converts as toKind does, with its errors; the cell keeps its value then.
    void set(int column, Value value);
    void set(std::string_view column, Value value);
    /// The same in the row at that place among all rows, from 0, whatever the filter; the current row stays. Nothing
    /// happens where there is no such row.
    void replace(int row, int column, Value value);

    /// Appends a row with every cell null and makes it the current one.
    void addNew();
    /// Ends the changes to the current row: an added row that the filter lets through becomes visible.
    /// RuntimeError 3021 where there is no current row.
    void update();
    /// Deletes the current row. RuntimeError 3021 where there is none.
    void deleteRow();
    /// Deletes every visible row.
    void deleteVisible();

    /// Does nothing on a table with no visible row.
    void moveFirst();
    /// RuntimeError 3021 behind the last row.
    void moveNext();
    /// Behind the last row. Both tests are true while no row is visible; there is no moving before the first row
    /// otherwise.
    bool eof();
    bool bof() { return recordCount() == 0; }

    /// Number of the visible rows.
    int recordCount();
    /// Place of the current row among the visible ones, from 1; 0 when no visible row is current.
    int absolutePosition();
    /// RuntimeError 3021 outside 1 to recordCount(); the current row stays then.
    void setAbsolutePosition(int position);
    Bookmark bookmark();
    /// RuntimeError 3021 when the row is deleted or not visible; the current row stays then.
    void setBookmark(Bookmark bookmark);

    /// Expressions as parseFilter and parseSort read them; an empty one means all rows, or table order. One that cannot
    /// be read changes nothing.
    void setFilter(std::string_view expression);
    void setSort(std::string_view expression);
    /// As setFilter with "KEY = number".
    void filterByKey(std::int32_t number);
    const std::string& filter() const { return filterText; }
    const std::string& sort() const { return sortText; }

    /// Cell of the visible row at that place, from 1, without making it current. RuntimeError 3021 outside 1 to
    /// recordCount(), 3265 for an unknown column.
    const Value& valueAt(int position, int column);
    /// Number of all rows, whatever the filter.
    int rowCount() const { return static_cast<int>(stored->rows.size()); }
    /// All rows in table order, whatever filter and sort. Good until the table changes.
    std::vector<std::span<const Value>> allRows() const;
    /// The rows that filterByKey would show, in that order, while the filter and the current row stay as they are. Good
    /// until the table changes.
    std::vector<std::span<const Value>> rowsOfKey(std::int32_t number) const;

    /// Grows with every change to rows, values, filter or sort; a view that remembers it knows when to look again. The
    /// move of the current row alone does not count.
    std::uint64_t changes() const { return changeCount; }

private:
    struct KeyEntry {
        std::int32_t key;
        TableRow* row;
    };
    struct KeyOrder {
        using is_transparent = void;
        bool operator()(const KeyEntry& a, const KeyEntry& b) const;
        bool operator()(const KeyEntry& a, std::int32_t key) const { return a.key < key; }
        bool operator()(std::int32_t key, const KeyEntry& b) const { return key < b.key; }
    };
    // Rows come by thousands and go all at once, with the table: one piece of memory for many of them.
    struct Rows {
        std::pmr::unsynchronized_pool_resource memory;
        std::pmr::map<std::uint64_t, TableRow> rows{&memory};
        std::pmr::set<KeyEntry, KeyOrder> keys{&memory};  // rows whose key is not null
    };

    std::size_t checked(int column) const;
    TableRow* currentOrNull();
    TableRow& currentRow();
    bool letsThrough(const TableRow& row) const;
    std::vector<TableRow*> rowsLetThrough();
    std::vector<TableRow*> rowsByKey(const ColumnCondition& condition) const;
    void resetView();
    RecordView& listed();
    void admitAdded();
    void change(TableRow& row, std::size_t column, Value value);
    void setKey(TableRow& row, const Value& value);
    void ownRows();

    std::span<const Column> columnList;
    int keyColumn = -1;                                       // none
    std::shared_ptr<Rows> stored = std::make_shared<Rows>();  // changed by its one owner alone
    std::uint64_t nextId = 1;
    RowFilter conditions;
    std::string filterText;
    std::optional<SortOrder> order;
    std::string sortText;
    RecordView view{nextId};
    std::uint64_t changeCount = 0;
};

}  // namespace plandesk
