#include "desktop/FlowLine.h"

#include <algorithm>

namespace plandesk::desktop {

FlowLine::FlowLine(int left, int right, int top, int leastHeight, int gap)
    : left(left), right(right), top(top), leastHeight(leastHeight), gap(gap), next(left) {}

void FlowLine::add(QWidget& widget, QSize size) {
    if (!line.empty() && next + size.width() > right) {
        closeLine();
        top += gap / 2;
    }
    line.push_back({&widget, QRect(QPoint(next, top), size)});
    next += size.width() + gap;
}

int FlowLine::room(int least) const {
    return next + least <= right ? right - next : right - left;
}

int FlowLine::finish() {
    closeLine();
    return top;
}

void FlowLine::closeLine() {
    int height = line.empty() ? 0 : leastHeight;
    for (const Piece& piece : line)
        height = std::max(height, piece.place.height());
    for (const Piece& piece : line)
        piece.widget->setGeometry(piece.place.translated(0, (height - piece.place.height()) / 2));
    line.clear();
    top += height;
    next = left;
}

}  // namespace plandesk::desktop
