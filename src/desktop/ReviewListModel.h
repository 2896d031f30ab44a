#pragma once

#include <QAbstractItemModel>

#include "desktop/ReviewLines.h"

namespace plandesk::desktop {

/// The groups of lines as a model of two levels.
class ReviewListModel : public QAbstractItemModel {
public:
    using QAbstractItemModel::QAbstractItemModel;

    void setGroups(ReviewGroups shown);
    const ReviewGroups& groups() const { return all; }

    /// The line that stands at the index; null for a group.
    const ReviewLine* line(const QModelIndex& index) const;
    /// The group that stands at the index; null for a line.
    const ReviewGroup* group(const QModelIndex& index) const;
    /// Lines are counted through all groups.
    int lineCount() const;
    const ReviewLine& lineAt(int place) const;
    QModelIndex indexOfLine(int place) const;
    int placeOf(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& /*parent*/) const override { return 1; }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    ReviewGroups all;
};

}  // namespace plandesk::desktop
