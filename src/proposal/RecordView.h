#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory_resource>
#include <optional>
#include <vector>

#include "proposal/RowFilter.h"
#include "proposal/Value.h"

namespace plandesk {

/// One row of an in-memory table. Ids count from 1 in the order of adding.
struct TableRow {
    std::uint64_t id;
    std::pmr::vector<Value> values;  // in the memory of the table
};

/// The visible rows of an in-memory table and the place of the current one. The list is written out at the first need,
/// since most filters are replaced before anybody looks; until then the place is before its first row.
///
/// The current row is one of three: the row at the place, an added row that is not in the list, or none, when the place
/// is behind the last row or its row was deleted. All but `listed`, `add` and `added` need the list, and `current`
/// needs it when there is no added row.
class RecordView {
public:
    /// `firstAdded`: the id from which on rows are added after the view was set.
    explicit RecordView(std::uint64_t firstAdded) : firstAdded(firstAdded) {}

    /// The same view of a copy of its rows, by their ids.
    RecordView over(std::pmr::map<std::uint64_t, TableRow>& copies) const;

    bool listed() const { return isListed; }
    /// Writes the list out: of the rows given, in table order, those that stood there when the view was set in sort
    /// order, and those added since behind them. An added row has to be among them.
    void list(std::vector<TableRow*> visible, const std::optional<SortOrder>& order);

    /// Number of the rows in the list.
    int count() const { return static_cast<int>(present); }
    /// Null when there is none.
    TableRow* current() const;
    /// The current row when it was just added and is not in the list; else null.
    TableRow* added() const { return addedRow; }
    /// The place is behind the last row.
    bool atEnd() const { return !addedRow && !onDeleted && place >= rows.size(); }
    /// Place of the current row in the list, from 1; 0 when it is not there.
    int position();
    /// Row at that place in the list, from 1 to count().
    const TableRow& at(int position);

    /// Makes a row current that is not in the list.
    void add(TableRow& row);
    /// Takes the added row into the list, behind its end.
    void admit();
    /// Takes the current row out; no row is current then, and the place is that of the row behind it.
    void remove();

    void goToFirst() { goTo(0); }
    void goToEnd() { goTo(rows.size()); }
    /// From 1 to count().
    void goToPosition(int position);
    /// False when the row is not in the list; the place stays then.
    bool goToRow(const TableRow& row);
    /// To the next row: behind a deleted one to that which took its place, from an added one behind the last. False
    /// behind the last row already.
    bool goToNext();

private:
    void goTo(std::size_t next);
    void tidy();

    std::uint64_t firstAdded;
    bool isListed = false;
    std::vector<TableRow*> rows;  // null where a row was deleted, until the next tidy()
    std::size_t present = 0;      // rows that are not null
    std::size_t place = 0;        // of the current row; the size of the list when behind the last
    bool onDeleted = false;       // the row at the place was deleted
    TableRow* addedRow = nullptr;
};

}  // namespace plandesk
