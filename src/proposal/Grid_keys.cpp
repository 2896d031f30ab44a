// What keys do to a grid, and the user's acts on one.

#include <algorithm>
#include <functional>
#include <utility>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/User.h"
#include "proposal/Grid.h"

namespace plandesk {

std::string_view Grid::keyDown(std::string_view key) {
    if (key == "Esc" && editing()) {
        cancelEdit();
        return "";
    }
    if (key == "Esc" || key == "F2" || key == "F3") {
        endEdit();
        return key;
    }
    const bool settled = settle(column(atColumn).width > 0);
    if (!settled && (key == "Space" || key == "Enter") && pressFloating())
        return "";
    if (key == "Enter" && enterKey && enterKey())
        return "";
    if (key == "Shift+Tab")
        return moveOn(false) ? "" : key;
    if (key == "Enter" || key == "Tab")
        return (settled && reachable(atColumn)) || moveOn(true) ? "" : "Tab";
    if (key == "Space" && !editable(atColumn))
        pressButton(currentRow(), atColumn);
    else if (key == "Backspace")
        eraseLast();
    else if (const std::u32string points = codePoints(key == "Space" ? " " : key); points.size() == 1)
        typeKey(points.front());
    else
        return key;
    return "";
}

/// The first column that can be typed into or has a button, else the first that can be seen; -1 when none can.
int Grid::firstUsable() const {
    int seen = -1;
    for (int place = 0; place < columnCount(); ++place) {
        if (reachable(place))
            return place;
        if (seen < 0 && column(place).width > 0)
            seen = place;
    }
    return seen;
}

int Grid::keyColumn() const {
    return column(atColumn).width > 0 ? atColumn : firstUsable();
}

/// Keys need a cell: when there is no current row, or the current column is not `placed` well, the first cell that keys
/// can use becomes current. Tells whether it did.
bool Grid::settle(bool placed) {
    const int usable = firstUsable();
    if ((placed && currentRow() >= 0) || rowCount() == 0 || usable < 0)
        return false;
    moveTo(std::max(currentRow(), 0), usable);
    return true;
}

void Grid::tabbedInto() {
    settle(reachable(atColumn));
}

/// Presses the button of the form that floats over the current cell; false without one, or while the cell is edited.
bool Grid::pressFloating() {
    const auto above = std::ranges::find_if(editors, [this](const Floating& floating) {
        return isCurrent(floating.row, floating.column) && floating.editor->takesFocus() &&
               floating.editor->kind() == ControlKind::Button;
    });
    if (editing() || above == editors.end())
        return false;
    static_cast<Button&>(*above->editor).press();
    return true;
}

/// False when there is no further cell in that direction.
bool Grid::moveOn(bool forward) {
    endEdit();
    if (!focused())  // the reaction to the edit took the focus elsewhere
        return true;
    const int columns = columnCount();
    const int step = forward ? 1 : -1;
    for (int cell = currentRow() * columns + atColumn + step; cell >= 0 && cell < rowCount() * columns; cell += step) {
        if (!reachable(cell % columns))
            continue;
        moveTo(cell / columns, cell % columns);
        return true;
    }
    return false;
}

void Grid::typeKey(char32_t key) {
    const int passed = form().keyPress(static_cast<int>(key));
    if (passed == 0)
        return;
    if (ComboBox* list = listAt(atColumn)) {
        std::string letter;
        appendUtf8(letter, static_cast<char32_t>(passed));
        return openList(*list, letter);
    }
    if (!startEdit())
        return;
    std::string text = typed.value_or("");
    appendUtf8(text, static_cast<char32_t>(passed));
    typed = std::move(text);
    touched();
}

void Grid::eraseLast() {
    if (!startEdit())
        return;
    std::u32string points = codePoints(typed ? *typed : cellText(currentRow(), atColumn));
    if (!points.empty())
        points.pop_back();
    std::string text;
    for (const char32_t point : points)
        appendUtf8(text, point);
    typed = std::move(text);
    touched();
}

namespace user {

namespace {

bool act(Grid& grid, const std::function<bool()>& action) {
    bool done = false;
    grid.form().screen().event([&] {
        done = user::focus(grid);
        if (done)
            done = action();  // an act whose reaction fails has been made all the same
    });
    return done;
}

}  // namespace

bool editCell(Grid& grid, int row, int column, std::string_view text) {
    return act(grid, [&] { return grid.editCell(row, column, text); });
}

bool clickCell(Grid& grid, int row, int column) {
    return act(grid, [&] { return grid.clickCell(row, column); });
}

bool goToCell(Grid& grid, int row, int column) {
    return act(grid, [&] {
        const bool there = row >= 0 && row < grid.rowCount() && column >= 0 && column < grid.columnCount() &&
                           grid.column(column).width > 0;
        if (there)
            grid.moveTo(row, column);
        return there;
    });
}

bool pressCellButton(Grid& grid, int row, int column) {
    return act(grid, [&] { return grid.pressButton(row, column); });
}

bool openCell(Grid& grid) {
    return act(grid, [&] { return grid.openCell(); });
}

bool clearCell(Grid& grid) {
    return act(grid, [&] { return grid.clearCell(); });
}

bool deleteRow(Grid& grid, int row) {
    return act(grid, [&] { return grid.deleteRow(row); });
}

bool editText(Grid& grid, std::string_view text) {
    return act(grid, [&] { return grid.beginEdit(text); });
}

}  // namespace user
}  // namespace plandesk
