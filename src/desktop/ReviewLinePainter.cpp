#include "desktop/ReviewLinePainter.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>
#include <QTreeView>
#include <cmath>

#include "desktop/ReviewListModel.h"

namespace plandesk::desktop {

namespace {

constexpr int margin = 5;
constexpr QColor quietText(0x5E, 0x5E, 0x5E);
constexpr QColor rule(0xE4, 0xDC, 0xCE);

/// Wrapped at blanks, or within a word where it is longer than the line.
int wrapped(QPainter* painter, QPoint corner, int width, const QString& text, const QFont& font, const QColor& colour) {
    QTextLayout layout(text, font);
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    if (painter) {
        painter->setPen(colour);
        layout.draw(painter, corner);
    }
    return static_cast<int>(std::ceil(height));
}

}  // namespace

ReviewLinePainter::ReviewLinePainter(QTreeView& view, const ReviewListModel& lines)
    : QStyledItemDelegate(&view), view(view), lines(lines) {}

int ReviewLinePainter::widthOf(const QModelIndex& index) const {
    const int levels = index.parent().isValid() ? 2 : 1;
    return view.viewport()->width() - levels * view.indentation();
}

int ReviewLinePainter::texts(QPainter* painter, QPoint corner, int width, const QModelIndex& index,
                             bool selected) const {
    const QPalette& palette = view.palette();
    const QColor plain = palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    QFont bold = view.font();
    bold.setBold(true);
    const int top = corner.y();
    const auto add = [&](const QString& text, const QFont& font, const QColor& colour) {
        if (!text.isEmpty())
            corner.ry() += wrapped(painter, corner, width, text, font, colour);
    };
    if (const ReviewGroup* group = lines.group(index)) {
        add(index.data().toString(), bold, selected ? plain : group->colour);
    } else if (const ReviewLine* line = lines.line(index)) {
        add(line->question, bold, plain);
        add(line->text, view.font(), plain);
        add(line->place, view.font(), selected ? plain : quietText);
    }
    return corner.y() - top;
}

QSize ReviewLinePainter::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    const int width = widthOf(index);
    return {width, texts(nullptr, {}, width - 2 * margin, index, false) + 2 * margin};
}

void ReviewLinePainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const bool selected = option.state & QStyle::State_Selected;
    painter->save();
    painter->setClipRect(option.rect);
    if (selected)
        painter->fillRect(option.rect, view.palette().color(QPalette::Highlight));
    texts(painter, option.rect.topLeft() + QPoint(margin, margin), option.rect.width() - 2 * margin, index, selected);
    painter->setPen(rule);
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    painter->restore();
}

}  // namespace plandesk::desktop
