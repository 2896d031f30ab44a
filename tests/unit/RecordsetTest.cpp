#include "proposal/Recordset.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"

namespace plandesk {
namespace {

constexpr std::array columns = std::to_array<Column>({
    {"ExtNo", ColumnKind::Integer},
    {"OwnNo", ColumnKind::Integer},
    {"Name", ColumnKind::Text, 5},
    {"Day", ColumnKind::Date},
    {"Area", ColumnKind::Double},
    {"Signed", ColumnKind::Boolean},
});

void add(Recordset& table, Value number, const std::string& name) {
    table.addNew();
    table.set("ExtNo", std::move(number));
    table.set("Name", name);
    table.update();
}

/// Rows 1 A, 2 B, 3 C, 2 D.
struct RecordsetWithRows : testing::Test {
    RecordsetWithRows() {
        add(table, 1, "A");
        add(table, 2, "B");
        add(table, 3, "C");
        add(table, 2, "D");
        table.moveFirst();
    }

    Recordset table{columns};
};

/// The names of the visible rows, by a walk from the first.
std::string walk(Recordset& table) {
    std::string names;
    for (table.moveFirst(); !table.eof(); table.moveNext())
        names += valueText(table.get("Name"));
    return names;
}

std::string allNames(const Recordset& table) {
    std::string names;
    for (const auto& row : table.allRows())
        names += valueText(row[2]);
    return names;
}

template <class Action>
int errorOf(Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return 0;
}

TEST(Recordset, IsEmptyWhenMade) {
    Recordset table(columns);
    EXPECT_TRUE(table.eof());
    EXPECT_TRUE(table.bof());
    EXPECT_EQ(table.recordCount(), 0);
    EXPECT_EQ(table.rowCount(), 0);
    EXPECT_EQ(table.absolutePosition(), 0);
    EXPECT_EQ(table.columns().size(), columns.size());
}

TEST(Recordset, WithoutACurrentRowRefusesToReadChangeDeleteAndMoveOn) {
    Recordset table(columns);
    EXPECT_EQ(errorOf([&] { table.get("Name"); }), 3021);
    EXPECT_EQ(errorOf([&] { table.set("Name", "A"); }), 3021);
    EXPECT_EQ(errorOf([&] { table.update(); }), 3021);
    EXPECT_EQ(errorOf([&] { table.deleteRow(); }), 3021);
    EXPECT_EQ(errorOf([&] { table.moveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { table.moveFirst(); }), 0);
}

TEST(Recordset, DoesNotFindAnUnknownColumn) {
    Recordset table(columns);
    table.addNew();
    EXPECT_EQ(errorOf([&] { table.get("Nome"); }), 3265);
    EXPECT_EQ(errorOf([&] { table.set("Nome", 1); }), 3265);
    EXPECT_EQ(errorOf([&] { table.get(6); }), 3265);
    EXPECT_EQ(errorOf([&] { table.get(-1); }), 3265);
    EXPECT_EQ(errorOf([&] { table.valueAt(1, 6); }), 3265);
}

TEST(Recordset, MakesAnAddedRowCurrentWithEveryCellNull) {
    Recordset table(columns);
    table.addNew();
    for (int column = 0; column < static_cast<int>(columns.size()); ++column)
        EXPECT_TRUE(isNull(table.get(column)));
    EXPECT_EQ(table.recordCount(), 1);
    EXPECT_EQ(table.absolutePosition(), 1);
    EXPECT_FALSE(table.eof());
    EXPECT_FALSE(table.bof());
}

TEST(Recordset, ConvertsToTheKindOfTheColumn) {
    Recordset table(columns);
    table.addNew();
    table.set("EXTNO", "12");
    table.set("name", 12);
    table.set("Day", "01/02/2024");
    table.set("Area", 12);
    table.set("Signed", "1");
    EXPECT_EQ(table.get("ExtNo"), Value(12));
    EXPECT_EQ(table.get("Name"), Value("12"));
    EXPECT_EQ(table.get("Day"), Value(Date{2024, 2, 1}));
    EXPECT_EQ(table.get("Area"), Value(12.0));
    EXPECT_EQ(table.get("Signed"), Value(true));
    table.set("ExtNo", Value());
    EXPECT_TRUE(isNull(table.get("ExtNo")));
}

TEST(Recordset, KeepsATextThatIsLongerThanItsColumn) {
    Recordset table(columns);
    table.addNew();
    table.set("Name", "longer than five");
    EXPECT_EQ(table.get("Name"), Value("longer than five"));
}

TEST_F(RecordsetWithRows, KeepsTheCellThatCannotTakeAValue) {
    EXPECT_EQ(errorOf([&] { table.set("ExtNo", "one"); }), 13);
    EXPECT_EQ(errorOf([&] { table.set("ExtNo", 3e9); }), 6);
    EXPECT_EQ(table.get("ExtNo"), Value(1));
    table.setFilter("ExtNo = 1");
    EXPECT_EQ(walk(table), "A");
}

TEST_F(RecordsetWithRows, WalksInTheOrderOfAdding) {
    EXPECT_EQ(walk(table), "ABCD");
    EXPECT_TRUE(table.eof());
    EXPECT_FALSE(table.bof());
    EXPECT_EQ(table.absolutePosition(), 0);
    EXPECT_EQ(errorOf([&] { table.moveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { table.get("Name"); }), 3021);
}

TEST_F(RecordsetWithRows, ShowsOnlyWhatTheFilterLetsThrough) {
    table.setFilter(" ExtNo = 2");
    EXPECT_EQ(table.get("Name"), Value("B"));
    EXPECT_EQ(table.recordCount(), 2);
    EXPECT_EQ(table.rowCount(), 4);
    EXPECT_EQ(walk(table), "BD");
    EXPECT_EQ(allNames(table), "ABCD");
    EXPECT_EQ(table.filter(), " ExtNo = 2");
    table.setFilter("");
    EXPECT_EQ(table.get("Name"), Value("A"));
    EXPECT_EQ(table.recordCount(), 4);
    EXPECT_EQ(table.filter(), "");
}

TEST_F(RecordsetWithRows, KeepsARowsNumberButNotItsPlaceUnderAnotherFilter) {
    table.setAbsolutePosition(3);
    EXPECT_EQ(table.get("ExtNo"), Value(3));
    table.setFilter("ExtNo > 2");
    EXPECT_EQ(table.get("ExtNo"), Value(3));
    EXPECT_EQ(table.absolutePosition(), 1);
}

TEST_F(RecordsetWithRows, AnswersTrueToBothTestsWhenTheFilterShowsNoRow) {
    table.setFilter("ExtNo = 9");
    EXPECT_TRUE(table.eof());
    EXPECT_TRUE(table.bof());
    EXPECT_EQ(table.recordCount(), 0);
    EXPECT_EQ(errorOf([&] { table.get("Name"); }), 3021);
    EXPECT_EQ(errorOf([&] { table.moveNext(); }), 3021);
}

TEST_F(RecordsetWithRows, FiltersOnAColumnThatIsNotTheKey) {
    for (table.moveFirst(); !table.eof(); table.moveNext())
        table.set("Area", table.absolutePosition() * 0.5);
    table.setFilter("Area >= 1 AND Area < 2 AND ExtNo >= 0");
    EXPECT_EQ(walk(table), "BC");
    table.setFilter("Area > 0.5");
    EXPECT_EQ(walk(table), "BCD");
}

TEST_F(RecordsetWithRows, ChangesNothingForAnExpressionThatCannotBeRead) {
    table.setFilter("ExtNo = 2");
    table.setSort("Name DESC");
    table.moveNext();
    const auto changes = table.changes();
    EXPECT_EQ(errorOf([&] { table.setFilter("ExtNo = 2 AND"); }), 3001);
    EXPECT_EQ(errorOf([&] { table.setFilter("Nome = 2"); }), 3265);
    EXPECT_EQ(errorOf([&] { table.setSort("ExtNo UP"); }), 3001);
    EXPECT_EQ(table.filter(), "ExtNo = 2");
    EXPECT_EQ(table.sort(), "Name DESC");
    EXPECT_EQ(table.get("Name"), Value("B"));
    EXPECT_EQ(table.changes(), changes);
}

TEST_F(RecordsetWithRows, VisitsInSortOrderWithTableOrderAmongEquals) {
    table.setSort(" ExtNo DESC ");
    EXPECT_EQ(table.get("Name"), Value("C"));
    EXPECT_EQ(walk(table), "CBDA");
    table.setSort(" ExtNo ");
    EXPECT_EQ(walk(table), "ABDC");
    EXPECT_EQ(allNames(table), "ABCD");
    table.setFilter("ExtNo > 1");
    EXPECT_EQ(walk(table), "BDC");
    table.setSort("");
    EXPECT_EQ(walk(table), "BCD");
}

TEST_F(RecordsetWithRows, SortsNullsFirst) {
    add(table, Value(), "N");
    table.setSort("ExtNo");
    EXPECT_EQ(walk(table), "NABDC");
    table.setSort("ExtNo DESC");
    EXPECT_EQ(walk(table), "CBDAN");
}

TEST_F(RecordsetWithRows, KeepsThePlaceOfADeletedRowForTheNextMove) {
    table.moveNext();
    table.deleteRow();
    EXPECT_EQ(table.recordCount(), 3);
    EXPECT_EQ(table.rowCount(), 3);
    EXPECT_EQ(table.absolutePosition(), 0);
    EXPECT_FALSE(table.eof());
    EXPECT_EQ(errorOf([&] { table.get("Name"); }), 3021);
    EXPECT_EQ(errorOf([&] { table.deleteRow(); }), 3021);
    table.moveNext();
    EXPECT_EQ(table.get("Name"), Value("C"));
    EXPECT_EQ(table.absolutePosition(), 2);
    EXPECT_EQ(walk(table), "ACD");
}

TEST_F(RecordsetWithRows, IsAtItsEndAfterTheLastRowIsDeletedAndLeft) {
    table.setAbsolutePosition(4);
    table.deleteRow();
    EXPECT_FALSE(table.eof());
    table.moveNext();
    EXPECT_TRUE(table.eof());
    EXPECT_EQ(errorOf([&] { table.moveNext(); }), 3021);
}

TEST_F(RecordsetWithRows, DeletesAllRowsOfAFilterInOneWalk) {
    for (table.setFilter("ExtNo = 2"); !table.eof(); table.moveNext())
        table.deleteRow();
    EXPECT_TRUE(table.eof());
    EXPECT_TRUE(table.bof());
    table.setFilter("");
    EXPECT_EQ(walk(table), "AC");
}

TEST_F(RecordsetWithRows, AnswersTrueToBothTestsOnceTheOnlyRowIsDeleted) {
    table.setFilter("ExtNo = 1");
    table.deleteRow();
    EXPECT_TRUE(table.eof());
    EXPECT_TRUE(table.bof());
    EXPECT_EQ(errorOf([&] { table.moveNext(); }), 0);
    EXPECT_EQ(errorOf([&] { table.moveNext(); }), 3021);
}

TEST_F(RecordsetWithRows, ReadsPlacesRightBesideADeletedRow) {
    table.moveNext();
    table.deleteRow();
    EXPECT_EQ(table.valueAt(2, 2), Value("C"));
    EXPECT_EQ(errorOf([&] { table.get("Name"); }), 3021);
    table.moveNext();
    EXPECT_EQ(table.get("Name"), Value("C"));
}

TEST_F(RecordsetWithRows, AddsARowBehindTheVisibleOnes) {
    table.setSort("ExtNo DESC");
    add(table, 9, "E");
    EXPECT_EQ(table.absolutePosition(), 5);
    EXPECT_EQ(walk(table), "CBDAE");
    table.setSort("ExtNo DESC");
    EXPECT_EQ(walk(table), "ECBDA");
}

TEST_F(RecordsetWithRows, AddsARowBehindTheVisibleOnesThatNobodyHasLookedAtYet) {
    table.setSort("ExtNo DESC");
    add(table, 9, "E");
    table.moveFirst();
    EXPECT_EQ(table.get("Name"), Value("C"));
    table.setSort("ExtNo DESC");
    table.addNew();
    table.set("Name", "F");
    EXPECT_EQ(table.get("Name"), Value("F"));
    table.moveNext();
    EXPECT_TRUE(table.eof());
    EXPECT_EQ(walk(table), "ECBDAF");
}

TEST_F(RecordsetWithRows, ShowsAnAddedRowThatTheFilterLetsThrough) {
    table.setFilter("ExtNo = 5");
    add(table, 5, "E");
    EXPECT_EQ(table.recordCount(), 1);
    EXPECT_EQ(table.absolutePosition(), 1);
    EXPECT_EQ(walk(table), "E");
}

TEST_F(RecordsetWithRows, KeepsAHiddenAddedRowCurrentUntilTheNextMove) {
    table.setFilter("ExtNo = 2");
    add(table, 7, "E");
    EXPECT_EQ(table.get("Name"), Value("E"));
    EXPECT_EQ(table.recordCount(), 2);
    EXPECT_EQ(table.absolutePosition(), 0);
    EXPECT_FALSE(table.eof());
    table.set("Name", "F");
    EXPECT_EQ(table.rowCount(), 5);
    table.moveNext();
    EXPECT_TRUE(table.eof());
    EXPECT_EQ(walk(table), "BD");
    table.setFilter("");
    EXPECT_EQ(walk(table), "ABCDF");
}

TEST_F(RecordsetWithRows, AddsARowToATableWhoseFilterShowsNone) {
    table.setFilter("ExtNo = 9");
    add(table, 8, "E");
    EXPECT_EQ(table.recordCount(), 0);
    EXPECT_TRUE(table.eof());
    EXPECT_TRUE(table.bof());
    EXPECT_EQ(table.get("Name"), Value("E"));
    EXPECT_EQ(table.rowCount(), 5);
    table.moveFirst();
    EXPECT_EQ(errorOf([&] { table.get("Name"); }), 3021);
}

TEST_F(RecordsetWithRows, LooksAgainAtAnAddedRowWithoutUpdateWhenMoved) {
    table.setFilter("ExtNo = 2");
    table.addNew();
    table.set("ExtNo", 2);
    EXPECT_EQ(table.recordCount(), 2);
    table.moveFirst();
    EXPECT_EQ(table.recordCount(), 3);
    EXPECT_EQ(table.get("Name"), Value("B"));
}

TEST_F(RecordsetWithRows, KeepsARowThatWasAddedAndNeverUpdated) {
    table.addNew();
    table.setFilter("");
    EXPECT_EQ(table.recordCount(), 5);
    table.addNew();
    table.addNew();
    EXPECT_EQ(table.recordCount(), 7);
}

TEST_F(RecordsetWithRows, DeletesAHiddenAddedRow) {
    table.setFilter("ExtNo = 2");
    add(table, 7, "E");
    table.deleteRow();
    EXPECT_EQ(errorOf([&] { table.get("Name"); }), 3021);
    table.moveNext();
    EXPECT_TRUE(table.eof());
    EXPECT_EQ(table.rowCount(), 4);
    EXPECT_EQ(walk(table), "BD");
}

TEST_F(RecordsetWithRows, ComesToEachRowOnceWhileTheFilteredColumnChanges) {
    for (table.setFilter("ExtNo > 1"); !table.eof(); table.moveNext()) {
        table.set("ExtNo", valueNumber(table.get("ExtNo")) - 1);
        table.set("Name", valueText(table.get("Name")) + "x");
        table.update();
    }
    EXPECT_EQ(allNames(table), "ABxCxDx");
    table.setFilter("ExtNo = 1");
    EXPECT_EQ(walk(table), "ABxDx");
}

TEST_F(RecordsetWithRows, ComesToEachRowOnceWhileTheSortedColumnChanges) {
    for (const char* order : {"ExtNo", "ExtNo DESC"}) {
        table.setSort(order);
        int visited = 0;
        for (; !table.eof(); table.moveNext(), ++visited)
            table.set("ExtNo", valueNumber(table.get("ExtNo")) + 1);
        EXPECT_EQ(visited, 4) << order;
    }
    table.setSort("");
    EXPECT_EQ(table.get("ExtNo"), Value(3));
}

TEST_F(RecordsetWithRows, GoesToAnAbsolutePosition) {
    table.setFilter("ExtNo >= 2");
    table.setAbsolutePosition(3);
    EXPECT_EQ(table.get("Name"), Value("D"));
    EXPECT_EQ(errorOf([&] { table.setAbsolutePosition(4); }), 3021);
    EXPECT_EQ(errorOf([&] { table.setAbsolutePosition(0); }), 3021);
    EXPECT_EQ(table.absolutePosition(), 3);
}

TEST_F(RecordsetWithRows, ComesBackToABookmark) {
    table.setAbsolutePosition(2);
    const Bookmark second = table.bookmark();
    table.setSort("ExtNo DESC");
    table.setBookmark(second);
    EXPECT_EQ(table.get("Name"), Value("B"));
    EXPECT_EQ(table.absolutePosition(), 2);
    walk(table);
    const Bookmark end = table.bookmark();
    table.moveFirst();
    table.setBookmark(end);
    EXPECT_TRUE(table.eof());
}

TEST_F(RecordsetWithRows, DoesNotComeBackToARowThatIsHiddenOrGone) {
    const Bookmark first = table.bookmark();
    table.setFilter("ExtNo > 1");
    table.moveNext();
    EXPECT_EQ(errorOf([&] { table.setBookmark(first); }), 3021);
    EXPECT_EQ(table.get("Name"), Value("C"));
    const Bookmark third = table.bookmark();
    table.deleteRow();
    EXPECT_EQ(errorOf([&] { table.setBookmark(third); }), 3021);
}

TEST_F(RecordsetWithRows, GivesVisibleCellsWithoutMoving) {
    table.setSort("ExtNo DESC");
    EXPECT_EQ(table.valueAt(1, 2), Value("C"));
    EXPECT_EQ(table.valueAt(4, 2), Value("A"));
    EXPECT_EQ(table.absolutePosition(), 1);
    EXPECT_EQ(errorOf([&] { table.valueAt(0, 2); }), 3021);
    EXPECT_EQ(errorOf([&] { table.valueAt(5, 2); }), 3021);
}

TEST_F(RecordsetWithRows, GivesTheRowsOfAKeyWhileFilterAndCurrentRowStay) {
    const auto names = [this](int key) {
        std::string text;
        for (const auto& row : table.rowsOfKey(key))
            text += valueText(row[2]);
        return text;
    };
    table.setFilter("ExtNo > 1");
    table.moveNext();
    EXPECT_EQ(names(2), "BD");
    EXPECT_EQ(names(1), "A");
    EXPECT_EQ(names(7), "");
    EXPECT_EQ(table.filter(), "ExtNo > 1");
    EXPECT_EQ(table.get("Name"), Value("C"));
    table.setSort("Name DESC");
    EXPECT_EQ(names(2), "DB");
}

TEST_F(RecordsetWithRows, GivesTheCellsOfTheCurrentRow) {
    table.moveNext();
    EXPECT_EQ(table.row().size(), columns.size());
    EXPECT_EQ(table.row()[2], Value("B"));
    table.deleteVisible();
    EXPECT_EQ(errorOf([&] { table.row(); }), 3021);
}

TEST_F(RecordsetWithRows, TellsAViewThatSomethingChanged) {
    auto seen = table.changes();
    const auto changed = [&] { return std::exchange(seen, table.changes()) != table.changes(); };
    table.moveNext();
    table.get("Name");
    table.recordCount();
    EXPECT_FALSE(changed());
    table.set("Name", "Z");
    EXPECT_TRUE(changed());
    table.addNew();
    EXPECT_TRUE(changed());
    table.deleteRow();
    EXPECT_TRUE(changed());
    table.setFilter("ExtNo = 2");
    EXPECT_TRUE(changed());
    table.setSort("ExtNo");
    EXPECT_TRUE(changed());
}

}  // namespace
}  // namespace plandesk
