#pragma once

#include <QTableView>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "desktop/GridModel.h"

namespace plandesk::desktop {

/// What a column needs, in pixels.
struct ColumnNeed {
    int least;   ///< for its longest word to be read
    int wanted;  ///< not below `least`
};

/// Widths for the columns in `room`: what is left over or missing is shared out in proportion. They come to more than
/// `room` only where all are at their least.
std::vector<int> shareWidths(std::span<const ColumnNeed> needs, int room);

/// The table that a grid is shown in: widths, heights and how a cell is painted. It leaves keys and mouse to the grid's
/// view.
class GridTable : public QTableView {
public:
    explicit GridTable(QWidget& parent);

    /// Shows the model from now on, which must outlive the table.
    void show(GridModel& model);
    /// Gives each column its width, and hides those that have none.
    void fitColumns();
    /// Width in which every column has what it wants.
    int wantedWidth() const;
    /// Height with so many rows in sight when it is as wide as that.
    int heightFor(int lines, int width) const;
    /// Shows heads of the rows, at which a row can be taken as a whole.
    void showRowHeads();
    /// Where the button of a cell stands; empty where it has none.
    QRect buttonRect(const QModelIndex& cell) const;
    /// The cell that the key leads to from the current one, invalid in an empty table; none for a key that is no arrow
    /// or the like.
    std::optional<QModelIndex> target(const QKeyEvent& key);

    void reset() override;

    std::function<void()> cellsMoved = [] {};  ///< after scrolling and arranging

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;
    void changeEvent(QEvent* event) override;

private:
    struct Fit {
        std::vector<int> widths;
        int headHeight = 0;
    };
    Fit fitFor(int width) const;
    ColumnNeed need(int column) const;
    int widestText(int column) const;
    std::vector<ColumnNeed> needs() const;
    int headMargin() const;
    int lineHeight() const;
    int rowHeadWidth() const;
    void fitRows();

    GridModel* grid = nullptr;
    std::vector<int> fitted;  ///< widths that the columns were given last
    int fitting = 0;          ///< fittings of the columns under way, one in the other
};

}  // namespace plandesk::desktop
