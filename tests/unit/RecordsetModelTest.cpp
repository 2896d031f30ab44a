// Random operations on a table, each also done on a slow table that looks at every row every time.

#include <algorithm>
#include <array>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "proposal/Recordset.h"

namespace plandesk {
namespace {

constexpr std::array columns = std::to_array<Column>({
    {"Name", ColumnKind::Text, 20},
    {"ExtNo", ColumnKind::Integer},
    {"SrNo", ColumnKind::Integer},
    {"Area", ColumnKind::Double},
});

struct Comparison {
    int column;
    std::string sign;
    int number;

    bool holds(const Value& value) const {
        if (isNull(value))
            return false;
        const double left = valueNumber(value);
        return sign == "="    ? left == number
               : sign == "<"  ? left < number
               : sign == "<=" ? left <= number
               : sign == ">"  ? left > number
               : sign == ">=" ? left >= number
                              : left != number;
    }
};

struct SlowRow {
    int id;
    std::vector<Value> values;
};

/// Lists the visible rows afresh each time the filter or the sort is set.
class SlowTable {
public:
    std::vector<SlowRow> rows;
    std::vector<int> visible;
    std::vector<Comparison> filter;
    int sortColumn = -1;
    bool descending = false;
    std::size_t place = 0;
    bool onDeleted = false;
    int hidden = 0;  // id of a hidden added row that is current
    int lastId = 0;

    void list() {
        std::vector<SlowRow> through;
        std::ranges::copy_if(rows, std::back_inserter(through), [this](const SlowRow& row) { return passes(row); });
        if (sortColumn >= 0)
            std::ranges::stable_sort(through, [this](const SlowRow& a, const SlowRow& b) {
                const Value& left = a.values[static_cast<std::size_t>(sortColumn)];
                const Value& right = b.values[static_cast<std::size_t>(sortColumn)];
                return descending ? right < left : left < right;
            });
        visible.clear();
        for (const SlowRow& row : through)
            visible.push_back(row.id);
        go(0);
    }

    int currentId() const {
        if (hidden)
            return hidden;
        return onDeleted || place >= visible.size() ? 0 : visible[place];
    }

    SlowRow& current() {
        const int id = currentId();
        if (!id)
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        return row(id);
    }

    SlowRow& row(int id) { return *std::ranges::find(rows, id, &SlowRow::id); }

    void addNew() {
        admit();
        rows.push_back({++lastId, std::vector<Value>(columns.size())});
        go(visible.size());
        hidden = lastId;
        admit();
    }

    void admit() {
        if (!hidden || !passes(row(hidden)))
            return;
        visible.push_back(hidden);
        go(visible.size() - 1);
    }

    void deleteRow() {
        const int id = current().id;
        if (!std::exchange(hidden, 0))
            visible.erase(visible.begin() + static_cast<std::ptrdiff_t>(place));
        onDeleted = true;
        std::erase_if(rows, [id](const SlowRow& row) { return row.id == id; });
    }

    void moveNext() {
        admit();
        if (hidden || onDeleted)
            return go(place);
        if (place >= visible.size())
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        go(place + 1);
    }

    void setPosition(int position) {
        admit();
        if (position < 1 || position > static_cast<int>(visible.size()))
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        go(static_cast<std::size_t>(position - 1));
    }

    void goToRow(int id) {
        admit();
        const auto found = std::ranges::find(visible, id);
        if (id && found == visible.end())
            throw RuntimeError(ErrorNumber::NoCurrentRecord);
        go(static_cast<std::size_t>(found - visible.begin()));
    }

    int position() const { return hidden || !currentId() ? 0 : static_cast<int>(place) + 1; }
    bool eof() const { return visible.empty() || (!hidden && !onDeleted && place >= visible.size()); }

    void go(std::size_t to) {
        place = to;
        onDeleted = false;
        hidden = 0;
    }

private:
    bool passes(const SlowRow& row) const {
        return std::ranges::all_of(filter, [&row](const Comparison& each) {
            return each.holds(row.values[static_cast<std::size_t>(each.column)]);
        });
    }
};

class Twins {
public:
    explicit Twins(unsigned seed) : random(seed) {}

    void step() {
        switch (below(21)) {
        case 0:
            setFilter(below(3));
            break;
        case 1:
            setFilter(0);
            break;
        case 2:
            setSort();
            break;
        case 3:
        case 4:
        case 5:
            add();
            break;
        case 6:
            both([this] { table.addNew(); }, [this] { slow.addNew(); });
            break;
        case 7:
        case 8:
        case 9:
            set(1 + below(3));
            break;
        case 10:
            both([this] { table.update(); }, [this] { slow.current(), slow.admit(); });
            break;
        case 11:
        case 12:
            both([this] { table.deleteRow(); }, [this] { slow.deleteRow(); });
            break;
        case 13:
            both([this] { table.moveFirst(); }, [this] { slow.admit(), slow.go(0); });
            break;
        case 14:
        case 15:
        case 16:
            both([this] { table.moveNext(); }, [this] { slow.moveNext(); });
            break;
        case 17: {
            const int position = below(static_cast<int>(slow.visible.size()) + 2);
            both([=, this] { table.setAbsolutePosition(position); }, [=, this] { slow.setPosition(position); });
            break;
        }
        case 18:
            bookmark = table.bookmark();
            slowBookmark = slow.currentId();
            break;
        case 19:
            both([this] { table.setBookmark(bookmark); }, [this] { slow.goToRow(slowBookmark); });
            break;
        case 20: {
            const int key = below(10);
            both([=, this] { table.filterByKey(key); }, [=, this] { slow.filter = equalTo(key), slow.list(); });
            EXPECT_EQ(table.filter(), "ExtNo = " + std::to_string(key));
            break;
        }
        }
    }

    /// Looks at a part of the state only, so that what is done late inside the table has the chance to be done late.
    void compare() {
        switch (below(9)) {
        case 0:
            EXPECT_EQ(table.recordCount(), static_cast<int>(slow.visible.size()));
            break;
        case 1:
            EXPECT_EQ(table.eof(), slow.eof());
            break;
        case 2:
            EXPECT_EQ(table.bof(), slow.visible.empty());
            break;
        case 3:
            EXPECT_EQ(table.absolutePosition(), slow.position());
            break;
        case 4:
            compareCurrent();
            break;
        case 5:
            compareAll();
            break;
        default:
            break;
        }
    }

    void compareAll() {
        compareCurrent();
        ASSERT_EQ(table.recordCount(), static_cast<int>(slow.visible.size()));
        for (int position = 1; position <= table.recordCount(); ++position) {
            const SlowRow& row = slow.row(slow.visible[static_cast<std::size_t>(position) - 1]);
            for (int column = 0; column < 4; ++column)
                ASSERT_EQ(table.valueAt(position, column), row.values[static_cast<std::size_t>(column)]);
        }
        const auto all = table.allRows();
        ASSERT_EQ(all.size(), slow.rows.size());
        for (std::size_t index = 0; index < all.size(); ++index)
            ASSERT_TRUE(std::ranges::equal(all[index], slow.rows[index].values));
        compareRowsOfKey(below(10));
    }

private:
    static std::vector<Comparison> equalTo(int key) { return {{1, "=", key}}; }

    void compareRowsOfKey(int key) {
        SlowTable filtered = slow;
        filtered.filter = equalTo(key);
        filtered.list();
        const auto rows = table.rowsOfKey(key);
        ASSERT_EQ(rows.size(), filtered.visible.size());
        for (std::size_t index = 0; index < rows.size(); ++index)
            ASSERT_TRUE(std::ranges::equal(rows[index], slow.row(filtered.visible[index]).values));
    }

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }
    std::string blanks() { return std::string(static_cast<std::size_t>(below(3)), ' '); }

    void setFilter(int comparisons) {
        constexpr std::array signs = std::to_array<const char*>({"=", "<", "<=", ">", ">=", "<>"});
        std::vector<Comparison> filter;
        std::string expression = blanks();
        for (int index = 0; index < comparisons; ++index) {
            // Mostly on the key.
            const int column = std::max(1, below(5) - 1);
            const Comparison next{column, signs[static_cast<std::size_t>(below(6))], below(12) - 2};
            const std::string name(columns[static_cast<std::size_t>(column)].name);
            expression += (index ? " AND " : "") + blanks() + (below(2) ? name : "[" + name + "]") + blanks() +
                          next.sign + blanks() + std::to_string(next.number) + blanks();
            filter.push_back(next);
        }
        SCOPED_TRACE(expression);
        both([&] { table.setFilter(expression); }, [&] { slow.filter = filter, slow.list(); });
    }

    void setSort() {
        slow.sortColumn = below(5) - 1;
        slow.descending = below(2);
        std::string expression;
        if (slow.sortColumn >= 0)
            expression =
                std::string(columns[static_cast<std::size_t>(slow.sortColumn)].name) + (slow.descending ? " DESC" : "");
        both([&] { table.setSort(expression); }, [&] { slow.list(); });
    }

    void add() {
        both([this] { table.addNew(); }, [this] { slow.addNew(); });
        set(0);
        set(1);
        set(2);
        both([this] { table.update(); }, [this] { slow.current(), slow.admit(); });
    }

    void set(int column) {
        const auto index = static_cast<std::size_t>(column);
        const int number = below(9);
        Value value;
        if (column == 0)
            value = std::to_string(below(1000));
        else if (number && column == 3)
            value = number * 0.5;
        else if (number)
            value = number;
        both([&] { table.set(column, value); }, [&] { slow.current().values[index] = value; });
    }

    static int errorOf(const std::function<void()>& action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            return error.number;
        }
        return 0;
    }

    void both(const std::function<void()>& fast, const std::function<void()>& plain) {
        const int error = errorOf(plain);
        ASSERT_EQ(errorOf(fast), error);
    }

    void compareCurrent() {
        for (int column = 0; column < 4; ++column) {
            both([&] { table.get(column); }, [&] { slow.current(); });
            if (slow.currentId()) {
                EXPECT_EQ(table.get(column), slow.current().values[static_cast<std::size_t>(column)]);
            }
        }
    }

    std::mt19937 random;
    Recordset table{columns};
    SlowTable slow;
    Bookmark bookmark;
    int slowBookmark = 0;
};

class RecordsetModel : public testing::TestWithParam<unsigned> {};

TEST_P(RecordsetModel, BehavesAsATableThatLooksAtEveryRow) {
    SCOPED_TRACE("seed " + std::to_string(GetParam()));
    Twins twins(GetParam());
    for (int step = 1; step <= 5000 && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        twins.step();
        twins.compare();
    }
    twins.compareAll();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RecordsetModel, testing::Range(1u, 11u));

}  // namespace
}  // namespace plandesk
