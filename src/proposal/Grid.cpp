#include "proposal/Grid.h"

#include <algorithm>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"

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
    atColumn = 0;
    touched();
}

void Grid::settleIn(std::shared_ptr<Recordset> table) {
    source = std::move(table);
    for (Floating& floating : editors)
        floating.editor = form().counterpart(floating.editor);
    labelBelow = form().counterpart(labelBelow);
}

void Grid::setColumns(std::span<const GridColumn> columns) {
    settings = columns;
    touched();
}

GridColumn Grid::column(int column) const {
    if (column < 0)
        return {};
    const auto place = static_cast<std::size_t>(column);
    if (place < settings.size())
        return settings[place];
    return {.caption = column < columnCount() ? source->columns()[place].name : std::string_view()};
}

const std::string* Grid::heldText(int row, int column) const {
    return std::get_if<std::string>(&source->valueAt(row + 1, column));
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
        if (editStart)
            editStart(column);
        typed = text;
        endEdit();
    }
    return true;
}

bool Grid::beginEdit(std::string_view text) {
    if (ComboBox* list = listAt(atColumn))
        return takeItem(*list, text);
    if (!startEdit())
        return false;
    typed = text;
    touched();
    return true;
}

bool Grid::startEdit() {
    if (typed)
        return true;
    return currentRow() >= 0 && editable(atColumn) && !listAt(atColumn) && (!editStart || editStart(atColumn));
}

bool Grid::takeItem(ComboBox& list, std::string_view text) {
    int item = 0;
    while (item < list.listCount() && !equalsIgnoringCase(trim(list.item(item)), trim(text)))
        ++item;
    if (item == list.listCount() || currentRow() < 0 || !editable(atColumn))
        return false;
    list.setListIndex(item);
    typed = column(atColumn).holdsIndex ? std::to_string(item) : std::string(trim(list.item(item)));
    endEdit();
    return true;
}

void Grid::openList(ComboBox& list, std::string_view key) {
    openCell();
    const bool chosen = equalsIgnoringCase(std::string_view(list.text()).substr(0, key.size()), key);
    if (list.focused() && key != " " && !chosen)
        list.pickNext(key);
}

bool Grid::clearCell() {
    settle(column(atColumn).width > 0);
    if (!startEdit())
        return false;
    typed = "";
    endEdit();
    return true;
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

bool Grid::openCell() {
    const int row = currentRow();
    return pressButton(row, atColumn) || clickCell(row, atColumn);
}

bool Grid::deleteRow(int row) {
    if (!allowDelete || !has(row, 0))
        return false;
    moveTo(row, atColumn);
    if (currentRow() != row || (beforeDelete && !beforeDelete()))
        return true;
    source->deleteRow();
    source->moveNext();
    if (source->eof() && rowCount() > 0)
        source->setAbsolutePosition(rowCount());
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

void Grid::placeBelow(const Control& label, int column) {
    labelBelow = &label;
    labelColumn = column;
    touched();
}

int Grid::columnAbove(const Control& label) const {
    return &label == labelBelow ? labelColumn : -1;
}

void Grid::loseFocus() {
    endEdit();
    Control::loseFocus();
}

bool Grid::reachable(int column) const {
    return editable(column) || (this->column(column).width > 0 && this->column(column).button);
}

bool Grid::fire(std::string_view event) {
    return fires(event, "RowColChange", rowColumnChange) || Control::fire(event);
}

}  // namespace plandesk
