#pragma once

#include <QTextLayout>
#include <memory>
#include <vector>

#include "controls/Paper.h"

class QPainter;
class QTextDocument;

namespace plandesk::desktop {

/// One row of a paper over the whole width of a page: its text as the toolkit laid it out, and the lines around it. In
/// units of paper, from the strip's own top left corner.
class PaperStrip {
public:
    enum class Lines {
        None,
        AboveAndBelow,  ///< light ones over the whole width
        Frames,         ///< around each column
        Under,          ///< under the last column
    };

    struct Column {
        qreal left;
        qreal width;
        bool figures = false;  ///< what stands in it stands at its right
    };

    PaperStrip(std::unique_ptr<QTextDocument> text, std::vector<Column> columns, Lines lines);

    qreal height() const { return total; }
    /// The least that may stand on a page alone: the strip as a whole, or two lines of running text.
    qreal least() const;
    /// Where the strip is cut when no more than `room` of it, counted from `from`, is left on a page: below the last
    /// line of text that fits as a whole, in all columns; `from` when not one does.
    qreal cut(qreal from, qreal room) const;
    /// Its words in one line, with the line's end.
    QString plainText() const;
    /// Draws the part between two heights, the first of them at the painter's origin.
    void paint(QPainter& painter, qreal from, qreal to) const;

    qreal spaceBefore = 0;      ///< falls away at the head of a page
    bool keepWithNext = false;  ///< says nothing alone: a head, a question with others below it
    bool breakable = false;     ///< may go on over the end of a page although it would fit on one
    bool shaded = false;
    int head = -1;  ///< index of the strip that is printed again when a page ends before this one; -1: none

private:
    struct Line {
        qreal top;
        qreal bottom;
        QTextLine text;
        QPointF origin;  ///< of the text that the line is of
    };
    void paintLines(QPainter& painter, qreal height, bool last) const;

    std::unique_ptr<QTextDocument> text;
    std::vector<Column> columns;
    Lines ruled;
    qreal total;
    std::vector<Line> lines;  ///< cell after cell, as it is read
    std::vector<qreal> cuts;  ///< heights at which no line is cut, the last one below all of them
};

/// The strips of the sections, one below the other.
std::vector<PaperStrip> stripsOf(const std::vector<PaperSection>& sections, const Date& date, qreal width);

}  // namespace plandesk::desktop
