// A copy of a table shares its rows until one of the two changes them; neither ever sees what the other does.

#include <array>
#include <functional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "proposal/Recordset.h"

namespace plandesk {
namespace {

constexpr std::array columns = std::to_array<Column>({
    {"Name", ColumnKind::Text, 5},
    {"ExtNo", ColumnKind::Integer},
});

struct RecordsetCopy : testing::Test {
    RecordsetCopy() {
        for (int number = 1; number <= 4; ++number) {
            table.addNew();
            table.set(1, (number + 1) / 2);
            table.set(0, std::string(1, static_cast<char>('A' + number - 1)));
            table.update();
        }
        table.setFilter("ExtNo = 2");
        table.moveFirst();
    }

    static std::string all(const Recordset& table) {
        std::string text;
        for (const auto& row : table.allRows())
            text += valueText(row[0]) + valueText(row[1]) + " ";
        return text;
    }
    static std::string state(Recordset& table) {
        std::string text = all(table) + table.filter() + " at " + std::to_string(table.absolutePosition()) + " of " +
                           std::to_string(table.recordCount()) + ":";
        for (int place = 1; place <= table.recordCount(); ++place)
            text += valueText(table.valueAt(place, 0));
        return text + (table.eof() ? " end" : "");
    }

    Recordset table{columns};
};

const std::function<void(Recordset&)> changes[] = {
    [](Recordset& t) { t.set(0, "Z"); },        [](Recordset& t) { t.set(1, 7); },
    [](Recordset& t) { t.replace(0, 0, "Z"); }, [](Recordset& t) { t.addNew(); },
    [](Recordset& t) { t.deleteRow(); },        [](Recordset& t) { t.deleteVisible(); },
};

TEST_F(RecordsetCopy, IsInTheSameStateAndShowsTheSameRows) {
    const auto copy = table.copy();
    EXPECT_EQ(state(*copy), state(table));
    EXPECT_EQ(copy->allRows()[0].data(), table.allRows()[0].data());  // shared
}

TEST_F(RecordsetCopy, NoChangeOfOneIsSeenInTheOther) {
    const std::string before = state(table);
    for (const auto& change : changes) {
        const auto copy = table.copy();
        change(*copy);
        EXPECT_EQ(state(table), before);
        EXPECT_NE(state(*copy), before);
        const auto second = table.copy();
        change(*second->copy());
        EXPECT_EQ(state(*second), before);
    }
}

TEST_F(RecordsetCopy, TheOriginalChangesAsIfItHadNoCopy) {
    for (const auto& change : changes) {
        const auto alone = table.copy();
        change(*alone);
        const auto original = table.copy();
        const auto copy = original->copy();
        const std::string before = state(*copy);
        change(*original);
        EXPECT_EQ(state(*original), state(*alone));
        EXPECT_EQ(state(*copy), before);
    }
}

TEST_F(RecordsetCopy, AnAddedRowThatIsNotListedYetStaysCurrentInTheCopy) {
    table.addNew();
    const auto copy = table.copy();
    copy->set(0, "Y");
    table.set(0, "X");
    EXPECT_EQ(valueText(copy->get(0)) + valueText(table.get(0)), "YX");
    EXPECT_EQ(table.rowCount(), 5);
}

TEST_F(RecordsetCopy, ACellThatTakesNoSuchValueLeavesTheRowsShared) {
    const auto copy = table.copy();
    EXPECT_THROW(copy->set(1, "seven"), RuntimeError);
    EXPECT_EQ(copy->allRows()[0].data(), table.allRows()[0].data());
}

TEST_F(RecordsetCopy, ReplaceChangesARowThatTheFilterHidesAndMovesNothing) {
    const int place = table.absolutePosition();
    table.replace(0, 0, "Z");
    table.replace(0, 1, 9);
    table.replace(7, 0, "no such row");
    EXPECT_EQ(all(table), "Z9 B1 C2 D2 ");
    EXPECT_EQ(table.absolutePosition(), place);
    EXPECT_EQ(table.rowsOfKey(9).size(), 1U);
    EXPECT_EQ(table.rowsOfKey(1).size(), 1U);
}

TEST_F(RecordsetCopy, TheTwoMayBeChangedInTwoThreads) {
    for (int round = 0; round < 50; ++round) {
        const auto copy = table.copy();
        const std::string before = all(table);
        std::thread worker([&copy] {
            for (int number = 0; number < 20; ++number)
                copy->replace(number % 4, 0, std::to_string(number));
        });
        EXPECT_EQ(all(table), before);
        table.replace(0, 0, std::to_string(round));
        worker.join();
        EXPECT_EQ(all(*copy), "161 171 182 192 ");
        EXPECT_EQ(all(table).substr(0, all(table).find(' ')), std::to_string(round) + "1");
    }
}

}  // namespace
}  // namespace plandesk
