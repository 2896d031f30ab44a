#include "desktop/CellPainter.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <array>

#include "desktop/GridModel.h"

namespace plandesk::desktop {

namespace {

constexpr QColor lockedPaper(0xF0, 0xEA, 0xDF);
constexpr QColor quietFrame(0x9A, 0xA8, 0xB8);
constexpr int frameWidth = 2;
constexpr int textMargin = 3;  // beside the one that the style leaves

}  // namespace

QRect cellButtonRect(const QRect& cell) {
    constexpr int inset = 3;
    const int side = cell.height() - 2 * inset;
    return {cell.right() - inset - side + 1, cell.top() + inset, side, side};
}

CellPainter::CellPainter(const GridModel& model, QObject& parent) : QStyledItemDelegate(&parent), model(model) {}

QStyleOptionViewItem CellPainter::textOption(const QStyleOptionViewItem& option, const QModelIndex& cell) const {
    QStyleOptionViewItem text = option;
    initStyleOption(&text, cell);
    text.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    text.rect.adjust(textMargin, 0, -textMargin, 0);
    if (model.column(cell.column()).button)
        text.rect.setRight(cellButtonRect(option.rect).left());
    return text;
}

void CellPainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& cell) const {
    const GridColumn column = model.column(cell.column());
    if (column.locked && !column.button)
        painter->fillRect(option.rect, lockedPaper);
    const QStyleOptionViewItem text = textOption(option, cell);
    text.widget->style()->drawControl(QStyle::CE_ItemViewItem, &text, painter, text.widget);
    if (column.button)
        paintButton(*painter, option, cell);
    if (cell != model.current())
        return;
    painter->save();
    painter->setPen(QPen(model.grid()->focused() ? option.palette.color(QPalette::Highlight) : quietFrame, frameWidth,
                         Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    painter->restore();
}

void CellPainter::paintButton(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& cell) const {
    QStyleOption button;
    button.palette = option.palette;
    button.rect = cellButtonRect(option.rect);
    button.state = (option.state & QStyle::State_Enabled) | QStyle::State_Raised;
    const QStyle& style = *option.widget->style();
    style.drawPrimitive(QStyle::PE_PanelButtonTool, &button, &painter, option.widget);
    constexpr int margin = 3;
    const QRect inside = button.rect.adjusted(margin, margin, -margin, -margin);
    if (model.kind(cell.column()) != ColumnKind::Boolean) {
        button.rect = inside;
        style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &button, &painter, option.widget);
        return;
    }
    // It turns the value over.
    button.rect = QRect(inside.topLeft(), QSize(inside.width(), inside.height() / 2));
    style.drawPrimitive(QStyle::PE_IndicatorArrowUp, &button, &painter, option.widget);
    button.rect.moveBottom(inside.bottom());
    style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &button, &painter, option.widget);
}

bool CellPainter::helpEvent(QHelpEvent* event, QAbstractItemView* table, const QStyleOptionViewItem& option,
                            const QModelIndex& cell) {
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, table, option, cell);
    const QStyleOptionViewItem text = textOption(option, cell);
    const bool tooLong = sizeHint(text, cell).width() > text.rect.width();
    QToolTip::showText(event->globalPos(), tooLong ? Qt::convertFromPlainText(text.text) : QString(), table);
    return true;
}

}  // namespace plandesk::desktop
