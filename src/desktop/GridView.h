#pragma once

#include <QLineEdit>
#include <cstdint>
#include <map>

#include "desktop/ControlView.h"
#include "desktop/FilteredEdit.h"
#include "desktop/GridTable.h"
#include "proposal/Grid.h"

class QInputMethodEvent;
class QMouseEvent;

namespace plandesk::desktop {

/// The view of a grid: a table, a line to type in over the current cell, and the editors of the form that float over
/// cells.
class GridView : public ControlView {
public:
    using CellEdit = FilteredEdit<QLineEdit>;

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
    static bool hasKeyboard(const QWidget& widget) { return widget.window()->focusWidget() == &widget; }

    // What is shown
    void syncContent() override;
    bool stale() const override { return subject && changesOf(grid()) != shownChanges; }
    static std::uint64_t changesOf(const Grid& grid) { return grid.table() ? grid.table()->changes() : 0; }
    QPalette::ColorRole backRole() const override { return QPalette::Base; }
    void syncLine();
    void placeParts();
    void placeEditor(const Grid::Floating& floating);
    ControlView* editorView(const Grid::Floating& floating);

    // What the user does: GridView_input.cpp
    bool filterEvent(QObject* watched, QEvent* event) override;
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

/// The view with its widget inside `parent`.
ControlView& makeGridView(Grid& grid, QWidget& parent, ScreenView& screen, const ViewMaker& maker);

}  // namespace plandesk::desktop
