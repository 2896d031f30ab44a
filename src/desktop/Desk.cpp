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

void Desk::paintEvent(QPaintEvent* event) {
    if (!event->rect().intersects(place))
        return;
    QPainter painter(this);
    painter.setClipRect(place);
    painter.translate(place.topLeft());
    drawFloorPlan(painter);
}

void Desk::resizeEvent(QResizeEvent* /*event*/) {
    resized();
}

}  // namespace plandesk::desktop
