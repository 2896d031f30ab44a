#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "controls/Control.h"
#include "controls/Form.h"
#include "controls/Screen.h"
#include "proposal/Recordset.h"

namespace plandesk {

class Button;
class ComboBox;

/// How one column of a grid stands on the screen. The columns of a grid are those of its table, by place.
struct GridColumn {
    std::string_view caption;
    int width = 1000;         ///< in twips, 1/1440 inch; 0 hides the column
    bool locked = false;      ///< the user cannot type into it
    bool button = false;      ///< a button stands in the current cell
    bool yesNo = false;       ///< a boolean reads "Yes" and "No", and is typed so in any case
    bool whole = false;       ///< its texts are the form's own words and are always shown whole
    bool holdsIndex = false;  ///< the cell holds the index of an item of its list, from 0
};

/// A grid bound to an in-memory table: it shows the table's visible rows and has the table's current row. Sorting and
/// filtering stay the table's. Rows and columns count from 0; rows count the visible ones.
class Grid : public Control {
public:
    Grid(Form& form, std::string_view name);

    /// After an assignment from the grid of the same form elsewhere: shows that table instead, its copy, in the same
    /// state, under an edit as before, and has the editors of its own form over its cells.
    void settleIn(std::shared_ptr<Recordset> table);
    const std::shared_ptr<Recordset>& tableReference() const { return source; }
    /// A null reference unbinds: the grid then shows nothing.
    void bind(std::shared_ptr<Recordset> table);
    Recordset* table() const { return source.get(); }
    /// Shows the table's present rows anew.
    void refresh() { touched(); }
    /// The settings must outlive the grid. Columns of the table beyond them are shown with the table's own names.
    void setColumns(std::span<const GridColumn> columns);
    GridColumn column(int column) const;
    int columnCount() const { return source ? static_cast<int>(source->columns().size()) : 0; }
    int rowCount() const { return source ? source->recordCount() : 0; }
    std::string cellText(int row, int column) const;
    /// The text of a cell that holds one, which may be long; null for any other.
    const std::string* heldText(int row, int column) const;
    /// The cell that is current; row -1 when the table has no current row.
    int currentRow() const;
    int currentColumn() const { return atColumn; }
    /// Whether the user can type into the column.
    bool editable(int column) const;
    /// The column that keys go to: the current one, or while that has no width the first that can be typed into or has
    /// a button, or else the first that can be seen. -1 when none can.
    int keyColumn() const;
    /// The list whose items alone the user brings into the cells of the column; null for another column.
    ComboBox* listAt(int column) const { return listOf ? listOf(column) : nullptr; }

    // The user's acts. Each is false where the cell is not there for it; nothing happens then.

    /// Makes the cell current: `rowColumnChange` when it was another, then `click`.
    bool clickCell(int row, int column);
    /// Takes the typed text into the table, converted to the column's kind, then runs `afterColumnUpdate`. A text that
    /// the column cannot take is refused and the old value kept. An empty text empties a cell that holds no text.
    bool editCell(int row, int column, std::string_view text);
    bool pressButton(int row, int column);
    /// Brings up what the current cell has to offer: presses its button, or clicks a cell that has none.
    bool openCell();
    /// Delete: empties the current cell as an edit does. A cell that a list or another editor fills keeps its value.
    bool clearCell();
    /// Asks `beforeDelete`, deletes the row, and runs `afterDelete`; the row that came behind is current then, or the
    /// last one.
    bool deleteRow(int row);
    /// A character starts or continues an edit, Backspace shortens what stands there, Esc gives it back; in a cell that
    /// takes the items of a list it opens the list and chooses there. Tab ends the edit and goes to the next cell that
    /// can be typed into or has a button, and from the last one out of the grid; Enter does the same where `enterKey`
    /// leaves it. Space presses the button of a cell that cannot be typed into, Space and Enter a button of the form
    /// that floats over the current cell.
    std::string_view keyDown(std::string_view key) override;
    /// Goes on to the first cell of the row that can be typed into or has a button, unless the current one can.
    void tabbedInto() override;

    /// Moves the current cell as code does or a key would: `rowColumnChange` when it was another.
    void moveTo(int row, int column);

    // An edit under way: what is typed into the current cell until it is left or given up.

    bool editing() const { return typed.has_value(); }
    const std::string& editText() const { return *typed; }
    /// Runs `editStart` first. Where the cell takes the items of a list, the text is taken at once when it is one of
    /// them, blanks around it and case aside. False, and nothing happens, where the current cell does not take the
    /// text.
    bool beginEdit(std::string_view text);
    /// Takes what was typed into the table as editCell does.
    void endEdit();
    /// Gives back the old value.
    void cancelEdit();

    /// An editor of the form that floats over a cell of the current row.
    struct Floating {
        Control* editor = nullptr;
        int row = -1;
        int column = -1;
    };
    /// Places the editor over the cell of the current row in that column, in front.
    void place(Control& editor, int column);
    /// Where the editor floats; row -1 when it was not placed over this grid.
    Floating floating(const Control& editor) const;
    /// Every editor that was placed over this grid, shown or not, the front one last.
    std::span<const Floating> floatingEditors() const { return editors; }

    /// The label stands below the grid from now on, where that column stands and as wide, whatever width the user
    /// draws the column to. Its row in the layout names the grid.
    void placeBelow(const Control& label, int column);
    /// The column above the label; -1 when it was not placed below this grid.
    int columnAbove(const Control& label) const;

    bool fire(std::string_view event) override;
    void loseFocus() override;

    bool allowDelete = true;
    Fixed<std::function<void(int column)>> afterColumnUpdate;
    Fixed<std::function<void()>> rowColumnChange;
    Fixed<std::function<void(int column)>> click;
    Fixed<std::function<void(int column)>> buttonClick;
    /// The user starts to type into a cell; false when the reaction brought up an editor that takes the keys instead.
    Fixed<std::function<bool(int column)>> editStart;
    Fixed<std::function<ComboBox*(int column)>> listOf;  ///< what listAt gives
    Fixed<std::function<bool()>> beforeDelete;           ///< false cancels
    Fixed<std::function<void()>> afterDelete;
    /// Enter on the current cell; true when the reaction did all, false to act as Tab.
    Fixed<std::function<bool()>> enterKey;

private:
    bool has(int row, int column) const;
    bool isCurrent(int row, int column) const;
    /// What the current column makes of a typed text. RuntimeError 13 or 6 for one that it cannot take.
    Value cellValue(const std::string& text) const;
    bool reachable(int column) const;
    int firstUsable() const;
    bool settle(bool placed);
    bool startEdit();
    bool takeItem(ComboBox& list, std::string_view text);
    void openList(ComboBox& list, std::string_view key);
    bool pressFloating();
    bool moveOn(bool forward);
    void typeKey(char32_t key);
    void eraseLast();

    std::shared_ptr<Recordset> source;
    std::span<const GridColumn> settings;
    int atColumn = 0;
    std::optional<std::string> typed;
    std::vector<Floating> editors;
    const Control* labelBelow = nullptr;
    int labelColumn = -1;
};

/// A control that floats over the cells of a grid: Tab and Enter go on to the grid's next cell, Esc back to the grid.
/// Enter presses a button.
template <class Kind>
class GridEditor : public Kind {
public:
    template <class... More>
    GridEditor(Grid& grid, std::string_view name, More... more) : Kind(grid.form(), name, more...), grid(grid) {}

    std::string_view keyDown(std::string_view key) override {
        if (key != "Tab" && key != "Shift+Tab" && key != "Enter" && key != "Esc")
            return Kind::keyDown(key);
        if (!grid->takesFocus())
            return key;
        if constexpr (std::is_base_of_v<Button, Kind>) {
            if (key == "Enter") {
                this->press();
                return "";
            }
        }
        return grid->form().screen().moveFocus(*grid) && key != "Esc" ? grid->keyDown(key) : "";
    }

private:
    Fixed<Grid&> grid;
};

namespace user {

// As the acts of the same names in controls/User.h: one event each, with the focus moved to the grid first.

bool editCell(Grid& grid, int row, int column, std::string_view text);
bool clickCell(Grid& grid, int row, int column);
/// An arrow key: makes the cell current without a click. False for a hidden column.
bool goToCell(Grid& grid, int row, int column);
bool pressCellButton(Grid& grid, int row, int column);
bool openCell(Grid& grid);
bool clearCell(Grid& grid);
bool deleteRow(Grid& grid, int row);
/// A text editor changed the text of the current cell as a whole (a paste, a cut): no key filter sees it. Starts an
/// edit where none is under way; false where the cell takes none.
bool editText(Grid& grid, std::string_view text);

}  // namespace user
}  // namespace plandesk
