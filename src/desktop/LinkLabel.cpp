#include "desktop/LinkLabel.h"

#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace plandesk::desktop {

LinkLabel::LinkLabel(QWidget& parent) : QLabel(&parent) {
    setCursor(Qt::PointingHandCursor);
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    // Room for the mark, so that it stands around the words and not over them.
    constexpr int mark = 3;
    setContentsMargins(mark, mark, mark, mark);
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(backgroundRole());
    QStylePainter(this).drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

}  // namespace plandesk::desktop
