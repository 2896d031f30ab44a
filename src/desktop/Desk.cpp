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
    if (picture.isNull())
        picture = floorPlanPicture();
    place = QPoint((width() - picture.width()) / 2, (height() - picture.height()) / 2);
    update();
}

void Desk::paintEvent(QPaintEvent* event) {
    if (picture.isNull() || !event->rect().intersects(QRect(place, picture.size())))
        return;
    QPainter painter(this);
    painter.drawPixmap(place, picture);
}

void Desk::resizeEvent(QResizeEvent* /*event*/) {
    resized();
}

}  // namespace plandesk::desktop
