#include "desktop/PaperStrip.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

namespace plandesk::desktop {

namespace {

constexpr qreal hairline = 4;
const QColor lightLine(0xB0, 0xB0, 0xB0);
const QColor shade(0xEE, 0xEE, 0xEE);

}  // namespace

PaperStrip::PaperStrip(std::unique_ptr<QTextDocument> document, std::vector<Column> columns, Lines lines)
    : text(std::move(document)), columns(std::move(columns)), lines(lines), total(text->size().height()) {}

std::vector<PaperStrip::Line> PaperStrip::linesOfText() const {
    std::vector<Line> found;
    for (QTextBlock block = text->begin(); block.isValid(); block = block.next()) {
        const qreal top = text->documentLayout()->blockBoundingRect(block).top();
        for (int line = 0; line < block.layout()->lineCount(); ++line) {
            const QRectF place = block.layout()->lineAt(line).rect();
            found.push_back({top + place.top(), top + place.bottom()});
        }
    }
    return found;
}

qreal PaperStrip::cut(qreal from, qreal room) const {
    const std::vector<Line> all = linesOfText();
    qreal best = from;
    for (const Line& line : all) {
        const qreal place = line.bottom;
        const bool cutsAnother = std::ranges::any_of(
            all, [&](const Line& other) { return other.top < place - 1 && other.bottom > place + 1; });
        if (!cutsAnother && place <= from + room)
            best = std::max(best, place);
    }
    return best > from ? best : from + room;
}

void PaperStrip::paint(QPainter& painter, qreal from, qreal to) const {
    const qreal width = columns.back().left + columns.back().width;
    const bool whole = from <= 0 && to >= total;
    painter.save();
    if (shaded)
        painter.fillRect(QRectF(0, 0, width, to - from), shade);
    paintLines(painter, to - from, to >= total);
    if (!whole)
        painter.setClipRect(QRectF(0, 0, width, to - from));
    painter.translate(0, -from);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    if (!whole)
        context.clip = QRectF(0, from, width, to - from);
    text->documentLayout()->draw(&painter, context);
    painter.restore();
}

void PaperStrip::paintLines(QPainter& painter, qreal height, bool last) const {
    const Column& end = columns.back();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(lines == Lines::AboveAndBelow ? lightLine : QColor(Qt::black), hairline));
    switch (lines) {
    case Lines::None:
        break;
    case Lines::AboveAndBelow:
        painter.drawLine(QPointF(0, 0), QPointF(end.left + end.width, 0));
        painter.drawLine(QPointF(0, height), QPointF(end.left + end.width, height));
        break;
    case Lines::Frames:
        for (const Column& column : columns)
            painter.drawRect(QRectF(column.left, 0, column.width, height));
        break;
    case Lines::Under:
        if (last)
            painter.drawLine(QPointF(end.left, height), QPointF(end.left + end.width, height));
        break;
    }
}

}  // namespace plandesk::desktop
