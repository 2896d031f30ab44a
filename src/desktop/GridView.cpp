#include "desktop/GridView.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <optional>

#include "base/Text.h"
#include "controls/Form.h"
#include "controls/Screen.h"
#include "controls/User.h"
#include "desktop/FilteredEdit.h"
#include "desktop/GridTable.h"
#include "desktop/ListBox.h"
#include "desktop/LongText.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"
#include "proposal/Grid.h"

namespace plandesk::desktop {

namespace {

using CellEdit = FilteredEdit<QLineEdit>;

/// Keys that a line of text has no use of its own for.
constexpr std::array keysOutOfLine = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};

bool isMouse(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove ||
           type == QEvent::MouseButtonRelease;
}

bool hasKeyboard(const QWidget& widget) {
    return widget.window()->focusWidget() == &widget;
}

/// The keys that open a list everywhere on the desktop.
bool opensList(const QKeyEvent& event) {
    return event.key() == Qt::Key_F4 || (event.key() == Qt::Key_Down && event.modifiers() & Qt::AltModifier);
}

class GridView : public ControlView {
public:
    GridView(Grid& grid, GridTable& table, CellEdit& line, ScreenView& screen, const ViewMaker& maker);

    int naturalWidth(bool /*alone*/) const override { return table.wantedWidth(); }
    QSize sizeFor(int available, bool /*alone*/) override { return {available, table.heightFor(lines, available)}; }
    bool fillsWidth() const override { return true; }
    void showLines(int wanted) override { lines = wanted > 0 ? wanted : usualLines; }
    std::optional<QRect> stretchAbove(const Control& label) const override;
    QWidget& keyboardPart() override { return line.isHidden() ? picture : line; }

private:
    static constexpr int usualLines = 5;

    Grid& grid() const { return static_cast<Grid&>(*subject); }
    bool filterEvent(QObject* watched, QEvent* event) override;
    void syncContent() override;
    bool stale() const override { return subject && changesOf(grid()) != shownChanges; }
    static std::uint64_t changesOf(const Grid& grid) { return grid.table() ? grid.table()->changes() : 0; }
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    void syncLine();
    void placeParts();
    void placeEditor(const Grid::Floating& floating);
    ControlView* editorView(const Grid::Floating& floating);

    bool systemKey(const QKeyEvent& event) override;
    bool keyInLine(const QKeyEvent& event);
    void goTo(const QModelIndex& cell);
    void typeKeys(const QString& text);
    void handOn(const QKeyEvent& event);
    void edit(const QString& text);
    void editPresentText();
    bool compose(QInputMethodEvent& event);
    bool mouse(const QMouseEvent& event);
    void press(const QModelIndex& cell, bool button);
    void takeRow(int row);
    void markRow(int row);
    void deleteKey(const QKeyEvent& event);

    GridTable& table;
    GridModel model{*this, screen};
    CellEdit& line;
    const ViewMaker& maker;
    std::map<const Control*, ControlView*> editors;
    int lines = usualLines;
    int markedRow = -1;              ///< the one that was taken as a whole
    std::uint64_t shownChanges = 0;  ///< of the table, when it was shown last
};

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

bool GridView::filterEvent(QObject* watched, QEvent* event) {
    const bool key = event->type() == QEvent::KeyPress;
    if (watched == &line)
        return key && keyInLine(*static_cast<QKeyEvent*>(event));
    if (watched == &table && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason)
        markRow(-1);
    if (watched == &table && event->type() == QEvent::InputMethod)
        return compose(*static_cast<QInputMethodEvent*>(event));
    if (watched == table.viewport() && isMouse(event->type()))
        return mouse(*static_cast<QMouseEvent*>(event));
    if (watched == table.verticalHeader()->viewport() && event->type() == QEvent::MouseButtonPress) {
        takeRow(table.verticalHeader()->logicalIndexAt(static_cast<QMouseEvent*>(event)->pos()));
        return true;
    }
    for (const auto& [editor, view] : editors) {
        if (!view || watched != &view->widget())
            continue;
        const Grid::Floating place = grid().floating(*editor);
        if (key)
            table.scrollTo(model.index(place.row, place.column));
        return false;
    }
    return ControlView::filterEvent(watched, event);
}

bool GridView::systemKey(const QKeyEvent& event) {
    // A key that an editor over a cell had no use for is not meant for the cell below it.
    if (!hasKeyboard(table))
        return false;
    if (event.key() != Qt::Key_Delete)
        markRow(-1);
    if (opensList(event)) {
        act([this] { user::openCell(grid()); });
    } else if (const std::optional<QModelIndex> cell = table.target(event)) {
        goTo(*cell);
    } else if (event.matches(QKeySequence::Paste)) {
        edit(QGuiApplication::clipboard()->text());
    } else if (event.key() == Qt::Key_Delete) {
        deleteKey(event);
    } else if (event.key() == Qt::Key_Backspace) {
        act([this] { user::press(*subject, "Backspace"); });
    } else if (const QString text = typedText(event); !text.isEmpty()) {
        // A list that comes up over the cell seeks by letters itself.
        if (grid().listAt(grid().currentColumn()))
            act([this] { user::openCell(grid()); });
        else
            typeKeys(text);
        handOn(event);
    } else {
        return ControlView::systemKey(event);
    }
    return true;
}

bool GridView::keyInLine(const QKeyEvent& event) {
    if (std::ranges::find(keysOutOfLine, event.key()) == keysOutOfLine.end())
        return ControlView::systemKey(event);
    goTo(table.target(event).value_or(QModelIndex()));
    return true;
}

void GridView::deleteKey(const QKeyEvent& event) {
    const bool wholeRow = event.modifiers() & Qt::ControlModifier || markedRow >= 0;
    act([&] {
        if (wholeRow)
            user::deleteRow(grid(), grid().currentRow());
        else
            user::clearCell(grid());
    });
    // The next Delete would otherwise mean the row that has come in its place.
    if (wholeRow)
        markRow(-1);
}

void GridView::takeRow(int row) {
    act([&] { user::goToCell(grid(), row, grid().keyColumn()); }, Qt::MouseFocusReason);
    if (subject && grid().focused() && grid().currentRow() == row)
        markRow(row);
}

/// Marks the row as taken as a whole; -1 for none.
void GridView::markRow(int row) {
    if (row == markedRow)
        return;
    markedRow = row;
    QItemSelectionModel& selection = *table.selectionModel();
    selection.clearSelection();
    if (row >= 0)
        selection.select(table.model()->index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void GridView::goTo(const QModelIndex& cell) {
    act([&] { user::goToCell(grid(), cell.row(), cell.column()); });
}

void GridView::typeKeys(const QString& text) {
    for (const char32_t point : codePoints(fromQt(text))) {
        std::string key;
        appendUtf8(key, point);
        act([&] { user::press(*subject, key == " " ? "Space" : key); });
    }
}

/// An editor of the form that came up at the first key takes that key too.
void GridView::handOn(const QKeyEvent& event) {
    if (!subject)
        return;
    for (const Grid::Floating& floating : grid().floatingEditors()) {
        const ControlView* view = editorView(floating);
        if (!view || !floating.editor->focused())
            continue;
        if (auto* list = dynamic_cast<ListBox*>(&view->widget()))
            list->startSearch();
        QKeyEvent same(event.type(), event.key(), event.modifiers(), event.text());
        QCoreApplication::sendEvent(&view->widget(), &same);
        return;
    }
}

void GridView::edit(const QString& text) {
    act([&] { user::editText(grid(), fromQt(text)); });
}

void GridView::editPresentText() {
    // The grid may have got another table since the model looked, so the text is the grid's own.
    const int row = grid().currentRow();
    const int column = grid().currentColumn();
    if (row < 0 || column >= grid().columnCount() || grid().editing())
        return;
    if (grid().listAt(column))
        return act([this] { user::openCell(grid()); });
    const std::string text = grid().cellText(row, column);
    // What is too long for the line is replaced as a whole or not at all.
    if (fitsEditor(text, false))
        edit(toQt(text));
    line.selectAll();
}

/// A text that is composed begins in the cell, and goes on in the line.
bool GridView::compose(QInputMethodEvent& event) {
    if (event.preeditString().isEmpty() && event.commitString().isEmpty())
        return false;
    editPresentText();
    if (!line.isHidden())
        QCoreApplication::sendEvent(&line, &event);
    return true;
}

bool GridView::mouse(const QMouseEvent& event) {
    const bool again = event.type() == QEvent::MouseButtonDblClick;
    if (event.button() != Qt::LeftButton || (!again && event.type() != QEvent::MouseButtonPress))
        return true;
    const QModelIndex cell = table.indexAt(event.pos());
    const bool button = cell.isValid() && table.buttonRect(cell).contains(event.pos());
    if (again && !button)
        editPresentText();
    else
        press(cell, button);
    return true;
}

void GridView::press(const QModelIndex& cell, bool button) {
    markRow(-1);
    act(
        [&] {
            if (!cell.isValid())
                user::focus(*subject);
            else if (button)
                user::pressCellButton(grid(), cell.row(), cell.column());
            else
                user::clickCell(grid(), cell.row(), cell.column());
        },
        Qt::MouseFocusReason);
}

}  // namespace

ControlView& makeGridView(Grid& grid, QWidget& parent, ScreenView& screen, const ViewMaker& maker) {
    auto* table = new GridTable(parent);
    return *new GridView(grid, *table, *new CellEdit(table->viewport()), screen, maker);
}

}  // namespace plandesk::desktop
