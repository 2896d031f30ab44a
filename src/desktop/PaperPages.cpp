#include "desktop/PaperPages.h"

#include <QPageSize>
#include <QPainter>
#include <algorithm>

#include "desktop/PaperText.h"

namespace plandesk::desktop {

namespace {

constexpr qreal margin = 15 * paperUnitsPerMillimetre;  // what every office printer leaves white, and a little more
constexpr qreal gap = 4 * paperUnitsPerMillimetre;      // between the body and what is at the head and foot
constexpr qreal numberPoints = 8;

qreal heightOf(const std::vector<PaperStrip>& strips) {
    qreal height = 0;
    for (const PaperStrip& strip : strips)
        height += strip.spaceBefore + strip.height();
    return height;
}

void paintStack(QPainter& painter, const std::vector<PaperStrip>& strips) {
    qreal y = 0;
    for (const PaperStrip& strip : strips) {
        y += strip.spaceBefore;
        painter.save();
        painter.translate(0, y);
        strip.paint(painter, 0, strip.height());
        painter.restore();
        y += strip.height();
    }
}

}  // namespace

QSizeF PaperPages::sheet() {
    return QPageSize(QPageSize::A4).size(QPageSize::Inch) * paperUnitsPerInch;
}

PaperPages::PaperPages(const Paper& paper) {
    const qreal width = sheet().width() - 2 * margin;
    header = stripsOf(paper.header, paper.date, width);
    body = stripsOf(paper.body, paper.date, width);
    footer = stripsOf(paper.footer, paper.date, width);
    top = margin + (header.empty() ? 0 : heightOf(header) + gap);
    bottom = sheet().height() - margin - (footer.empty() ? 0 : heightOf(footer) + gap);
    layOut();
}

void PaperPages::beginPage(const PaperStrip* interrupted) {
    pages.emplace_back();
    y = top;
    if (interrupted && interrupted->head >= 0) {
        const PaperStrip& head = body[static_cast<std::size_t>(interrupted->head)];
        pages.back().push_back({&head, y, 0, head.height()});
        y += head.height();
    }
    repeated = pages.back().size();
}

qreal PaperPages::needed(std::size_t strip) const {
    qreal height = 0;
    for (std::size_t next = strip; next < body.size(); ++next) {
        height += body[next].spaceBefore;
        height += body[next].keepWithNext ? body[next].height() : body[next].least();
        if (!body[next].keepWithNext)
            break;
    }
    return height;
}

void PaperPages::layOut() {
    beginPage(nullptr);
    for (std::size_t strip = 0; strip < body.size(); ++strip) {
        const bool fitsSomewhere = needed(strip) <= bottom - top;
        const qreal wanted = fitsSomewhere ? needed(strip) : body[strip].spaceBefore + body[strip].height();
        if (!atHead() && y + wanted > bottom)
            beginPage(&body[strip]);
        place(body[strip]);
    }
}

void PaperPages::place(const PaperStrip& strip) {
    if (!atHead())
        y += strip.spaceBefore;
    qreal from = 0;
    while (y + strip.height() - from > bottom + 1) {
        qreal to = strip.cut(from, bottom - y);
        if (to <= from && atHead())
            to = from + bottom - y;  // a line higher than a page
        if (to > from)
            pages.back().push_back({&strip, y, from, to});
        from = to;
        beginPage(&strip);
    }
    pages.back().push_back({&strip, y, from, strip.height()});
    y += strip.height() - from;
}

QString PaperPages::text(int page) const {
    QString text;
    for (const PaperStrip& strip : header)
        text += strip.plainText();
    for (const Placed& placed : pages[static_cast<std::size_t>(page)])
        if (placed.from <= 0)
            text += placed.strip->plainText();
    for (const PaperStrip& strip : footer)
        text += strip.plainText();
    return text;
}

void PaperPages::paint(QPainter& painter, int page) const {
    painter.save();
    painter.translate(margin, margin);
    paintStack(painter, header);
    painter.restore();
    for (const Placed& placed : pages[static_cast<std::size_t>(page)]) {
        painter.save();
        painter.translate(margin, placed.top);
        placed.strip->paint(painter, placed.from, placed.to);
        painter.restore();
    }
    painter.save();
    painter.translate(margin, sheet().height() - margin - heightOf(footer));
    paintStack(painter, footer);
    painter.restore();
    if (count() > 1) {
        painter.save();
        painter.setFont(paperFont(numberPoints, false));
        painter.setPen(Qt::black);
        painter.drawText(QRectF(0, sheet().height() - margin, sheet().width() - margin, gap),
                         Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("%1 / %2").arg(page + 1).arg(count()));
        painter.restore();
    }
}

}  // namespace plandesk::desktop
