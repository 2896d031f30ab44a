#include "proposal/RecordView.h"

#include <algorithm>
#include <utility>

namespace plandesk {

RecordView RecordView::over(std::pmr::map<std::uint64_t, TableRow>& copies) const {
    RecordView view = *this;
    for (TableRow*& row : view.rows)
        if (row)
            row = &copies.at(row->id);
    if (view.addedRow)
        view.addedRow = &copies.at(view.addedRow->id);
    return view;
}

void RecordView::list(std::vector<TableRow*> visible, const std::optional<SortOrder>& order) {
    isListed = true;
    rows = std::move(visible);
    present = rows.size();
    if (order) {
        const auto end = std::ranges::lower_bound(rows, firstAdded, {}, &TableRow::id);
        const auto before = [&](const TableRow* a, const TableRow* b) { return order->before(a->values, b->values); };
        if (!std::is_sorted(rows.begin(), end, before))  // it mostly is
            std::stable_sort(rows.begin(), end, before);
    }
    if (addedRow)
        goTo(rows.size() - 1);
}

TableRow* RecordView::current() const {
    if (addedRow)
        return addedRow;
    return onDeleted || place >= rows.size() ? nullptr : rows[place];
}

int RecordView::position() {
    if (addedRow || !current())
        return 0;
    tidy();
    return static_cast<int>(place) + 1;
}

const TableRow& RecordView::at(int position) {
    tidy();
    return *rows[static_cast<std::size_t>(position) - 1];
}

void RecordView::add(TableRow& row) {
    goToEnd();
    addedRow = &row;
}

void RecordView::admit() {
    rows.push_back(addedRow);
    ++present;
    goTo(rows.size() - 1);
}

void RecordView::remove() {
    if (addedRow) {
        addedRow = nullptr;
    } else {
        rows[place] = nullptr;
        --present;
    }
    onDeleted = true;
}

void RecordView::goToPosition(int position) {
    tidy();
    goTo(static_cast<std::size_t>(position) - 1);
}

bool RecordView::goToRow(const TableRow& row) {
    const auto found = std::ranges::find(rows, &row);
    if (found == rows.end())
        return false;
    goTo(static_cast<std::size_t>(found - rows.begin()));
    return true;
}

bool RecordView::goToNext() {
    // The place of an added row is behind the last one already, and that of a deleted row is now the next one's.
    const bool staysAtPlace = addedRow || onDeleted;
    if (!staysAtPlace && place >= rows.size())
        return false;
    goTo(staysAtPlace ? place : place + 1);
    return true;
}

/// Makes the row at the place current, or where it was deleted the next one that is still there.
void RecordView::goTo(std::size_t next) {
    place = next;
    onDeleted = false;
    addedRow = nullptr;
    while (place < rows.size() && !rows[place])
        ++place;
}

/// Takes the gaps of deleted rows out of the list. The place of a deleted row becomes that of the row behind it.
void RecordView::tidy() {
    if (present == rows.size())
        return;
    const auto end = rows.begin() + static_cast<std::ptrdiff_t>(place);
    place -= static_cast<std::size_t>(std::count(rows.begin(), end, nullptr));
    std::erase(rows, nullptr);
}

}  // namespace plandesk
