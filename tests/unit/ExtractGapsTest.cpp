#include "proposal/ExtractGaps.h"

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"

namespace plandesk {
namespace {

const Date today{2024, 3, 9};

void openGap(Recordset& table, int number, GapKind kind, Date day) {
    renumber(table, Renumbering({.added = {number}, .deleted = {}}), kind, day);
}

void closeGap(Recordset& table, int number) {
    renumber(table, Renumbering({.added = {}, .deleted = {number}}), GapKind::NumberOnly, today);
}

struct ExtractGaps : testing::Test {
    void addOwner(int extract, const std::string& name) {
        owners.addNew();
        owners.set("ExtNo", extract);
        owners.set("Name", name);
        owners.update();
    }

    /// Number and name of each row in table order.
    static std::string rowsOf(const Recordset& table, int name = 2) {
        std::string text;
        for (const auto& row : table.allRows())
            text += valueText(row[0]) + valueText(row[static_cast<std::size_t>(name)]) + " ";
        return text;
    }

    Tables tables;
    Recordset& owners = tables.ensure(&Tables::rsOwner712);
};

TEST_F(ExtractGaps, OpenOnAnEmptyTableOnlyAddsTheRow) {
    openGap(owners, 3, GapKind::NumberOnly, today);
    EXPECT_EQ(rowsOf(owners), "3 ");
    EXPECT_EQ(owners.get("ExtNo"), Value(3));
    for (int column = 1; column < 6; ++column)
        EXPECT_TRUE(isNull(owners.get(column)));
}

TEST_F(ExtractGaps, OpenMovesTheHigherNumbersUpAndAddsTheRowBehind) {
    for (const auto& [extract, name] : std::vector<std::pair<int, const char*>>{{1, "a"}, {2, "b"}, {2, "c"}, {3, "d"}})
        addOwner(extract, name);
    openGap(owners, 2, GapKind::NumberOnly, today);
    EXPECT_EQ(rowsOf(owners), "1a 3b 3c 4d 2 ");
}

TEST_F(ExtractGaps, OpenBehindTheHighestNumberMovesNothing) {
    addOwner(1, "a");
    openGap(owners, 2, GapKind::NumberOnly, today);
    EXPECT_EQ(rowsOf(owners), "1a 2 ");
}

TEST_F(ExtractGaps, OpenLeavesTheTableSortedAndWithoutAFilterOnTheNewRow) {
    addOwner(1, "a");
    addOwner(2, "b");
    owners.setFilter("ExtNo = 7");
    openGap(owners, 1, GapKind::NumberOnly, today);
    EXPECT_EQ(rowsOf(owners), "2a 3b 1 ");
    EXPECT_EQ(owners.filter(), "");
    EXPECT_EQ(owners.sort(), " ExtNo ");
    EXPECT_EQ(owners.recordCount(), 3);
    EXPECT_EQ(owners.absolutePosition(), 3);
    EXPECT_EQ(owners.get("ExtNo"), Value(1));
    // The sort stays and counts from the next filter on.
    owners.setFilter("");
    EXPECT_EQ(owners.get("ExtNo"), Value(1));
}

TEST_F(ExtractGaps, OpenPutsWhatTheKindSaysIntoTheNewRow) {
    tables.createAllTables();
    openGap(*tables.rsExtract712, 1, GapKind::Dated, today);
    EXPECT_EQ(tables.rsExtract712->get("DateOf712"), Value(today));
    EXPECT_TRUE(isNull(tables.rsExtract712->get("CumulativeArea")));
    openGap(*tables.rsOwnership, 1, GapKind::WithStatus, today);
    EXPECT_EQ(tables.rsOwnership->get("DocStatus"), Value("0"));
    EXPECT_TRUE(isNull(tables.rsOwnership->get("Name")));
    openGap(*tables.rsExtract712, 1, GapKind::NumberOnly, today);
    EXPECT_TRUE(isNull(tables.rsExtract712->get("DateOf712")));
    EXPECT_EQ(static_cast<int>(GapKind::NumberOnly), -1);
    EXPECT_EQ(static_cast<int>(GapKind::Dated), 1);
    EXPECT_EQ(static_cast<int>(GapKind::WithStatus), 2);
}

TEST_F(ExtractGaps, OpenStartsAtTheHighestNumberAndOverflowsThereBeforeAnyRowHasMoved) {
    addOwner(5, "a");
    addOwner(2147483647, "b");
    try {
        openGap(owners, 1, GapKind::NumberOnly, today);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number, 6);
    }
    EXPECT_EQ(rowsOf(owners), "5a 2147483647b ");
}

TEST_F(ExtractGaps, CloseDeletesTheExtractAndMovesTheHigherNumbersDown) {
    for (const auto& [extract, name] :
         std::vector<std::pair<int, const char*>>{{4, "a"}, {2, "b"}, {1, "c"}, {2, "d"}, {3, "e"}, {3, "f"}})
        addOwner(extract, name);
    owners.setFilter("ExtNo = 9");
    closeGap(owners, 2);
    EXPECT_EQ(rowsOf(owners), "3a 1c 2e 2f ");
    EXPECT_EQ(owners.filter(), "");
    EXPECT_EQ(owners.absolutePosition(), 1);
    EXPECT_EQ(owners.get("Name"), Value("a"));
}

TEST_F(ExtractGaps, CloseOfTheHighestNumberChangesNoOther) {
    addOwner(1, "a");
    addOwner(2, "b");
    closeGap(owners, 2);
    EXPECT_EQ(rowsOf(owners), "1a ");
}

TEST_F(ExtractGaps, CloseWorksOnAnEmptyTableAndOnTheLastRow) {
    closeGap(owners, 1);
    addOwner(1, "a");
    closeGap(owners, 1);
    EXPECT_EQ(owners.rowCount(), 0);
    EXPECT_TRUE(owners.eof());
}

TEST_F(ExtractGaps, LeaveRowsWithoutANumberAlone) {
    owners.addNew();
    owners.set("Name", "x");
    addOwner(1, "a");
    openGap(owners, 1, GapKind::NumberOnly, today);
    closeGap(owners, 1);
    EXPECT_EQ(rowsOf(owners), "x 1a ");
}

TEST_F(ExtractGaps, AreMadeInTwelveTablesInTheToldOrderAndKind) {
    const auto described = [](const ExtractFamily& family) {
        std::string text;
        for (const GapTable& each : gapTables(family)) {
            const auto definition = std::ranges::find(tableDefinitions(), each.table, &TableDefinition::table);
            text += std::string(definition->name) + "(" + std::to_string(static_cast<int>(each.kind)) + ")" +
                    (each.shared ? "+ " : " ");
        }
        return text;
    };
    EXPECT_EQ(described(family712),
              "rsExtract712(1) rsOwner712(-1) rsPAH712(-1) rsOwnership(2)+ rsULCOrder(-1)+ rsSchemeGrid(-1)+ "
              "rsULCOrderUS22(-1)+ rsUS84Plots(-1)+ rsULCOrderUS84(-1)+ rsULCOrderUS20a1(-1)+ rsSchemeBuilt(-1)+ "
              "rsSchemeSold(-1)+ ");
    EXPECT_EQ(described(familyPRC),
              "rsExtractPRC(1) rsOwnerPRC(-1) rsPAHPRC(-1) rsOwnership(2)+ rsULCOrder(-1)+ rsSchemeGrid(-1)+ "
              "rsULCOrderUS22(-1)+ rsUS84Plots(-1)+ rsULCOrderUS84(-1)+ rsULCOrderUS20a1(-1)+ rsSchemeBuilt(-1)+ "
              "rsSchemeSold(-1)+ ");
}

TEST_F(ExtractGaps, OpenAndCloseInEveryTableOfBothFamilies) {
    for (const ExtractFamily* family : {&family712, &familyPRC}) {
        for (const GapTable& each : gapTables(*family)) {
            Recordset& table = tables.ensure(each.table);
            const int before = table.rowCount();
            openGap(table, 1, each.kind, today);
            openGap(table, 1, each.kind, today);
            EXPECT_EQ(table.rowCount(), before + 2);
            closeGap(table, 1);
            EXPECT_EQ(table.rowCount(), before + 1);
            table.setFilter("ExtNo = 1");
            EXPECT_EQ(table.recordCount(), 1);
        }
    }
}

TEST_F(ExtractGaps, RenumberAsAPlainListOfNumbersWould) {
    constexpr unsigned seed = 712;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::vector<std::pair<int, std::string>> plain;  // number and name in table order
    for (int step = 0; step < 2000 && !HasFailure(); ++step) {
        const int number = std::uniform_int_distribution<int>(1, 12)(random);
        switch (step % 5) {
        case 0:
        case 1:
            openGap(owners, number, GapKind::NumberOnly, today);
            for (auto& row : plain)
                row.first += row.first >= number;
            plain.emplace_back(number, "");
            break;
        case 2:
            addOwner(number, std::to_string(step));
            plain.emplace_back(number, std::to_string(step));
            break;
        default:
            closeGap(owners, number);
            std::erase_if(plain, [number](const auto& row) { return row.first == number; });
            for (auto& row : plain)
                row.first -= row.first > number;
        }
        std::string expected;
        for (const auto& [extract, name] : plain)
            expected += std::to_string(extract) + name + " ";
        ASSERT_EQ(rowsOf(owners), expected) << "step " << step;
    }
    EXPECT_FALSE(plain.empty());
}

}  // namespace
}  // namespace plandesk
