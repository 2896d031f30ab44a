#pragma once

#include <QStyledItemDelegate>

namespace plandesk::desktop {

class GridModel;

/// Where the button stands in a cell of that place.
QRect cellButtonRect(const QRect& cell);

/// Paints the cells of a grid: text, button, and a frame around the current one.
class CellPainter : public QStyledItemDelegate {
public:
    CellPainter(const GridModel& model, QObject& parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& cell) const override;
    /// Shows the whole text of a cell that is too narrow for it.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* table, const QStyleOptionViewItem& option,
                   const QModelIndex& cell) override;

private:
    QStyleOptionViewItem textOption(const QStyleOptionViewItem& option, const QModelIndex& cell) const;
    void paintButton(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& cell) const;

    const GridModel& model;
};

}  // namespace plandesk::desktop
