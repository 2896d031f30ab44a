#include "desktop/Desk.h"

#include <QPaintEvent>
#include <QPainter>

#include "desktop/Pictures.h"

namespace plandesk::desktop {

Desk::Desk(QWidget& mainWindow) : QWidget(&mainWindow) {
    setAutoFillBackground(true);
}

void Desk::setBackColor(const QColor& colour) {
    QPalette palette;
    palette.setColor(QPalette::Window, colour);
    setPalette(palette);
}

void Desk::paintBackground() {
    place.setSize(floorPlanSize);
    place.moveTo((width() - place.width()) / 2, (height() - place.height()) / 2);
    update();
}

void Desk::setHint(const QString& text) {
    if (hint == text)
        return;
    hint = text;
    update();
}

QRect Desk::hintPlace() const {
    constexpr int gap = 12;
    constexpr int lines = 2;
    return {0, place.bottom() + gap, width(), lines * fontMetrics().lineSpacing()};
}

void Desk::paintEvent(QPaintEvent* event) {
    painted();
    QPainter painter(this);
    if (!place.isEmpty() && !hint.isEmpty() && event->rect().intersects(hintPlace()))
        painter.drawText(hintPlace(), Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, hint);
    if (!event->rect().intersects(place))
        return;
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    drawFloorPlan(painter);
}

void Desk::resizeEvent(QResizeEvent* /*event*/) {
    resized();
}

}  // namespace plandesk::desktop
