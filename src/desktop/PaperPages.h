#pragma once

#include <QSizeF>
#include <QString>
#include <vector>

#include "controls/Paper.h"
#include "desktop/PaperStrip.h"

class QPainter;

namespace plandesk::desktop {

/// A paper on sheets of A4, laid out once: the same pages go to the preview, to the printer and into the PDF. What is
/// at the head and at the foot of a sheet stands on each of them. No row is cut that fits on a sheet, but for running
/// text; what is longer than a sheet is cut between two lines.
class PaperPages {
public:
    explicit PaperPages(const Paper& paper);

    int count() const { return static_cast<int>(pages.size()); }
    /// Draws the page, counted from 0, on a painter whose unit is a tenth of a point and whose origin is the corner of
    /// the sheet.
    void paint(QPainter& painter, int page) const;

    /// What stands on the page, line by line, for those who hear it.
    QString text(int page) const;

    /// Size of the sheet in tenths of a point.
    static QSizeF sheet();

private:
    /// A strip on a page, or the part of it between two heights.
    struct Placed {
        const PaperStrip* strip;
        qreal top;
        qreal from;
        qreal to;
    };

    void layOut();
    void beginPage(const PaperStrip* interrupted);
    void place(const PaperStrip& strip);
    /// What has to find room at once: the strip with those that it must stand with.
    qreal needed(std::size_t strip) const;
    bool atHead() const { return pages.back().size() == repeated; }

    std::vector<PaperStrip> header;
    std::vector<PaperStrip> body;
    std::vector<PaperStrip> footer;
    std::vector<std::vector<Placed>> pages;
    qreal top = 0;
    qreal bottom = 0;
    qreal y = 0;               ///< where the next strip stands on the last page
    std::size_t repeated = 0;  ///< strips on the last page that stood on an earlier one
};

}  // namespace plandesk::desktop
