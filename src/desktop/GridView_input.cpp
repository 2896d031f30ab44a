// What the user does to a grid by keys and mouse.

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <array>

#include "base/Text.h"
#include "controls/User.h"
#include "desktop/GridView.h"
#include "desktop/Keys.h"
#include "desktop/ListBox.h"
#include "desktop/LongText.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

/// Keys that a line of text has no use of its own for.
constexpr std::array keysOutOfLine = {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};

bool isMouse(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove ||
           type == QEvent::MouseButtonRelease;
}

}  // namespace

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

}  // namespace plandesk::desktop
