#pragma once

#include <QStyledItemDelegate>

class QTreeView;

namespace plandesk::desktop {

class ReviewListModel;

/// Paints a group as its title, and a line as question, sentence and place, as many lines as their texts need.
class ReviewLinePainter : public QStyledItemDelegate {
public:
    ReviewLinePainter(QTreeView& view, const ReviewListModel& lines);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    /// Paints the texts one below the other, or with a null painter only measures them; gives their height.
    int texts(QPainter* painter, QPoint corner, int width, const QModelIndex& index, bool selected) const;
    int widthOf(const QModelIndex& index) const;

    QTreeView& view;
    const ReviewListModel& lines;
};

}  // namespace plandesk::desktop
