#include "proposal/Grid.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Form.h"
#include "controls/Screen.h"
#include "controls/User.h"

namespace plandesk {

namespace {

constexpr std::string_view yesNoText(bool on) {
    return on ? "Yes" : "No";
}

}  // namespace

Grid::Grid(Form& form, std::string_view name) : Control(form, ControlKind::Grid, name, noIndex) {}

void Grid::bind(std::shared_ptr<Recordset> table) {
    typed.reset();
    source = std::move(table);
    if (atColumn >= columnCount())
        atColumn = 0;
    touched();
}

void Grid::setColumns(std::span<const GridColumn> columns) {
    settings = columns;
    touched();
}

GridColumn Grid::column(int column) const {
    const auto place = static_cast<std::size_t>(column);
    if (place < settings.size())
        return settings[place];
    return {.caption = source ? source->columns()[place].name : std::string_view()};
}

std::string Grid::cellText(int row, int column) const {
    const Value& value = source->valueAt(row + 1, column);
    if (const bool* on = std::get_if<bool>(&value); on && this->column(column).yesNo)
        return std::string(yesNoText(*on));
    return valueText(value);
}

int Grid::currentRow() const {
    return source ? source->absolutePosition() - 1 : -1;
}

bool Grid::has(int row, int column) const {
    return row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
}

bool Grid::isCurrent(int row, int column) const {
    return has(row, column) && currentRow() == row && atColumn == column;
}

bool Grid::editable(int column) const {
    const GridColumn setting = this->column(column);
    return setting.width > 0 && !setting.locked;
}

void Grid::moveTo(int row, int column) {
    if (!has(row, column))
        return;
    endEdit();
    // The reaction to the edit may have taken the row away.
    if (!has(row, column))
        return;
    const bool moved = row != currentRow() || column != atColumn;
    source->setAbsolutePosition(row + 1);
    atColumn = column;
    touched();
    if (moved && rowColumnChange)
        rowColumnChange();
}

bool Grid::clickCell(int row, int column) {
    if (!has(row, column) || this->column(column).width == 0)
        return false;
    moveTo(row, column);
    if (click)
        click(column);
    return true;
}

bool Grid::editCell(int row, int column, std::string_view text) {
    if (!has(row, column) || !editable(column))
        return false;
    moveTo(row, column);
    if (isCurrent(row, column)) {
        typed = text;
        endEdit();
    }
    return true;
}

void Grid::beginEdit(std::string_view text) {
    if (currentRow() < 0 || !editable(atColumn))
        return;
    typed = text;
    touched();
}

void Grid::endEdit() {
    if (!typed)
        return;
    const std::string text = *std::exchange(typed, std::nullopt);
    try {
        source->set(atColumn, cellValue(text));
    } catch (const RuntimeError&) {
        touched();  // a text that the column cannot take is refused: the old value shows again
        return;
    }
    source->update();
    touched();
    if (afterColumnUpdate)
        afterColumnUpdate(atColumn);
}

Value Grid::cellValue(const std::string& text) const {
    const ColumnKind kind = source->columns()[static_cast<std::size_t>(atColumn)].kind;
    if (text.empty() && kind != ColumnKind::Text)
        return {};
    if (column(atColumn).yesNo)
        for (const bool on : {true, false})
            if (equalsIgnoringCase(text, yesNoText(on)))
                return on;
    return toKind(text, kind);
}

void Grid::cancelEdit() {
    typed.reset();
    touched();
}

bool Grid::pressButton(int row, int column) {
    if (!has(row, column) || !this->column(column).button)
        return false;
    moveTo(row, column);
    if (buttonClick)
        buttonClick(column);
    return true;
}

bool Grid::deleteRow(int row) {
    if (!has(row, 0))
        return false;
    moveTo(row, atColumn);
    if (currentRow() != row || (beforeDelete && !beforeDelete()))
        return true;
    source->deleteRow();
    touched();
    if (afterDelete)
        afterDelete();
    return true;
}

void Grid::place(Control& editor, int column) {
    std::erase_if(editors, [&editor](const Floating& known) { return known.editor == &editor; });
    editors.push_back({&editor, currentRow(), column});
    editor.setVisible(true);
    touched();
}

Grid::Floating Grid::floating(const Control& editor) const {
    const auto known = std::ranges::find(editors, &editor, &Floating::editor);
    return known == editors.end() ? Floating{} : *known;
}

bool Grid::fire(std::string_view event) {
    return fires(event, "RowColChange", rowColumnChange) || Control::fire(event);
}

namespace user {

namespace {

bool act(Grid& grid, const std::function<bool()>& action) {
    bool done = false;
    grid.form().screen().event([&] {
        if (user::focus(grid))
            done = action();
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

bool pressCellButton(Grid& grid, int row, int column) {
    return act(grid, [&] { return grid.pressButton(row, column); });
}

bool deleteRow(Grid& grid, int row) {
    return act(grid, [&] { return grid.deleteRow(row); });
}

}  // namespace user
}  // namespace plandesk
