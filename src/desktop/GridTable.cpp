#include "desktop/GridTable.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <numeric>

#include "base/Counted.h"
#include "desktop/CellPainter.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

/// The settings were made for a font whose characters are as wide as this on average, in twips.
constexpr int twipsPerCharacter = 90;
constexpr int leastTextCharacters = 6;

/// What a cell of that kind must be able to show.
QString sample(ColumnKind kind, bool yesNo) {
    switch (kind) {
    case ColumnKind::Date:
        return QStringLiteral("00/00/0000");
    case ColumnKind::Boolean:
        return yesNo ? QStringLiteral("Yes") : QStringLiteral("False");
    case ColumnKind::Integer:
    case ColumnKind::Double:
        return QStringLiteral("00000");
    case ColumnKind::Text:
        break;
    }
    return QString(leastTextCharacters, 'x');
}

int longestWord(const QString& caption, const QFontMetrics& metrics) {
    int longest = 0;
    for (const QString& word : caption.split(' '))
        longest = std::max(longest, metrics.horizontalAdvance(word));
    return longest;
}

}  // namespace

std::vector<int> shareWidths(std::span<const ColumnNeed> needs, int room) {
    int least = 0;
    int wanted = 0;
    for (const ColumnNeed& need : needs) {
        least += need.least;
        wanted += need.wanted;
    }
    std::vector<int> widths;
    int left = room;  // what the columns not yet passed may take
    for (const ColumnNeed& need : needs) {
        int width = need.least;
        if (wanted > 0 && left >= wanted)
            width = left * need.wanted / wanted;
        else if (wanted > least && left > least)
            width += (left - least) * (need.wanted - need.least) / (wanted - least);
        widths.push_back(width);
        left -= width;
        least -= need.least;
        wanted -= need.wanted;
    }
    return widths;
}

GridTable::GridTable(QWidget& parent) : QTableView(&parent) {
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(false);
    fitRows();
}

void GridTable::show(GridModel& model) {
    grid = &model;
    setItemDelegate(new CellPainter(model, *this));
    setModel(&model);
}

void GridTable::showRowHeads() {
    verticalHeader()->show();
    verticalHeader()->setSectionsClickable(false);  // the grid's view sees to clicks
    verticalHeader()->setToolTip(tr("Click to take the whole row. Delete or Ctrl+Delete then deletes it."));
    fitRows();
}

int GridTable::headMargin() const {
    return style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, horizontalHeader());
}

int GridTable::rowHeadWidth() const {
    return verticalHeader()->isHidden() ? 0 : lineHeight();
}

int GridTable::lineHeight() const {
    // Room for an editor in the cell.
    constexpr int border = 10;
    return fontMetrics().height() + border;
}

void GridTable::fitRows() {
    verticalHeader()->setDefaultSectionSize(lineHeight());
    verticalHeader()->setFixedWidth(rowHeadWidth());
    verticalScrollBar()->setSingleStep(1);
}

ColumnNeed GridTable::need(int column) const {
    const GridColumn setting = grid->column(column);
    if (setting.width == 0)
        return {0, 0};
    const QFontMetrics metrics = fontMetrics();
    const int content =
        setting.whole ? widestText(column) : metrics.horizontalAdvance(sample(grid->kind(column), setting.yesNo));
    const int text = content + metrics.averageCharWidth() + (setting.button ? lineHeight() : 0);
    const int least = std::max(std::max(longestWord(toQt(setting.caption), metrics), text) + 2 * headMargin(),
                               horizontalHeader()->minimumSectionSize());
    return {least, std::max(least, setting.width * metrics.averageCharWidth() / twipsPerCharacter)};
}

int GridTable::widestText(int column) const {
    int widest = 0;
    for (int row = 0; row < grid->rowCount(); ++row)
        widest = std::max(
            widest, fontMetrics().horizontalAdvance(grid->data(grid->index(row, column), Qt::DisplayRole).toString()));
    return widest;
}

std::vector<ColumnNeed> GridTable::needs() const {
    std::vector<ColumnNeed> needs;
    for (int column = 0; column < grid->columnCount(); ++column)
        needs.push_back(need(column));
    return needs;
}

int GridTable::wantedWidth() const {
    int width = 2 * frameWidth() + rowHeadWidth();
    for (const ColumnNeed& column : needs())
        width += column.wanted;
    return width;
}

GridTable::Fit GridTable::fitFor(int width) const {
    Fit fit{.widths = shareWidths(needs(), width), .headHeight = fontMetrics().height()};
    for (int column = 0; column < grid->columnCount(); ++column) {
        const QRect room(0, 0, fit.widths[static_cast<std::size_t>(column)] - 2 * headMargin(), 0);
        const QString caption = grid->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        if (room.width() > 0)
            fit.headHeight =
                std::max(fit.headHeight, fontMetrics().boundingRect(room, Qt::TextWordWrap, caption).height());
    }
    fit.headHeight += 2 * headMargin();
    return fit;
}

void GridTable::fitColumns() {
    constexpr int deepest = 3;  // by then nothing moves any more, or goes to and fro
    if (fitting == deepest)
        return;
    const Counted running(fitting);
    const Fit fit = fitFor(viewport()->width());
    // Widths that the user has drawn since stay until the columns need others.
    if (fit.widths != fitted) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            setColumnHidden(column, grid->column(column).width == 0);
            if (const int width = fit.widths[static_cast<std::size_t>(column)]; width > 0)
                setColumnWidth(column, width);
        }
        fitted = fit.widths;
    }
    // A higher head can bring a scroll bar, which narrows the columns and makes the head higher still, and a lower one
    // can take it away: within one fitting the head only grows.
    const int present = horizontalHeader()->minimumHeight();
    const int wanted = fitting > 1 ? std::max(fit.headHeight, present) : fit.headHeight;
    if (wanted != present) {
        horizontalHeader()->setFixedHeight(wanted);
        updateGeometries();
    }
}

void GridTable::reset() {
    fitted.clear();
    QTableView::reset();
}

int GridTable::heightFor(int lines, int width) const {
    const Fit fit = fitFor(width - 2 * frameWidth() - rowHeadWidth());
    const bool scrolls = std::accumulate(fit.widths.begin(), fit.widths.end(), 0) > width;
    const int bar = scrolls ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    return fit.headHeight + lines * lineHeight() + bar + 2 * frameWidth();
}

QRect GridTable::buttonRect(const QModelIndex& cell) const {
    return grid->column(cell.column()).button ? cellButtonRect(visualRect(cell)) : QRect();
}

std::optional<QModelIndex> GridTable::target(const QKeyEvent& key) {
    struct Move {
        int key;
        CursorAction action;
    };
    static constexpr std::array moves = std::to_array<Move>({{Qt::Key_Left, MoveLeft},
                                                             {Qt::Key_Right, MoveRight},
                                                             {Qt::Key_Up, MoveUp},
                                                             {Qt::Key_Down, MoveDown},
                                                             {Qt::Key_Home, MoveHome},
                                                             {Qt::Key_End, MoveEnd},
                                                             {Qt::Key_PageUp, MovePageUp},
                                                             {Qt::Key_PageDown, MovePageDown}});
    for (const Move& move : moves)
        if (move.key == key.key())
            return moveCursor(move.action, key.modifiers());
    return {};
}

void GridTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (!hasFocus() || grid->rowCount() > 0)
        return;
    // There is no current cell that could show it.
    QPainter painter(viewport());
    QStyleOptionFocusRect mark;
    mark.initFrom(viewport());
    mark.rect = viewport()->rect().adjusted(1, 1, -1, -1);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &mark, &painter, this);
}

void GridTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        QTableView::keyPressEvent(event);
    else
        event->ignore();
}

void GridTable::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    cellsMoved();
}

void GridTable::updateGeometries() {
    QTableView::updateGeometries();
    if (grid)
        fitColumns();
    cellsMoved();
}

void GridTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitRows();
}

}  // namespace plandesk::desktop
