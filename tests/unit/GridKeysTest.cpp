#include <array>

#include <gtest/gtest.h>

#include "controls/Controls.h"
#include "controls/User.h"
#include "proposal/Grid.h"
#include "unit/TestPorts.h"

namespace plandesk::test {
namespace {

using Log = std::vector<std::string>;

constexpr std::array columns = {
    Column{"No", ColumnKind::Integer},  Column{"Label", ColumnKind::Text}, Column{"Name", ColumnKind::Text},
    Column{"Area", ColumnKind::Double}, Column{"On", ColumnKind::Date},    Column{"Done", ColumnKind::Boolean},
};

constexpr std::array settings = std::to_array<GridColumn>({
    {.caption = "No", .width = 0},
    {.caption = "Label", .locked = true},
    {.caption = "Name"},
    {.caption = "Area"},
    {.caption = "On", .button = true},
    {.caption = "Done", .locked = true, .button = true, .yesNo = true},
});

struct GridForm : Form {
    explicit GridForm(Screen& screen) : Form(screen, "frmGrid", "Grid") {
        grid.afterColumnUpdate = [this](int column) { log.push_back("updated " + std::to_string(column)); };
        grid.rowColumnChange = [this] {
            log.push_back("cell " + std::to_string(grid.currentRow()) + " " + std::to_string(grid.currentColumn()));
        };
        grid.click = [this](int column) { log.push_back("click " + std::to_string(column)); };
        grid.buttonClick = [this](int column) { log.push_back("button " + std::to_string(column)); };
        grid.afterDelete = [this] { log.push_back("deleted"); };
        grid.lostFocus = [this] { log.push_back("left"); };
    }
    const Layout& layout() const override {
        static constexpr LayoutRow rows[] = {{"", "", "before grid behind"}};
        static constexpr LayoutGroup groups[] = {{"", rows}};
        static constexpr LayoutPage pages[] = {{groups}};
        static constexpr Layout sheet{.pages = pages};
        return sheet;
    }
    int keyPress(int key) const override { return key == '#' ? 0 : key; }
    void functionKey(std::string_view key) override { log.emplace_back(key); }

    Log log;
    TextBox before{*this, "before"};
    Grid grid{*this, "grid"};
    GridEditor<ComboBox> editor{grid, "editor"};
    TextBox behind{*this, "behind"};
};

struct GridKeys : testing::Test {
    GridKeys() {
        for (const std::string_view name : {"first", "second"}) {
            table->addNew();
            table->set("Name", std::string(name));
            table->set("Done", false);
            table->update();
        }
        table->moveFirst();
        grid.bind(table);
        grid.setColumns(settings);
        form.log.clear();
    }

    Log take() { return std::exchange(form.log, {}); }
    void press(std::initializer_list<std::string_view> keys) {
        for (const std::string_view key : keys)
            user::press(grid, key);
    }
    std::string cell(int row, int column) { return grid.cellText(row, column); }

    TestPorts ports;
    Screen screen{ports};
    GridForm form{screen};
    Grid& grid = form.grid;
    std::shared_ptr<Recordset> table = std::make_shared<Recordset>(columns);
};

TEST_F(GridKeys, AnUnboundGridShowsNothing) {
    grid.bind(nullptr);
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_EQ(grid.columnCount(), 0);
    EXPECT_EQ(grid.currentRow(), -1);
    EXPECT_FALSE(user::editCell(grid, 0, 2, "x"));
    EXPECT_FALSE(user::clickCell(grid, 0, 2));
    press({"a", "Backspace", "Space", "Enter"});
    EXPECT_FALSE(grid.editing());
}

TEST_F(GridKeys, AClickMakesTheCellCurrentAndThenClicks) {
    EXPECT_TRUE(user::clickCell(grid, 1, 2));
    EXPECT_EQ(take(), (Log{"cell 1 2", "click 2"}));
    EXPECT_TRUE(user::clickCell(grid, 1, 2));
    EXPECT_EQ(take(), Log{"click 2"});
    EXPECT_TRUE(user::goToCell(grid, 0, 3));
    EXPECT_EQ(take(), Log{"cell 0 3"});
}

TEST_F(GridKeys, TypingStartsAnEditInPlaceOfWhatStoodThereAndContinuesIt) {
    user::goToCell(grid, 0, 2);
    press({"n", "#", "e", "Space", "w"});
    EXPECT_EQ(grid.editText(), "ne w");
    EXPECT_EQ(cell(0, 2), "first");
    press({"Enter"});
    EXPECT_EQ(cell(0, 2), "ne w");
    EXPECT_EQ(grid.currentColumn(), 3);
}

TEST_F(GridKeys, BackspaceShortensWhatStandsThere) {
    user::goToCell(grid, 0, 2);
    press({"Backspace", "Backspace", "é", "Backspace", "m", "Tab"});
    EXPECT_EQ(cell(0, 2), "firm");
}

TEST_F(GridKeys, EscGivesBackTheOldValueAndOtherwiseGoesToTheForm) {
    user::goToCell(grid, 0, 2);
    take();
    press({"x", "Esc"});
    EXPECT_FALSE(grid.editing());
    EXPECT_EQ(cell(0, 2), "first");
    EXPECT_EQ(take(), Log{});
    press({"Esc"});
    EXPECT_EQ(take(), Log{"Esc"});
}

TEST_F(GridKeys, FunctionKeysTakeTheEditInAndGoToTheForm) {
    user::goToCell(grid, 0, 2);
    take();
    press({"x", "F2", "F3"});
    EXPECT_EQ(cell(0, 2), "x");
    EXPECT_EQ(take(), (Log{"updated 2", "F2", "F3"}));
}

TEST_F(GridKeys, TabGoesToTheNextCellThatCanBeUsedAndOutBehindTheLast) {
    user::goToCell(grid, 0, 2);
    take();
    press({"Tab", "Tab", "Tab", "Tab"});
    EXPECT_EQ(take(), (Log{"cell 0 3", "cell 0 4", "cell 0 5", "cell 1 2"}));
    press({"Enter", "Enter", "Enter", "Enter"});
    EXPECT_TRUE(form.behind.focused());
    EXPECT_EQ(take().back(), "left");
}

TEST_F(GridKeys, ShiftTabGoesBackAndOutBeforeTheFirst) {
    user::goToCell(grid, 1, 2);
    press({"Shift+Tab"});
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_EQ(grid.currentColumn(), 5);
    press({"Shift+Tab", "Shift+Tab", "Shift+Tab", "Shift+Tab"});
    EXPECT_TRUE(form.before.focused());
}

TEST_F(GridKeys, EnterAsksTheFormFirst) {
    grid.enterKey = [this] {
        form.log.push_back("enter");
        return true;
    };
    user::goToCell(grid, 0, 2);
    take();
    press({"Enter"});
    EXPECT_EQ(take(), Log{"enter"});
    EXPECT_EQ(grid.currentColumn(), 2);
}

TEST_F(GridKeys, SpacePressesTheButtonOfALockedCell) {
    user::goToCell(grid, 0, 5);
    take();
    press({"Space"});
    EXPECT_EQ(take(), Log{"button 5"});
}

TEST_F(GridKeys, OpeningACellPressesItsButtonAndClicksOneWithout) {
    user::goToCell(grid, 0, 4);
    take();
    EXPECT_TRUE(user::openCell(grid));
    EXPECT_EQ(take(), Log{"button 4"});
    user::goToCell(grid, 1, 2);
    take();
    EXPECT_TRUE(user::openCell(grid));
    EXPECT_EQ(take(), Log{"click 2"});
    grid.bind(nullptr);
    EXPECT_FALSE(user::openCell(grid));
    EXPECT_EQ(take(), Log{});
}

TEST_F(GridKeys, LeavingTheGridEndsTheEdit) {
    user::goToCell(grid, 0, 2);
    take();
    press({"x"});
    user::focus(form.behind);
    EXPECT_EQ(cell(0, 2), "x");
    EXPECT_EQ(take(), (Log{"updated 2", "left"}));
}

TEST_F(GridKeys, AnotherTableGivesUpTheEdit) {
    user::goToCell(grid, 0, 2);
    press({"n", "e", "w"});
    auto other = std::make_shared<Recordset>(columns);
    other->addNew();
    other->set("Name", "other");
    other->update();
    grid.bind(other);
    EXPECT_FALSE(grid.editing());
    press({"Tab"});
    EXPECT_EQ(cell(0, 2), "other");
    grid.bind(table);
    EXPECT_EQ(cell(0, 2), "first");
}

TEST_F(GridKeys, AnotherCellEndsTheEditInTheOldOne) {
    user::goToCell(grid, 0, 2);
    press({"x"});
    user::clickCell(grid, 1, 3);
    EXPECT_EQ(cell(0, 2), "x");
    EXPECT_EQ(cell(1, 2), "second");
}

TEST_F(GridKeys, AnEditorThatComesUpInsteadTakesTheKeys) {
    grid.editStart = [this](int column) {
        form.log.push_back("start " + std::to_string(column));
        return column != 4;
    };
    user::goToCell(grid, 0, 4);
    take();
    press({"1"});
    EXPECT_FALSE(grid.editing());
    user::goToCell(grid, 0, 3);
    take();
    press({"1", "2"});
    EXPECT_EQ(take(), Log{"start 3"});
    EXPECT_EQ(grid.editText(), "12");
}

TEST_F(GridKeys, RowsAreDeletedOnlyWhereTheGridAllowsItAndTheFormDoesNotMind) {
    grid.allowDelete = false;
    EXPECT_FALSE(user::deleteRow(grid, 0));
    grid.allowDelete = true;
    bool minds = true;
    grid.beforeDelete = [&] { return !minds; };
    EXPECT_TRUE(user::deleteRow(grid, 0));
    EXPECT_EQ(grid.rowCount(), 2);
    minds = false;
    EXPECT_TRUE(user::deleteRow(grid, 0));
    EXPECT_EQ(take(), Log{"deleted"});
    EXPECT_EQ(cell(0, 2), "second");
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_TRUE(user::deleteRow(grid, 0));
    EXPECT_EQ(grid.rowCount(), 0);
    EXPECT_EQ(grid.currentRow(), -1);
    EXPECT_FALSE(user::deleteRow(grid, 0));
}

TEST_F(GridKeys, TheLastRowIsCurrentAfterTheOneBehindItWent) {
    user::deleteRow(grid, 1);
    EXPECT_EQ(grid.currentRow(), 0);
}

TEST_F(GridKeys, TabAndEnterInAFloatingEditorGoOnInItsGrid) {
    user::goToCell(grid, 0, 2);
    grid.place(form.editor, 2);
    user::press(form.editor, "Enter");
    EXPECT_TRUE(grid.focused());
    EXPECT_EQ(grid.currentColumn(), 3);
    user::press(form.editor, "Shift+Tab");
    EXPECT_TRUE(grid.focused());
    EXPECT_EQ(grid.currentColumn(), 2);
}

TEST_F(GridKeys, TabIntoTheGridLeadsToTheFirstCellThatCanBeUsed) {
    EXPECT_EQ(grid.currentColumn(), 0);
    EXPECT_EQ(grid.keyColumn(), 2);
    user::press(form.before, "Tab");
    EXPECT_TRUE(grid.focused());
    EXPECT_EQ(take(), Log{"cell 0 2"});
    press({"Tab"});
    EXPECT_EQ(grid.currentColumn(), 3);
    user::clickCell(grid, 1, 1);
    user::press(form.before, "Tab");
    EXPECT_EQ(grid.currentRow(), 1);
    EXPECT_EQ(grid.currentColumn(), 2);
}

TEST_F(GridKeys, TheFirstTabInAGridLeadsToTheFirstCellThatCanBeUsed) {
    press({"Tab"});
    EXPECT_EQ(grid.currentColumn(), 2);
    press({"Tab"});
    EXPECT_EQ(grid.currentColumn(), 3);
}

TEST_F(GridKeys, AGridWithoutAUsableCellIsPassedOver) {
    static constexpr GridColumn hidden{.caption = "", .width = 0};
    static constexpr GridColumn fixed{.caption = "Fixed", .locked = true};
    static constexpr std::array locked = std::to_array<GridColumn>({hidden, fixed, fixed, hidden, hidden, hidden});
    grid.setColumns(locked);
    EXPECT_EQ(grid.keyColumn(), 1);
    user::press(form.before, "Tab");
    press({"Tab"});
    EXPECT_TRUE(form.behind.focused());
}

TEST_F(GridKeys, DeleteEmptiesACellThatCanBeTypedInto) {
    user::goToCell(grid, 0, 2);
    take();
    EXPECT_TRUE(user::clearCell(grid));
    EXPECT_EQ(cell(0, 2), "");
    EXPECT_EQ(take(), Log{"updated 2"});
    EXPECT_EQ(grid.rowCount(), 2);
    user::editCell(grid, 0, 3, "12.5");
    EXPECT_TRUE(user::clearCell(grid));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(table->get("Area")));
    for (const int column : {1, 5}) {
        user::goToCell(grid, 1, column);
        EXPECT_FALSE(user::clearCell(grid));
    }
    EXPECT_EQ(cell(1, 5), "No");
    grid.editStart = [](int) { return false; };  // an editor of the form fills the cell
    user::goToCell(grid, 1, 2);
    EXPECT_FALSE(user::clearCell(grid));
    EXPECT_EQ(cell(1, 2), "second");
    grid.bind(nullptr);
    EXPECT_FALSE(user::clearCell(grid));
}

TEST_F(GridKeys, TypingIntoAGridWithoutACurrentRowStartsInTheFirst) {
    table->setAbsolutePosition(2);
    table->moveNext();
    ASSERT_EQ(grid.currentRow(), -1);
    press({"Tab", "x", "Tab"});
    EXPECT_EQ(cell(0, 2), "x");
}

}  // namespace
}  // namespace plandesk::test
