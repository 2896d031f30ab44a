#include "proposal/Recordset.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <utility>

#include "base/RuntimeError.h"

namespace plandesk {

bool Recordset::KeyOrder::operator()(const KeyEntry& a, const KeyEntry& b) const {
    return std::tie(a.key, a.row->id) < std::tie(b.key, b.row->id);
}

Recordset::Recordset(std::span<const Column> columns) : columnList(columns) {
    const auto key = std::ranges::find(columns, ColumnKind::Integer, &Column::kind);
    if (key != columns.end())
        keyColumn = static_cast<int>(key - columns.begin());
}

std::size_t Recordset::checked(int column) const {
    if (column < 0 || static_cast<std::size_t>(column) >= columnList.size())
        throw RuntimeError(ErrorNumber::ItemNotFound);
    return static_cast<std::size_t>(column);
}

Recordset::Row* Recordset::currentOrNull() {
    if (view.added)
        return view.added;
    list();
    return view.onDeleted || view.place >= view.rows.size() ? nullptr : view.rows[view.place];
}

Recordset::Row& Recordset::currentRow() {
    Row* const row = currentOrNull();
    if (!row)
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    return *row;
}

const Value& Recordset::get(int column) {
    const std::size_t index = checked(column);
    return currentRow().values[index];
}

const Value& Recordset::get(std::string_view column) {
    return get(columnIndex(columnList, column));
}

void Recordset::set(int column, Value value) {
    const std::size_t index = checked(column);
    Row& row = currentRow();
    Value converted = toKind(std::move(value), columnList[index].kind);
    if (column == keyColumn)
        setKey(row, converted);
    row.values[index] = std::move(converted);
    ++changeCount;
}

void Recordset::set(std::string_view column, Value value) {
    set(columnIndex(columnList, column), std::move(value));
}

void Recordset::setKey(Row& row, const Value& value) {
    decltype(keys)::node_type entry;
    if (const auto* old = std::get_if<std::int32_t>(&row.values[static_cast<std::size_t>(keyColumn)]))
        entry = keys.extract(KeyEntry{*old, &row});
    const auto* key = std::get_if<std::int32_t>(&value);
    if (!key)
        return;
    if (entry) {
        entry.value().key = *key;
        keys.insert(std::move(entry));
    } else {
        keys.insert({*key, &row});
    }
}

void Recordset::addNew() {
    admitAdded();
    if (!conditions.empty())
        list();
    const auto added = rows.emplace_hint(rows.end(), nextId, Row{nextId, std::vector<Value>(columnList.size())});
    ++nextId;
    goTo(view.rows.size());
    view.added = &added->second;
    admitAdded();
    ++changeCount;
}

void Recordset::update() {
    currentRow();
    admitAdded();
}

/// An added row whose view is not written out yet needs no admission: list() takes it up.
void Recordset::admitAdded() {
    if (!view.added || !view.listed || !letsThrough(*view.added))
        return;
    view.rows.push_back(view.added);
    ++view.count;
    goTo(view.rows.size() - 1);
    ++changeCount;
}

/// Makes the row at the place current, or where it was deleted the next one that is still there.
void Recordset::goTo(std::size_t place) {
    view.place = place;
    view.onDeleted = false;
    view.added = nullptr;
    while (view.place < view.rows.size() && !view.rows[view.place])
        ++view.place;
}

void Recordset::deleteRow() {
    list();
    Row& row = currentRow();
    if (view.added) {
        view.added = nullptr;
    } else {
        view.rows[view.place] = nullptr;
        --view.count;
    }
    view.onDeleted = true;
    if (keyColumn >= 0)
        setKey(row, Value());
    rows.erase(row.id);
    ++changeCount;
}

void Recordset::deleteVisible() {
    for (moveFirst(); !eof(); moveNext())
        deleteRow();
}

void Recordset::moveFirst() {
    admitAdded();
    goTo(0);
}

void Recordset::moveNext() {
    list();
    admitAdded();
    // The place of a hidden added row is behind the last one already, and that of a deleted row is now the next one's.
    const bool staysAtPlace = view.added || view.onDeleted;
    if (!staysAtPlace && view.place >= view.rows.size())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    goTo(staysAtPlace ? view.place : view.place + 1);
}

bool Recordset::eof() {
    if (recordCount() == 0)
        return true;
    if (view.added || view.onDeleted || !view.listed)
        return false;
    return view.place >= view.rows.size();
}

int Recordset::recordCount() {
    if (conditions.empty() && !view.listed)
        return rowCount();
    list();
    return static_cast<int>(view.count);
}

int Recordset::absolutePosition() {
    list();
    if (view.added || !currentOrNull())
        return 0;
    tidy();
    return static_cast<int>(view.place) + 1;
}

void Recordset::setAbsolutePosition(int position) {
    list();
    admitAdded();
    tidy();
    if (position < 1 || position > recordCount())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    goTo(static_cast<std::size_t>(position) - 1);
}

Bookmark Recordset::bookmark() {
    Bookmark bookmark;
    if (const Row* row = currentOrNull())
        bookmark.row = row->id;
    return bookmark;
}

void Recordset::setBookmark(Bookmark bookmark) {
    list();
    admitAdded();
    if (bookmark.row == 0)
        return goTo(view.rows.size());
    const auto row = rows.find(bookmark.row);
    const auto place = row == rows.end() ? view.rows.end() : std::ranges::find(view.rows, &row->second);
    if (place == view.rows.end())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    goTo(static_cast<std::size_t>(place - view.rows.begin()));
}

void Recordset::setFilter(std::string_view expression) {
    conditions = parseFilter(expression, columnList);
    filterText = expression;
    resetView();
}

void Recordset::setSort(std::string_view expression) {
    order = parseSort(expression, columnList);
    sortText = expression;
    resetView();
}

void Recordset::resetView() {
    view = View{.firstAdded = nextId};
    ++changeCount;
}

bool Recordset::letsThrough(const Row& row) const {
    return std::ranges::all_of(conditions, [&row](const ColumnCondition& condition) {
        return condition.holds(row.values[static_cast<std::size_t>(condition.column)]);
    });
}

/// The rows whose key is in the condition's range, in table order.
std::vector<Recordset::Row*> Recordset::rowsByKey(const ColumnCondition& condition) {
    using Key = std::numeric_limits<std::int32_t>;
    const double low = std::ceil(std::max<double>(condition.low, Key::min()));
    const double high = std::floor(std::min<double>(condition.high, Key::max()));
    std::vector<Row*> found;
    if (low > high)
        return found;
    const auto end = keys.upper_bound(static_cast<std::int32_t>(high));
    for (auto entry = keys.lower_bound(static_cast<std::int32_t>(low)); entry != end; ++entry)
        found.push_back(entry->row);
    std::ranges::sort(found, {}, &Row::id);
    return found;
}

/// In table order.
std::vector<Recordset::Row*> Recordset::rowsLetThrough() {
    std::vector<Row*> found;
    const auto onKey = std::ranges::find(conditions, keyColumn, &ColumnCondition::column);
    if (onKey != conditions.end()) {
        found = rowsByKey(*onKey);
    } else {
        found.reserve(rows.size());
        for (auto& [id, row] : rows)
            found.push_back(&row);
    }
    std::erase_if(found, [this](const Row* row) { return !letsThrough(*row); });
    return found;
}

void Recordset::list() {
    if (view.listed)
        return;
    view.listed = true;
    view.rows = rowsLetThrough();
    view.count = view.rows.size();
    if (order) {
        const auto column = static_cast<std::size_t>(order->column);
        const auto end = std::ranges::lower_bound(view.rows, view.firstAdded, {}, &Row::id);
        std::stable_sort(view.rows.begin(), end, [column, down = order->descending](const Row* a, const Row* b) {
            return down ? b->values[column] < a->values[column] : a->values[column] < b->values[column];
        });
    }
    if (view.added)
        goTo(view.rows.size() - 1);
}

/// Takes the gaps of deleted rows out of the list. The place of a deleted row becomes that of the row behind it.
void Recordset::tidy() {
    if (view.count == view.rows.size())
        return;
    const auto place = view.rows.begin() + static_cast<std::ptrdiff_t>(view.place);
    view.place -= static_cast<std::size_t>(std::count(view.rows.begin(), place, nullptr));
    std::erase(view.rows, nullptr);
}

const Value& Recordset::valueAt(int position, int column) {
    const std::size_t index = checked(column);
    list();
    tidy();
    if (position < 1 || position > recordCount())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    return view.rows[static_cast<std::size_t>(position) - 1]->values[index];
}

std::vector<std::span<const Value>> Recordset::allRows() const {
    std::vector<std::span<const Value>> all;
    all.reserve(rows.size());
    for (const auto& [id, row] : rows)
        all.emplace_back(row.values);
    return all;
}

}  // namespace plandesk
