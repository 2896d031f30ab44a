#pragma once

#include <QAbstractTableModel>

#include "proposal/Grid.h"

namespace plandesk::desktop {

class ControlView;
class ScreenView;

/// A grid as the toolkit's tables read it. It keeps no cell: each is asked of the grid when it is to be seen.
class GridModel : public QAbstractTableModel {
public:
    /// `view`: that of a grid, which outlives this as `screen` does.
    GridModel(const ControlView& view, ScreenView& screen);

    /// The grid, while it is there.
    const Grid* grid() const;
    /// Tells the tables what is another since the last look: a grid of other rows or columns starts anew.
    void look();
    GridColumn column(int column) const;
    ColumnKind kind(int column) const;
    /// The cell that keys go to: the grid's current one, or the first useful one of its row while that has no width.
    /// Invalid while the grid has none, or one that came since the last look.
    QModelIndex current() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& cell, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& cell) const override;

private:
    QVariant alignment(int column) const;
    QString spokenHead(int section) const;

    const ControlView& view;
    ScreenView& screen;
    const Recordset* table = nullptr;
    int rows = 0;
    int columns = 0;
};

}  // namespace plandesk::desktop
