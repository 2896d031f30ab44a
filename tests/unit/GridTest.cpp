#include "proposal/Grid.h"

#include <array>
#include <utility>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "controls/Controls.h"
#include "controls/User.h"
#include "unit/SampleForm.h"

namespace plandesk {
namespace {

using test::Log;

constexpr std::array columns = std::to_array<Column>({
    {"ExtNo", ColumnKind::Integer},
    {"OwnerName", ColumnKind::Text},
    {"Signed", ColumnKind::Boolean},
    {"AreaOfLand", ColumnKind::Double},
    {"DateOf712", ColumnKind::Date},
});

constexpr std::array settings = std::to_array<GridColumn>({
    {.caption = "Extract", .width = 0},
    {.caption = "Name of owner", .width = 3000},
    {.caption = "Signed", .button = true, .yesNo = true},
    {.caption = "Area", .locked = true},
});

struct GridTest : testing::Test, test::Desk {
    Form form{screen, "frmGrid", "Grid"};
    Grid grid{form, "dgdOwner"};
    TextBox box{form, "txtBeside"};
    std::shared_ptr<Recordset> table = std::make_shared<Recordset>(columns);
    Log log;

    GridTest() {
        for (const std::string_view owner : {"Anand", "Bhide", "Chitale"}) {
            table->addNew();
            table->set("ExtNo", owner == "Bhide" ? 2 : 1);
            table->set("OwnerName", std::string(owner));
            table->set("Signed", false);
            table->update();
        }
        table->moveFirst();
        grid.bind(table);
        grid.setColumns(settings);
        grid.afterColumnUpdate = [this](int column) { log.push_back("update " + std::to_string(column)); };
        grid.rowColumnChange = [this] { log.emplace_back("move"); };
        grid.click = [this](int column) { log.push_back("click " + std::to_string(column)); };
        grid.buttonClick = [this](int column) { log.push_back("button " + std::to_string(column)); };
        grid.afterDelete = [this] { log.emplace_back("deleted"); };
    }

    std::string owner(int row) { return valueText(table->valueAt(row + 1, 1)); }
};

TEST_F(GridTest, ShowsTheVisibleRowsOfItsTable) {
    EXPECT_EQ(grid.rowCount(), 3);
    EXPECT_EQ(grid.columnCount(), 5);
    EXPECT_EQ(grid.cellText(1, 1), "Bhide");
    EXPECT_EQ(grid.cellText(1, 2), "No");
    EXPECT_EQ(grid.cellText(1, 3), "");
    table->setFilter("ExtNo = 1");
    EXPECT_EQ(grid.rowCount(), 2);
    EXPECT_EQ(grid.cellText(1, 1), "Chitale");
}

TEST_F(GridTest, ColumnsBeyondItsSettingsBearTheirOwnNames) {
    EXPECT_EQ(grid.column(1).caption, "Name of owner");
    EXPECT_EQ(grid.column(4).caption, "DateOf712");
    EXPECT_TRUE(grid.editable(1));
    EXPECT_TRUE(grid.editable(4));
    EXPECT_FALSE(grid.editable(0)) << "hidden";
    EXPECT_FALSE(grid.editable(3)) << "locked";
}

TEST_F(GridTest, WithoutATableItShowsNothing) {
    grid.bind(nullptr);
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_EQ(grid.columnCount(), 0);
    EXPECT_EQ(grid.currentRow(), -1);
    EXPECT_FALSE(user::clickCell(grid, 0, 0));
    EXPECT_FALSE(user::editCell(grid, 0, 1, "a"));
    EXPECT_FALSE(user::deleteRow(grid, 0));
    EXPECT_EQ(log, Log{});
}

TEST_F(GridTest, EditedCellGoesToTheTableBeforeAfterColumnUpdate) {
    std::string seen;
    grid.afterColumnUpdate = [&](int column) { seen = std::to_string(column) + owner(1); };
    EXPECT_TRUE(user::editCell(grid, 1, 1, "Bapat"));
    EXPECT_EQ(seen, "1Bapat");
    EXPECT_TRUE(grid.focused());
}

TEST_F(GridTest, EditMakesTheCellCurrentFirst) {
    user::editCell(grid, 2, 1, "Deo");
    EXPECT_EQ(log, (Log{"move", "update 1"}));
    EXPECT_EQ(grid.currentRow(), 2);
    EXPECT_EQ(grid.currentColumn(), 1);
    EXPECT_EQ(table->absolutePosition(), 3);
    user::editCell(grid, 2, 1, "Deo");
    EXPECT_EQ(log.size(), 3U) << "the same cell is no move, the same text an update all the same";
}

TEST_F(GridTest, ValueIsConvertedToTheKindOfTheColumn) {
    user::editCell(grid, 0, 4, "15/3/2024");
    EXPECT_EQ(table->valueAt(1, 4), Value(Date{2024, 3, 15}));
    user::editCell(grid, 0, 2, "yes");
    EXPECT_EQ(table->valueAt(1, 2), Value(true));
    user::editCell(grid, 0, 2, "No");
    EXPECT_EQ(table->valueAt(1, 2), Value(false));
    user::editCell(grid, 0, 2, "True");
    EXPECT_EQ(grid.cellText(0, 2), "Yes");
}

TEST_F(GridTest, EmptyTextEmptiesACellThatHoldsNoText) {
    user::editCell(grid, 0, 4, "15/03/2024");
    user::editCell(grid, 0, 4, "");
    EXPECT_TRUE(isNull(table->valueAt(1, 4)));
    user::editCell(grid, 0, 1, "");
    EXPECT_EQ(table->valueAt(1, 1), Value(std::string()));
}

TEST_F(GridTest, TextThatTheColumnCannotTakeIsRefusedAndTheOldValueKept) {
    user::editCell(grid, 0, 4, "15/03/2024");
    log.clear();
    EXPECT_TRUE(user::editCell(grid, 0, 4, "31/02/2024"));
    EXPECT_TRUE(user::editCell(grid, 0, 2, "perhaps"));
    EXPECT_EQ(table->valueAt(1, 4), Value(Date{2024, 3, 15}));
    EXPECT_EQ(table->valueAt(1, 2), Value(false));
    EXPECT_EQ(log, Log{"move"});
    EXPECT_TRUE(ports.dialogs.messages.empty());
}

TEST_F(GridTest, LockedAndHiddenColumnsAndAbsentCellsAreNotEdited) {
    EXPECT_FALSE(user::editCell(grid, 0, 0, "9"));
    EXPECT_FALSE(user::editCell(grid, 0, 3, "9"));
    EXPECT_FALSE(user::editCell(grid, 3, 1, "a"));
    EXPECT_FALSE(user::editCell(grid, -1, 1, "a"));
    EXPECT_FALSE(user::editCell(grid, 0, 5, "a"));
    EXPECT_EQ(log, Log{});
    grid.setEnabled(false);
    EXPECT_FALSE(user::editCell(grid, 0, 1, "a"));
    EXPECT_EQ(owner(0), "Anand");
}

TEST_F(GridTest, ClickMakesTheCellCurrentThenFiresClick) {
    EXPECT_TRUE(user::clickCell(grid, 1, 3));
    EXPECT_TRUE(user::clickCell(grid, 1, 3));
    EXPECT_EQ(log, (Log{"move", "click 3", "click 3"}));
    EXPECT_FALSE(user::clickCell(grid, 1, 0)) << "hidden";
    EXPECT_FALSE(user::clickCell(grid, 9, 1));
}

TEST_F(GridTest, ButtonStandsInItsColumnAlone) {
    EXPECT_TRUE(user::pressCellButton(grid, 0, 2));
    EXPECT_FALSE(user::pressCellButton(grid, 0, 1));
    EXPECT_EQ(log, (Log{"move", "button 2"}));
}

TEST_F(GridTest, RowIsDeletedAfterAnswersOfBeforeDelete) {
    bool agree = false;
    grid.beforeDelete = [&] {
        log.push_back("ask for " + std::to_string(grid.currentRow()));
        return agree;
    };
    EXPECT_TRUE(user::deleteRow(grid, 1));
    EXPECT_EQ(table->recordCount(), 3);
    agree = true;
    EXPECT_TRUE(user::deleteRow(grid, 1));
    EXPECT_EQ(table->recordCount(), 2);
    EXPECT_EQ(owner(1), "Chitale");
    EXPECT_EQ(log, (Log{"move", "ask for 1", "ask for 1", "deleted"}));
    EXPECT_FALSE(user::deleteRow(grid, 2));
}

TEST_F(GridTest, EditUnderWayIsTakenWhenTheCellIsLeftAndGivenBackByCancel) {
    grid.moveTo(0, 1);
    log.clear();
    grid.beginEdit("An");
    EXPECT_TRUE(grid.editing());
    EXPECT_EQ(grid.editText(), "An");
    EXPECT_EQ(owner(0), "Anand");
    grid.cancelEdit();
    EXPECT_FALSE(grid.editing());
    EXPECT_EQ(owner(0), "Anand");
    grid.beginEdit("Ana");
    grid.moveTo(1, 1);
    EXPECT_FALSE(grid.editing());
    EXPECT_EQ(owner(0), "Ana");
    EXPECT_EQ(log, (Log{"update 1", "move"}));
}

TEST_F(GridTest, EditDoesNotBeginInALockedColumnNorWithoutARow) {
    grid.moveTo(0, 3);
    grid.beginEdit("5");
    EXPECT_FALSE(grid.editing());
    grid.moveTo(0, 1);
    table->setFilter("ExtNo = 7");
    grid.beginEdit("5");
    EXPECT_FALSE(grid.editing());
    EXPECT_EQ(grid.currentRow(), -1);
}

TEST_F(GridTest, ReactionToAnEditMayTakeTheRowsAwayThatTheUserMovesTo) {
    grid.moveTo(0, 1);
    grid.beginEdit("Ana");
    log.clear();
    grid.afterColumnUpdate = [this](int) { grid.bind(nullptr); };
    grid.moveTo(2, 1);
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_EQ(log, Log{});
    EXPECT_EQ(owner(0), "Ana");
}

TEST_F(GridTest, ReactionToAMoveMaySendTheUserElsewhere) {
    bool sent = false;
    grid.rowColumnChange = [&] {
        if (!std::exchange(sent, true))
            grid.moveTo(0, 2);
    };
    EXPECT_TRUE(user::editCell(grid, 0, 1, "lost"));
    EXPECT_EQ(owner(0), "Anand");
    EXPECT_EQ(grid.cellText(0, 2), "No");
    EXPECT_EQ(log, Log{});
}

TEST_F(GridTest, ReactionToAnEditMayTakeTheFocusThatTabWouldMove) {
    grid.moveTo(0, 1);
    grid.afterColumnUpdate = [this](int) { box.setFocus(); };
    user::press(grid, "A");
    user::press(grid, "Tab");
    EXPECT_TRUE(box.focused());
    EXPECT_EQ(grid.currentColumn(), 1);
    EXPECT_EQ(owner(0), "A");
}

TEST_F(GridTest, BoundToANarrowerTableItsCurrentColumnIsTheFirst) {
    static constexpr std::array narrow = std::to_array<Column>({{"Name", ColumnKind::Text}});
    grid.moveTo(0, 4);
    grid.bind(std::make_shared<Recordset>(narrow));
    EXPECT_EQ(grid.currentColumn(), 0);
    grid.moveTo(0, 4);
    grid.bind(table);
    EXPECT_EQ(grid.currentColumn(), 0);
}

TEST_F(GridTest, EditorFloatsOverTheCellOfTheCurrentRow) {
    box.setVisible(false);
    EXPECT_EQ(grid.floating(box).row, -1);
    grid.moveTo(1, 1);
    grid.place(box, 2);
    EXPECT_TRUE(box.visible());
    EXPECT_EQ(grid.floating(box).row, 1);
    EXPECT_EQ(grid.floating(box).column, 2);
    grid.moveTo(2, 1);
    grid.place(box, 4);
    EXPECT_EQ(grid.floating(box).row, 2);
    EXPECT_EQ(grid.floating(box).column, 4);
}

TEST_F(GridTest, UsersActsAreEventsWithTheFocusOnTheGrid) {
    box.leaveCheck = [] { return false; };
    user::focus(box);
    EXPECT_FALSE(user::editCell(grid, 0, 1, "held"));
    EXPECT_EQ(owner(0), "Anand");
    box.leaveCheck = nullptr;
    grid.afterColumnUpdate = [](int) { throw RuntimeError(ErrorNumber::Overflow); };
    EXPECT_TRUE(user::editCell(grid, 0, 1, "Ana"));
    EXPECT_EQ(ports.dialogs.take(), (std::vector<Message>{{"", "Overflow", Icon::Critical}}));
    EXPECT_EQ(owner(0), "Ana");
    EXPECT_TRUE(grid.focused());
}

TEST_F(GridTest, FormMayBeUnloadedByTheFocusThatTheGridTakes) {
    auto owner = std::make_unique<Form>(screen, "frmOther", "Other");
    Grid other{*owner, "dgdOther"};
    other.gotFocus = [&] { screen.unload(std::move(owner)); };
    screen.event([&] { EXPECT_FALSE(user::clickCell(other, 0, 1)); });
    EXPECT_EQ(screen.focused(), nullptr);
}

TEST_F(GridTest, RowColChangeRunsByName) {
    EXPECT_TRUE(form.run("dgdowner_rowcolchange"));
    EXPECT_TRUE(form.run("dgdOwner_LostFocus"));
    EXPECT_FALSE(form.run("dgdOwner_Change"));
    EXPECT_EQ(log, Log{"move"});
}

}  // namespace
}  // namespace plandesk
