// What each kind of section makes of its rows.

#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <algorithm>
#include <numeric>
#include <utility>

#include "desktop/PaperStrip.h"
#include "desktop/PaperText.h"

namespace plandesk::desktop {

namespace {

constexpr qreal mm = paperUnitsPerMillimetre;
constexpr qreal sectionGap = 3 * mm;
constexpr int smallText = 9;
constexpr int letterText = 10;
constexpr int headingText = 14;

struct Padding {
    qreal across = 0;
    qreal above = 0;
    qreal below = 0;
    bool flush = false;  ///< the first column begins where a paragraph would
};

/// A document of one row of cells, side by side.
std::unique_ptr<QTextDocument> rowOfCells(const PaperRow& row, const std::vector<PaperStrip::Column>& columns,
                                          const std::vector<TextLook>& looks, const Padding& padding,
                                          const Date& date) {
    const qreal width = columns.back().left + columns.back().width;
    auto document = paperDocument(width);
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellPadding(0);
    format.setCellSpacing(0);
    format.setMargin(0);
    format.setLeftMargin(columns.front().left);
    QList<QTextLength> widths;
    for (const PaperStrip::Column& column : columns)
        widths.append(QTextLength(QTextLength::FixedLength, column.width));
    format.setColumnWidthConstraints(widths);
    QTextCursor cursor(document.get());
    cursor.beginEditBlock();  // laid out once, at the end
    QTextTable* table = cursor.insertTable(1, static_cast<int>(columns.size()), format);
    for (std::size_t column = 0; column < columns.size() && column < row.cells.size(); ++column) {
        if (row.cells[column].empty())
            continue;
        QTextTableCell cell = table->cellAt(0, static_cast<int>(column));
        QTextTableCellFormat room;
        room.setLeftPadding(padding.flush && column == 0 ? 0 : padding.across);
        room.setRightPadding(padding.across);
        room.setTopPadding(padding.above);
        room.setBottomPadding(padding.below);
        cell.setFormat(room);
        QTextCursor inside = cell.firstCursorPosition();
        QTextBlockFormat block;
        block.setAlignment(columns[column].figures ? Qt::AlignRight : Qt::AlignLeft);
        inside.setBlockFormat(block);
        insertItems(inside, row.cells[column], looks[column], date);
    }
    cursor.endEditBlock();
    return document;
}

std::vector<PaperStrip::Column> columnsOf(const std::vector<qreal>& widths, qreal left = 0) {
    std::vector<PaperStrip::Column> columns;
    for (const qreal width : widths) {
        columns.push_back({left, width});
        left += width;
    }
    return columns;
}

/// A document of one paragraph; each cell begins a line.
std::unique_ptr<QTextDocument> paragraph(const PaperRow& row, const TextLook& look, Qt::Alignment alignment,
                                         qreal indent, int lineHeight, const Date& date, qreal width) {
    auto document = paperDocument(width);
    QTextCursor cursor(document.get());
    cursor.beginEditBlock();
    QTextBlockFormat format;
    format.setAlignment(alignment);
    format.setLeftMargin(indent);
    format.setLineHeight(lineHeight, QTextBlockFormat::ProportionalHeight);
    cursor.setBlockFormat(format);
    bool begun = false;
    for (const PaperCell& cell : row.cells) {
        if (std::exchange(begun, true))
            cursor.insertText(QString(QChar::LineSeparator));
        insertItems(cursor, cell, look, date);
    }
    cursor.endEditBlock();
    return document;
}

/// Writes the rows of one section.
class SectionWriter {
public:
    SectionWriter(const PaperSection& section, const Date& date, qreal width, qreal widestLabel,
                  std::vector<PaperStrip>& strips)
        : section(section), date(date), width(width), widestLabel(widestLabel), strips(strips) {}

    void write() {
        const std::size_t before = strips.size();
        for (const PaperRow& row : section.rows)
            switch (section.kind) {
            case SectionKind::Heading:
                heading(row);
                break;
            case SectionKind::Questions:
                question(row);
                break;
            case SectionKind::Table:
                tableRow(row);
                break;
            case SectionKind::Letter:
                letterLine(row);
                break;
            case SectionKind::Pairs:
                pair(row);
                break;
            }
        if (strips.size() > before && before > 0)
            strips[before].spaceBefore = sectionGap;
    }

private:
    PaperStrip& add(std::unique_ptr<QTextDocument> text, std::vector<PaperStrip::Column> columns,
                    PaperStrip::Lines lines) {
        return strips.emplace_back(std::move(text), std::move(columns), lines);
    }

    void heading(const PaperRow& row) {
        const bool first = &row == section.rows.data();
        const bool bold = first || row.style == RowStyle::Bold;
        const TextLook look{first ? headingText : letterText, bold, FieldLook::Plain};
        add(paragraph(row, look, row.style == RowStyle::Right ? Qt::AlignRight : Qt::AlignHCenter, 0, 100, date, width),
            columnsOf({width}), PaperStrip::Lines::None)
            .keepWithNext = true;
    }

    void question(const PaperRow& row) {
        constexpr qreal number = 9 * mm;
        constexpr qreal letter = 6 * mm;
        constexpr qreal smallNumber = 7 * mm;
        constexpr qreal answer = 64 * mm;
        const bool bold = row.style == RowStyle::Bold;
        const TextLook look{smallText, bold, FieldLook::Bold};
        const auto columns =
            columnsOf({number, letter, smallNumber, width - number - letter - smallNumber - answer, answer});
        PaperStrip& strip =
            add(rowOfCells(row, columns, std::vector(columns.size(), look), {mm, 0.8 * mm, 0.8 * mm}, date), columns,
                PaperStrip::Lines::AboveAndBelow);
        strip.keepWithNext = row.cells.back().empty();
    }

    void tableRow(const PaperRow& row) {
        const bool band = row.style == RowStyle::Band;
        const bool head = row.style == RowStyle::Head;
        const auto columns = band ? columnsOf({width}) : tableColumns();
        const TextLook look{smallText, band || head || row.style == RowStyle::Bold, FieldLook::Plain};
        PaperStrip& strip = add(rowOfCells(row, columns, std::vector(columns.size(), look), {1.5 * mm, mm, mm}, date),
                                columns, PaperStrip::Lines::Frames);
        strip.shaded = head;
        strip.keepWithNext = head || band;
        if (head)
            tableHead = static_cast<int>(strips.size()) - 1;
        else
            strip.head = tableHead;
    }

    std::vector<PaperStrip::Column> tableColumns() const {
        std::vector<qreal> widths;
        for (const int hundredths : section.widths)
            widths.push_back(width * hundredths / 100);
        auto columns = columnsOf(widths);
        for (std::size_t last = 0; last < static_cast<std::size_t>(section.figures) && last < columns.size(); ++last)
            columns[columns.size() - 1 - last].figures = true;
        return columns;
    }

    void letterLine(const PaperRow& row) {
        const TextLook look{letterText, row.style == RowStyle::Bold, FieldLook::Blank};
        const Qt::Alignment alignment = row.style == RowStyle::Centred ? Qt::AlignHCenter : Qt::AlignLeft;
        const bool closing = row.style == RowStyle::Right;
        std::unique_ptr<QTextDocument> text;
        if (row.style == RowStyle::Indented && !row.cells.empty() && !row.cells.front().empty()) {
            constexpr qreal number = 12 * mm;
            const PaperCell& items = row.cells.front();
            const PaperRow numbered{{{items.front()}, {items.begin() + 1, items.end()}}};
            text = rowOfCells(numbered, columnsOf({number, width - number}), {look, look}, {mm, 0, 0, true}, date);
        } else {
            // Lines with blanks have room for a hand.
            const bool blanks = std::ranges::any_of(row.cells.front(), &PaperItem::isField);
            text = paragraph(closing ? linesOf(row) : row, look, alignment, closing ? width / 2 : 0, blanks ? 165 : 115,
                             date, width);
        }
        const bool signature = closing && &row != section.rows.data() && (&row - 1)->style == RowStyle::Right;
        PaperStrip& strip = add(std::move(text), columnsOf({width}), PaperStrip::Lines::None);
        strip.spaceBefore = signature ? 14 * mm : closing ? 6 * mm : mm;
        strip.breakable = true;
        strip.keepWithNext = closing;
    }

    /// The row with each of its items in a cell of its own.
    static PaperRow linesOf(const PaperRow& row) {
        PaperRow lines{{}, row.style};
        for (const PaperItem& item : row.cells.front())
            lines.cells.push_back({item});
        return lines;
    }

    void pair(const PaperRow& row) {
        const qreal left = row.style == RowStyle::Right ? width / 2 : 0;
        const qreal label = std::min(widestLabel + 4 * mm, (width - left) / 2);
        constexpr qreal longestRule = 100 * mm;
        const auto columns = columnsOf({label, std::min(width - left - label, longestRule)}, left);
        const TextLook look{letterText, row.style == RowStyle::Bold, FieldLook::Plain};
        PaperStrip& strip = add(rowOfCells(row, columns, {look, look}, {mm, 2.5 * mm, 0.5 * mm, true}, date), columns,
                                PaperStrip::Lines::Under);
        strip.keepWithNext = &row != &section.rows.back();
    }

    const PaperSection& section;
    const Date& date;
    qreal width;
    qreal widestLabel;  ///< of all pairs of the paper, which align
    std::vector<PaperStrip>& strips;
    int tableHead = -1;
};

qreal widestLabel(const std::vector<PaperSection>& sections, const Date& date) {
    qreal widest = 0;
    for (const PaperSection& section : sections)
        if (section.kind == SectionKind::Pairs)
            for (const PaperRow& row : section.rows) {
                const auto label = paperDocument(-1);
                QTextCursor cursor(label.get());
                insertItems(cursor, row.cells.front(), {letterText, row.style == RowStyle::Bold, FieldLook::Plain},
                            date);
                widest = std::max(widest, label->idealWidth());
            }
    return widest;
}

}  // namespace

std::vector<PaperStrip> stripsOf(const std::vector<PaperSection>& sections, const Date& date, qreal width) {
    std::vector<PaperStrip> strips;
    const qreal label = widestLabel(sections, date);
    for (const PaperSection& section : sections) {
        if (section.kind == SectionKind::Pairs && !strips.empty())
            strips.back().keepWithNext = true;  // what is signed stands on the sheet of the signature
        SectionWriter(section, date, width, label, strips).write();
    }
    return strips;
}

}  // namespace plandesk::desktop
