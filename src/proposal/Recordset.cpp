#include "proposal/Recordset.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <iterator>
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

std::shared_ptr<Recordset> Recordset::copy() const {
    auto copy = std::make_shared<Recordset>(columnList);
    copy->stored = stored;
    copy->nextId = nextId;
    copy->conditions = conditions;
    copy->filterText = filterText;
    copy->order = order;
    copy->sortText = sortText;
    copy->view = view;
    copy->changeCount = changeCount;
    return copy;
}

/// To be called before any change of a row: the rows that a copy shares stay as they are, and this table goes on with
/// its own.
void Recordset::ownRows() {
    if (stored.use_count() == 1) {
        std::atomic_thread_fence(std::memory_order_acquire);  // what the last other owner read, it has read by now
        return;
    }
    auto own = std::make_shared<Rows>();
    for (const auto& [id, row] : stored->rows) {
        const auto added = own->rows.emplace_hint(own->rows.end(), id,
                                                  TableRow{id, std::pmr::vector<Value>(row.values, &own->memory)});
        if (const auto* key =
                keyColumn < 0 ? nullptr : std::get_if<std::int32_t>(&row.values[static_cast<std::size_t>(keyColumn)]))
            own->keys.insert(own->keys.end(), KeyEntry{*key, &added->second});
    }
    view = view.over(own->rows);
    stored = std::move(own);
}

std::size_t Recordset::checked(int column) const {
    if (column < 0 || static_cast<std::size_t>(column) >= columnList.size())
        throw RuntimeError(ErrorNumber::ItemNotFound);
    return static_cast<std::size_t>(column);
}

TableRow* Recordset::currentOrNull() {
    return view.added() ? view.added() : listed().current();
}

TableRow& Recordset::currentRow() {
    TableRow* const row = currentOrNull();
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
    currentRow();
    if (!isOfKind(value, columnList[index].kind))
        value = toKind(std::move(value), columnList[index].kind);
    ownRows();
    change(currentRow(), index, std::move(value));
}

void Recordset::replace(int row, int column, Value value) {
    const std::size_t index = checked(column);
    if (row < 0 || row >= rowCount())
        return;
    ownRows();
    change(std::next(stored->rows.begin(), row)->second, index, toKind(std::move(value), columnList[index].kind));
}

void Recordset::change(TableRow& row, std::size_t column, Value value) {
    if (static_cast<int>(column) == keyColumn)
        setKey(row, value);
    row.values[column] = std::move(value);
    ++changeCount;
}

void Recordset::set(std::string_view column, Value value) {
    set(columnIndex(columnList, column), std::move(value));
}

void Recordset::setKey(TableRow& row, const Value& value) {
    auto& keys = stored->keys;
    std::pmr::set<KeyEntry, KeyOrder>::node_type entry;
    const auto* old = std::get_if<std::int32_t>(&row.values[static_cast<std::size_t>(keyColumn)]);
    const auto* key = std::get_if<std::int32_t>(&value);
    if (old && key && *old == *key)
        return;
    if (old)
        entry = keys.extract(KeyEntry{*old, &row});
    if (!key)
        return;
    if (entry) {
        entry.value().key = *key;
        keys.insert(std::move(entry));
    } else {
        keys.insert(keys.end(), KeyEntry{*key, &row});  // most rows come in the order of their keys
    }
}

void Recordset::addNew() {
    admitAdded();
    if (!conditions.empty())
        listed();
    ownRows();
    auto& rows = stored->rows;
    const auto added = rows.emplace_hint(rows.end(), nextId,
                                         TableRow{nextId, std::pmr::vector<Value>(columnList.size(), &stored->memory)});
    ++nextId;
    view.add(added->second);
    admitAdded();
    ++changeCount;
}

void Recordset::update() {
    currentRow();
    admitAdded();
}

/// An added row whose view is not written out yet needs no admission: the list takes it up.
void Recordset::admitAdded() {
    if (!view.added() || !view.listed() || !letsThrough(*view.added()))
        return;
    view.admit();
    ++changeCount;
}

void Recordset::deleteRow() {
    listed();
    currentRow();
    ownRows();
    TableRow& row = currentRow();
    view.remove();
    if (keyColumn >= 0)
        setKey(row, Value());
    stored->rows.erase(row.id);
    ++changeCount;
}

void Recordset::deleteVisible() {
    for (moveFirst(); !eof(); moveNext())
        deleteRow();
}

void Recordset::moveFirst() {
    admitAdded();
    view.goToFirst();
}

void Recordset::moveNext() {
    listed();
    admitAdded();
    if (!view.goToNext())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
}

bool Recordset::eof() {
    return recordCount() == 0 || (view.listed() && view.atEnd());
}

int Recordset::recordCount() {
    if (conditions.empty() && !view.listed())
        return rowCount();
    return listed().count();
}

int Recordset::absolutePosition() {
    return listed().position();
}

void Recordset::setAbsolutePosition(int position) {
    listed();
    admitAdded();
    if (position < 1 || position > recordCount())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    view.goToPosition(position);
}

Bookmark Recordset::bookmark() {
    Bookmark bookmark;
    if (const TableRow* row = currentOrNull())
        bookmark.row = row->id;
    return bookmark;
}

void Recordset::setBookmark(Bookmark bookmark) {
    listed();
    admitAdded();
    if (bookmark.row == 0)
        return view.goToEnd();
    const auto row = stored->rows.find(bookmark.row);
    if (row == stored->rows.end() || !view.goToRow(row->second))
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
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

void Recordset::filterByKey(std::int32_t number) {
    const auto& column = columnList[checked(keyColumn)];
    conditions.assign(1,
                      {.column = keyColumn, .low = static_cast<double>(number), .high = static_cast<double>(number)});
    filterText.assign(column.name).append(" = ").append(std::to_string(number));
    resetView();
}

void Recordset::resetView() {
    view = RecordView(nextId);
    ++changeCount;
}

bool Recordset::letsThrough(const TableRow& row) const {
    return std::ranges::all_of(conditions, [&row](const ColumnCondition& condition) {
        return condition.holds(row.values[static_cast<std::size_t>(condition.column)]);
    });
}

/// The rows whose key is in the condition's range, in table order.
std::vector<TableRow*> Recordset::rowsByKey(const ColumnCondition& condition) const {
    using Key = std::numeric_limits<std::int32_t>;
    const double low = std::ceil(std::max<double>(condition.low, Key::min()));
    const double high = std::floor(std::min<double>(condition.high, Key::max()));
    std::vector<TableRow*> found;
    if (low > high)
        return found;
    const auto& keys = stored->keys;
    const auto end = keys.upper_bound(static_cast<std::int32_t>(high));
    for (auto entry = keys.lower_bound(static_cast<std::int32_t>(low)); entry != end; ++entry)
        found.push_back(entry->row);
    if (low < high)
        std::ranges::sort(found, {}, &TableRow::id);
    return found;
}

/// In table order.
std::vector<TableRow*> Recordset::rowsLetThrough() {
    std::vector<TableRow*> found;
    const auto onKey = std::ranges::find(conditions, keyColumn, &ColumnCondition::column);
    if (onKey != conditions.end()) {
        found = rowsByKey(*onKey);
        if (conditions.size() == 1 && onKey->excluded.empty())
            return found;
    } else {
        found.reserve(stored->rows.size());
        for (auto& [id, row] : stored->rows)
            found.push_back(&row);
    }
    std::erase_if(found, [this](const TableRow* row) { return !letsThrough(*row); });
    return found;
}

RecordView& Recordset::listed() {
    if (!view.listed())
        view.list(rowsLetThrough(), order);
    return view;
}

const Value& Recordset::valueAt(int position, int column) {
    const std::size_t index = checked(column);
    listed();
    if (position < 1 || position > recordCount())
        throw RuntimeError(ErrorNumber::NoCurrentRecord);
    return view.at(position).values[index];
}

std::vector<std::span<const Value>> Recordset::rowsOfKey(std::int32_t number) const {
    std::vector<std::span<const Value>> found;
    const auto [begin, end] = stored->keys.equal_range(number);
    for (auto entry = begin; entry != end; ++entry)
        found.emplace_back(entry->row->values);
    if (order && order->column != keyColumn)
        std::ranges::stable_sort(found, [this](const auto& a, const auto& b) { return order->before(a, b); });
    return found;
}

std::vector<std::span<const Value>> Recordset::allRows() const {
    std::vector<std::span<const Value>> all;
    all.reserve(stored->rows.size());
    for (const auto& [id, row] : stored->rows)
        all.emplace_back(row.values);
    return all;
}

}  // namespace plandesk
