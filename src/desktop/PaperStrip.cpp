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

PaperStrip::PaperStrip(std::unique_ptr<QTextDocument> document, std::vector<Column> columns, Lines ruled)
    : text(std::move(document)), columns(std::move(columns)), ruled(ruled), total(text->size().height()) {
    for (QTextBlock block = text->begin(); block.isValid(); block = block.next()) {
        const QPointF origin = text->documentLayout()->blockBoundingRect(block).topLeft();
        for (int number = 0; number < block.layout()->lineCount(); ++number) {
            const QTextLine line = block.layout()->lineAt(number);
            lines.push_back({origin.y() + line.rect().top(), origin.y() + line.rect().bottom(), line, origin});
        }
    }
    std::vector<Line> downwards = lines;
    std::ranges::sort(downwards, {}, &Line::top);
    for (const Line& line : downwards)
        if (cuts.empty() || line.top > cuts.back() - 1)
            cuts.push_back(line.bottom);
        else
            cuts.back() = std::max(cuts.back(), line.bottom);
}

qreal PaperStrip::least() const {
    constexpr std::size_t few = 4;
    return !breakable || cuts.size() < few ? total : cuts[1];
}

qreal PaperStrip::cut(qreal from, qreal room) const {
    qreal best = from;
    for (std::size_t number = 0; number < cuts.size() && cuts[number] <= from + room; ++number) {
        const bool leavesOneLine = breakable && cuts.size() > 2 && number == cuts.size() - 2;
        if (!leavesOneLine)
            best = std::max(best, cuts[number]);
    }
    return best;
}

QString PaperStrip::plainText() const {
    return text->toPlainText().remove(QChar::ObjectReplacementCharacter).simplified() + '\n';
}

void PaperStrip::paint(QPainter& painter, qreal from, qreal to) const {
    const qreal width = columns.back().left + columns.back().width;
    painter.save();
    if (shaded)
        painter.fillRect(QRectF(0, 0, width, to - from), shade);
    paintLines(painter, to - from, to >= total);
    painter.translate(0, -from);
    painter.setPen(Qt::black);
    for (const Line& line : lines)
        if (line.top > from - 1 && line.bottom < to + 1)
            line.text.draw(&painter, line.origin);
    painter.restore();
}

void PaperStrip::paintLines(QPainter& painter, qreal height, bool last) const {
    const Column& end = columns.back();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(ruled == Lines::AboveAndBelow ? lightLine : QColor(Qt::black), hairline));
    switch (ruled) {
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
