#include "desktop/GridView.h"

#include <limits>

#include "controls/Form.h"
#include "desktop/LongText.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

GridView::GridView(Grid& grid, GridTable& table, CellEdit& line, ScreenView& screen, const ViewMaker& maker)
    : ControlView(grid, table, screen), table(table), line(line), maker(maker) {
    line.hide();
    line.setFrame(false);
    line.setMaxLength(std::numeric_limits<int>::max());
    line.filter = [this](int key) {
        return this->screen.guarded([&] { return subject ? subject->form().keyPress(key) : 0; });
    };
    connect(&line, &QLineEdit::textEdited, this, [this](const QString& text) {
        edit(text);
        if (subject)
            this->table.scrollTo(model.current());
    });
    table.show(model);
    if (grid.allowDelete)
        table.showRowHeads();
    table.cellsMoved = [this] {
        placeParts();
        if (subject)
            stretchMoved();
    };
}

std::optional<QRect> GridView::stretchAbove(const Control& label) const {
    const int column = subject ? grid().columnAbove(label) : -1;
    if (column < 0 || column >= model.columnCount())
        return {};
    const QRect seen = table.viewport()->geometry();
    const QRect cells(seen.left() + table.columnViewportPosition(column), seen.top(), table.columnWidth(column), 1);
    if (cells.isEmpty() || !seen.contains(cells.topLeft()))
        return {};
    return (cells & seen).translated(table.pos());
}

void GridView::syncContent() {
    shownChanges = changesOf(grid());
    model.look();
    table.fitColumns();
    const QModelIndex current = model.current();
    if (table.currentIndex() != current)
        table.selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    if (grid().currentRow() != markedRow || grid().editing())
        markRow(-1);
    placeParts();
    syncLine();
}

void GridView::syncLine() {
    const bool editing = grid().editing();
    if (!editing && !line.isHidden()) {
        // The toolkit would look for another place for the keyboard by itself.
        if (hasKeyboard(line))
            table.setFocus(Qt::NoFocusReason);
        line.hide();
    }
    if (!editing)
        return;
    // A long text that was pasted shows its beginning until the cell takes it.
    const bool edits = fitsEditor(grid().editText(), false);
    line.setReadOnly(!edits);
    if (const QString text = edits ? toQt(grid().editText()) : beginning(grid().editText()); line.text() != text)
        line.setText(text);
    if (!line.isHidden())
        return;
    const QModelIndex current = model.current();
    line.setAccessibleName(model.headerData(current.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    line.setAlignment(Qt::Alignment(model.data(current, Qt::TextAlignmentRole).toInt()));
    table.scrollTo(current);
    placeParts();
    line.show();
    line.raise();
}

/// Puts what floats over cells where its cell stands now.
void GridView::placeParts() {
    if (!subject)
        return;
    for (const Grid::Floating& floating : grid().floatingEditors())
        placeEditor(floating);
    // The frame of the current cell stays in sight around the line.
    constexpr int frame = 2;
    line.setGeometry(table.visualRect(model.current()).adjusted(frame, frame, -frame, -frame));
    line.raise();
}

void GridView::placeEditor(const Grid::Floating& floating) {
    ControlView* view = editorView(floating);
    if (!view)
        return;
    const QRect cell = table.visualRect(model.index(floating.row, floating.column));
    // One that has the keyboard keeps it when its cell is scrolled away.
    view->setOnPage(cell.intersects(table.viewport()->rect()) || floating.editor->focused());
    // A list would take the width of its items by itself.
    view->widget().setFixedSize(cell.size());
    view->widget().move(cell.topLeft());
    view->widget().raise();
}

ControlView* GridView::editorView(const Grid::Floating& floating) {
    const auto known = editors.find(floating.editor);
    if (known != editors.end())
        return known->second;
    ControlView* view = maker(floating.editor->key(), *table.viewport());
    if (view) {
        view->name(model.headerData(floating.column, Qt::Horizontal, Qt::DisplayRole).toString());
        view->widget().installEventFilter(this);
    }
    return editors[floating.editor] = view;
}

ControlView& makeGridView(Grid& grid, QWidget& parent, ScreenView& screen, const ViewMaker& maker) {
    auto* table = new GridTable(parent);
    return *new GridView(grid, *table, *new GridView::CellEdit(table->viewport()), screen, maker);
}

}  // namespace plandesk::desktop
