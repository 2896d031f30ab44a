#include "desktop/Pictures.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <array>
#include <initializer_list>
#include <vector>

namespace plandesk::desktop {

namespace {

// Walls of the plan, with gaps where doors and windows are.
constexpr std::array outerWalls = std::to_array<QLine>({
    {40, 40, 150, 40},
    {210, 40, 330, 40},
    {390, 40, 480, 40},
    {480, 40, 480, 120},
    {480, 180, 480, 300},
    {480, 300, 420, 300},
    {350, 300, 270, 300},
    {220, 300, 120, 300},
    {60, 300, 40, 300},
    {40, 300, 40, 220},
    {40, 160, 40, 40},
    {200, 40, 200, 110},
    {200, 160, 200, 190},
    {40, 190, 120, 190},
    {165, 190, 330, 190},
    {330, 40, 330, 130},
    {330, 175, 330, 300},
    {330, 190, 400, 190},
});
constexpr std::array windows = std::to_array<QLine>({
    {150, 40, 210, 40},
    {330, 40, 390, 40},
    {480, 120, 480, 180},
    {350, 300, 420, 300},
    {60, 300, 120, 300},
    {40, 160, 40, 220},
    {445, 190, 480, 190},
});

struct Door {
    QPoint hinge;
    int leaf;
    int startAngle;  ///< degrees, the leaf swings a quarter circle from here
};
constexpr std::array doors = std::to_array<Door>({
    {{270, 300}, 50, 90},
    {{200, 160}, 50, 90},
    {{165, 190}, 45, 180},
    {{330, 175}, 45, 0},
    {{400, 190}, 45, 270},
});

void drawDoor(QPainter& painter, const Door& door) {
    constexpr int quarter = 90;
    constexpr int units = 16;
    const QRect circle(door.hinge - QPoint(door.leaf, door.leaf), QSize(2 * door.leaf, 2 * door.leaf));
    painter.drawPie(circle, door.startAngle * units, quarter * units);
}

void drawDimension(QPainter& painter, QLine line) {
    const QPoint tick = line.dx() == 0 ? QPoint(6, 0) : QPoint(0, 6);
    painter.drawLine(line);
    painter.drawLine(line.p1() - tick, line.p1() + tick);
    painter.drawLine(line.p2() - tick, line.p2() + tick);
}

void drawStairs(QPainter& painter) {
    for (int x = 215; x <= 320; x += 15)
        painter.drawLine(x, 50, x, 110);
    painter.drawRect(215, 50, 105, 60);
    painter.drawLine(222, 80, 312, 80);
}

// The program's mark, also in packaging/plandesk.svg. Its walls lie on a grid of 16, so that they are sharp at any
// multiple of 16 pixels.
constexpr double markSide = 16;
// One wall around, with the door's gap below, and those between three rooms.
constexpr std::array markWalls = std::to_array<QRect>({
    {2, 2, 12, 1},
    {2, 2, 1, 12},
    {13, 2, 1, 12},
    {2, 13, 3, 1},
    {9, 13, 5, 1},
    {3, 7, 3, 1},
    {8, 7, 5, 1},
    {8, 3, 1, 2},
});
constexpr QRect markDoor(5, 9, 1, 5);
constexpr QRectF markSwing(1.25, 9.25, 7.5, 7.5);

/// A picture on a square grid that is drawn whenever it is wanted and kept nowhere.
class DrawnIcon : public QIconEngine {
public:
    using Drawing = void (*)(QPainter&);
    DrawnIcon(double grid, Drawing drawing, std::initializer_list<int> sides)
        : grid(grid), drawing(drawing), sides(sides) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(place.topLeft());
        painter->scale(place.width() / grid, place.height() / grid);
        drawing(*painter);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QList<QSize> sizes;
        for (const int side : sides)
            sizes.append({side, side});
        return sizes;
    }

    QIconEngine* clone() const override { return new DrawnIcon(*this); }

private:
    double grid;
    Drawing drawing;
    std::vector<int> sides;
};

void drawMark(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x5B, 0x45, 0x24));
    painter.drawRoundedRect(QRectF(0, 0, markSide, markSide), 2.5, 2.5);
    for (const QRect& wall : markWalls)
        painter.fillRect(wall, Qt::white);
    constexpr QColor light(0xF2, 0xC4, 0x74);
    painter.fillRect(markDoor, light);
    painter.setPen(QPen(light, 0.5, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(markSwing, 0, 90 * 16);
}

void drawSheetWithPen(QPainter& painter) {
    painter.setPen(QPen(QColor(0x40, 0x50, 0x70), 1));
    painter.setBrush(Qt::white);
    painter.drawRect(QRectF(1.5, 0.5, 9, 12));
    for (const double y : {3.5, 5.5, 7.5})
        painter.drawLine(QPointF(3.5, y), QPointF(8.5, y));
    painter.setPen(QPen(QColor(0xC0, 0x50, 0x10), 2));
    painter.drawLine(QPointF(7, 11), QPointF(12.5, 5.5));
}

void drawMore(QPainter& painter) {
    painter.setPen(QPen(Qt::black, 1.5));
    for (const double x : {2.0, 6.0})
        painter.drawPolyline(QPolygonF({{x, 2}, {x + 3, 5}, {x, 8}}));
}

}  // namespace

void drawFloorPlan(QPainter& painter) {
    const QColor ink(0x5B, 0x45, 0x24);
    const QRect sheet({0, 0}, floorPlanSize);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(sheet, QColor(0xF7, 0xEF, 0xE1));
    painter.setPen(QPen(QColor(0xEA, 0xDC, 0xC3), 1));
    for (int x = 20; x < sheet.width(); x += 20)
        painter.drawLine(x, 0, x, sheet.height());
    for (int y = 20; y < sheet.height(); y += 20)
        painter.drawLine(0, y, sheet.width(), y);
    painter.setPen(QPen(ink, 1));
    for (const Door& door : doors)
        drawDoor(painter, door);
    drawStairs(painter);
    drawDimension(painter, {40, 336, 480, 336});
    drawDimension(painter, {506, 40, 506, 300});
    painter.setPen(QPen(ink, 7, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(outerWalls.data(), static_cast<int>(outerWalls.size()));
    painter.setPen(QPen(ink, 5, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(windows.data(), static_cast<int>(windows.size()));
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(windows.data(), static_cast<int>(windows.size()));
    painter.setPen(QPen(ink, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(sheet.adjusted(1, 1, -1, -1));
}

QIcon programIcon() {
    return QIcon(new DrawnIcon(markSide, drawMark, {16, 22, 24, 32, 36, 48, 64, 72, 96, 128, 192, 256}));
}

QIcon detailsIcon() {
    return QIcon(new DrawnIcon(14, drawSheetWithPen, {}));
}

QIcon moreIcon() {
    return QIcon(new DrawnIcon(10, drawMore, {}));
}

}  // namespace plandesk::desktop
