#include "desktop/ReviewListModel.h"

#include <utility>

namespace plandesk::desktop {

namespace {

// The number behind an index: that of the group for a line, this one for a group itself.
constexpr quintptr isGroup = ~quintptr{0};

/// What is read of a line, in one piece.
QString spoken(const ReviewLine& line) {
    static const QString ends = QStringLiteral(".!?:");
    QString all;
    for (const QString& part : {line.question, line.text, line.place}) {
        if (!all.isEmpty() && !part.isEmpty())
            all += ends.contains(all.back()) ? QStringLiteral(" ") : QStringLiteral(". ");
        all += part;
    }
    return all;
}

QString titled(const ReviewGroup& group) {
    return QStringLiteral("%1 (%2)").arg(group.title).arg(group.lines.size());
}

}  // namespace

void ReviewListModel::setGroups(ReviewGroups shown) {
    beginResetModel();
    all = std::move(shown);
    endResetModel();
}

const ReviewGroup* ReviewListModel::group(const QModelIndex& index) const {
    return index.isValid() && index.internalId() == isGroup ? &all[static_cast<std::size_t>(index.row())] : nullptr;
}

const ReviewLine* ReviewListModel::line(const QModelIndex& index) const {
    return index.isValid() && index.internalId() != isGroup
               ? &all[index.internalId()].lines[static_cast<std::size_t>(index.row())]
               : nullptr;
}

int ReviewListModel::lineCount() const {
    std::size_t count = 0;
    for (const ReviewGroup& each : all)
        count += each.lines.size();
    return static_cast<int>(count);
}

QModelIndex ReviewListModel::indexOfLine(int place) const {
    int row = place;
    for (std::size_t number = 0; number < all.size(); ++number) {
        const int count = static_cast<int>(all[number].lines.size());
        if (row >= 0 && row < count)
            return createIndex(row, 0, number);
        row -= count;
    }
    return {};
}

const ReviewLine& ReviewListModel::lineAt(int place) const {
    return *line(indexOfLine(place));
}

int ReviewListModel::placeOf(const QModelIndex& index) const {
    if (!line(index))
        return -1;
    int place = index.row();
    for (std::size_t number = 0; number < index.internalId(); ++number)
        place += static_cast<int>(all[number].lines.size());
    return place;
}

QModelIndex ReviewListModel::index(int row, int column, const QModelIndex& parent) const {
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) : isGroup);
}

QModelIndex ReviewListModel::parent(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == isGroup)
        return {};
    return createIndex(static_cast<int>(index.internalId()), 0, isGroup);
}

int ReviewListModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return static_cast<int>(all.size());
    const ReviewGroup* shown = group(parent);
    return shown ? static_cast<int>(shown->lines.size()) : 0;
}

QVariant ReviewListModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    if (const ReviewGroup* shown = group(index))
        return titled(*shown);
    const ReviewLine* shown = line(index);
    return shown ? spoken(*shown) : QVariant();
}

}  // namespace plandesk::desktop
