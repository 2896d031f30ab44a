#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Control.h"
#include "proposal/Recordset.h"

namespace plandesk {

/// How one column of a grid stands on the screen. The columns of a grid are those of its table, by place.
struct GridColumn {
    std::string_view caption;
    int width = 1000;     ///< in twips, 1/1440 inch; 0 hides the column
    bool locked = false;  ///< the user cannot type into it
    bool button = false;  ///< a button stands in the current cell
    bool yesNo = false;   ///< a boolean reads "Yes" and "No", and is typed so in any case
};

/// A grid bound to an in-memory table: it shows the table's visible rows and has the table's current row. Sorting and
/// filtering stay the table's. Rows and columns count from 0; rows count the visible ones.
class Grid : public Control {
public:
    Grid(Form& form, std::string_view name);

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
    /// The cell that is current; row -1 when the table has no current row.
    int currentRow() const;
    int currentColumn() const { return atColumn; }
    /// Whether the user can type into the column.
    bool editable(int column) const;

    // The user's acts. Each is false where the cell is not there for it; nothing happens then.

    /// Makes the cell current: `rowColumnChange` when it was another, then `click`.
    bool clickCell(int row, int column);
    /// Takes the typed text into the table, converted to the column's kind, then runs `afterColumnUpdate`. A text that
    /// the column cannot take is refused and the old value kept. An empty text empties a cell that holds no text.
    bool editCell(int row, int column, std::string_view text);
    bool pressButton(int row, int column);
    /// Asks `beforeDelete`, deletes the row, and runs `afterDelete`.
    bool deleteRow(int row);

    /// Moves the current cell as code does or a key would: `rowColumnChange` when it was another.
    void moveTo(int row, int column);

    // An edit under way: what is typed into the current cell until it is left or given up.

    bool editing() const { return typed.has_value(); }
    const std::string& editText() const { return *typed; }
    void beginEdit(std::string_view text);
    /// Takes what was typed into the table as editCell does.
    void endEdit();
    /// Gives back the old value.
    void cancelEdit();

    /// An editor of the form that floats over a cell of the current row.
    struct Floating {
        const Control* editor = nullptr;
        int row = -1;
        int column = -1;
    };
    /// Places the editor over the cell of the current row in that column, in front.
    void place(Control& editor, int column);
    /// Where the editor floats; row -1 when it was not placed over this grid.
    Floating floating(const Control& editor) const;

    bool fire(std::string_view event) override;

    std::function<void(int column)> afterColumnUpdate;
    std::function<void()> rowColumnChange;
    std::function<void(int column)> click;
    std::function<void(int column)> buttonClick;
    std::function<bool()> beforeDelete;  ///< false cancels
    std::function<void()> afterDelete;
    /// Enter on the current cell; true when the reaction did all, false to act as Tab.
    std::function<bool()> enterKey;

private:
    bool has(int row, int column) const;
    bool isCurrent(int row, int column) const;
    /// What the current column makes of a typed text. RuntimeError 13 or 6 for one that it cannot take.
    Value cellValue(const std::string& text) const;

    std::shared_ptr<Recordset> source;
    std::span<const GridColumn> settings;
    int atColumn = 0;
    std::optional<std::string> typed;
    std::vector<Floating> editors;
};

namespace user {

// As the acts of the same names in controls/User.h: one event each, with the focus moved to the grid first.

bool editCell(Grid& grid, int row, int column, std::string_view text);
bool clickCell(Grid& grid, int row, int column);
bool pressCellButton(Grid& grid, int row, int column);
bool deleteRow(Grid& grid, int row);

}  // namespace user
}  // namespace plandesk
