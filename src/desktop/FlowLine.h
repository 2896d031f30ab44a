#pragma once

#include <QWidget>
#include <vector>

namespace plandesk::desktop {

/// Puts widgets side by side, each in the middle of its line, and goes on in a new line where the width ends.
class FlowLine {
public:
    FlowLine(int left, int right, int top, int leastHeight, int gap);

    void add(QWidget& widget, QSize size);
    /// Width that is left for one that needs `least`: of the present line, or of a new one where that has too little.
    int room(int least) const;
    /// The bottom of the last line; nothing is added afterwards.
    int finish();

private:
    struct Piece {
        QWidget* widget;
        QRect place;
    };
    void closeLine();

    int left;
    int right;
    int top;
    int leastHeight;
    int gap;
    int next;
    std::vector<Piece> line;
};

}  // namespace plandesk::desktop
