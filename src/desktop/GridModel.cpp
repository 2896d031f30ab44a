#include "desktop/GridModel.h"

#include <tuple>

#include "base/Text.h"
#include "desktop/ControlView.h"
#include "desktop/LongText.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"

namespace plandesk::desktop {

// The tables ask at any time, in the midst of painting too: nothing but a guarded answer goes out.

GridModel::GridModel(const ControlView& view, ScreenView& screen) : view(view), screen(screen) {}

const Grid* GridModel::grid() const {
    return static_cast<const Grid*>(view.control());
}

void GridModel::look() {
    const Grid* shown = grid();
    if (!shown)
        return;
    const auto now = std::tuple(static_cast<const Recordset*>(shown->table()), shown->rowCount(), shown->columnCount());
    if (now != std::tie(table, rows, columns)) {
        beginResetModel();
        std::tie(table, rows, columns) = now;
        endResetModel();
    } else if (rows > 0 && columns > 0) {
        emit dataChanged(index(0, 0), index(rows - 1, columns - 1));
        emit headerDataChanged(Qt::Horizontal, 0, columns - 1);
    }
}

GridColumn GridModel::column(int column) const {
    const Grid* shown = grid();
    return shown ? screen.guarded([&] { return shown->column(column); }) : GridColumn{};
}

ColumnKind GridModel::kind(int column) const {
    const Grid* shown = grid();
    return shown && column >= 0 && column < shown->columnCount()
               ? shown->table()->columns()[static_cast<std::size_t>(column)].kind
               : ColumnKind::Text;
}

QModelIndex GridModel::current() const {
    const Grid* shown = grid();
    if (!shown)
        return {};
    return screen.guarded([&] { return index(shown->currentRow(), shown->keyColumn()); });
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant GridModel::alignment(int column) const {
    const bool number = kind(column) == ColumnKind::Integer || kind(column) == ColumnKind::Double;
    return int(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
}

QVariant GridModel::data(const QModelIndex& cell, int role) const {
    if (role == Qt::TextAlignmentRole)
        return alignment(cell.column());
    const Grid* shown = grid();
    if (role != Qt::DisplayRole || !shown || !cell.isValid())
        return {};
    return screen.guarded([&]() -> QVariant {
        // A table may have lost rows since the last look.
        const bool there = cell.row() < shown->rowCount() && cell.column() < shown->columnCount();
        if (!there)
            return {};
        const std::string* text = shown->heldText(cell.row(), cell.column());
        return text ? beginning(*text) : toQt(shown->cellText(cell.row(), cell.column()));
    });
}

QString GridModel::spokenHead(int section) const {
    const QString caption = toQt(trim(column(section).caption));
    const Grid* shown = grid();
    // A column without a caption is not shown either; its own name tells what it is.
    return caption.isEmpty() && shown && section < shown->columnCount()
               ? toQt(shown->table()->columns()[static_cast<std::size_t>(section)].name)
               : caption;
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return role == Qt::DisplayRole ? QString::number(section + 1) : QVariant();
    if (role == Qt::TextAlignmentRole)
        return alignment(section).toInt() | int(Qt::TextWordWrap);
    if (role == Qt::AccessibleTextRole)
        return spokenHead(section);
    return role == Qt::DisplayRole ? toQt(trim(column(section).caption)) : QVariant();
}

Qt::ItemFlags GridModel::flags(const QModelIndex& cell) const {
    const Grid* shown = grid();
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return shown && cell.isValid() && shown->editable(cell.column()) ? flags | Qt::ItemIsEditable : flags;
}

}  // namespace plandesk::desktop
