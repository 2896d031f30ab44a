#include "desktop/PreviewPage.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/PaperPages.h"
#include "desktop/PaperText.h"

namespace plandesk::desktop {

namespace {

constexpr int around = 12;          // between the sheet and the edge of what is scrolled
constexpr qreal screenInch = 96.0;  // dots of a screen at full size

/// The sheet, drawn once for each page and size.
class Sheet : public QWidget {
public:
    using QWidget::QWidget;
    QPixmap picture;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        const QRect place(QPoint(around, around), picture.deviceIndependentSize().toSize());
        painter.fillRect(place.translated(3, 3), QColor(0, 0, 0, 70));
        painter.drawPixmap(place.topLeft(), picture);
        painter.setPen(QColor(0x80, 0x80, 0x80));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
};

}  // namespace

PreviewPage::PreviewPage(QWidget& parent) : QScrollArea(&parent), sheet(new Sheet) {
    setObjectName(QStringLiteral("previewPage"));
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setBackgroundRole(QPalette::Mid);
    setFocusPolicy(Qt::StrongFocus);
    setWidget(sheet);
}

void PreviewPage::showPages(const PaperPages& shown) {
    pages = &shown;
    current = std::clamp(current, 0, pages->count() - 1);
    draw();
}

void PreviewPage::turnTo(int page) {
    const int wanted = pages ? std::clamp(page, 0, pages->count() - 1) : 0;
    if (wanted == current)
        return;
    current = wanted;
    draw();
    verticalScrollBar()->setValue(0);
}

void PreviewPage::setZoom(qreal wanted) {
    constexpr qreal smallest = 0.125;
    constexpr qreal largest = 4;
    factor = std::clamp(wanted, smallest, largest);
    draw();
}

qreal PreviewPage::wholePage() const {
    const QSizeF room = size() - QSize(2 * around + 2, 2 * around + 2);
    const QSizeF paper = PaperPages::sheet() * screenInch / paperUnitsPerInch;
    return std::min(room.width() / paper.width(), room.height() / paper.height());
}

qreal PreviewPage::wholeWidth() const {
    const int room = width() - verticalScrollBar()->sizeHint().width() - 2 * around - 2;
    return room / (PaperPages::sheet().width() * screenInch / paperUnitsPerInch);
}

void PreviewPage::draw() {
    if (!pages)
        return;
    const qreal scale = factor * screenInch / paperUnitsPerInch;
    const QSize dots = (PaperPages::sheet() * scale).toSize();
    QPixmap picture(dots * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale, scale);
    pages->paint(painter, current);
    painter.end();
    static_cast<Sheet*>(sheet)->picture = picture;
    sheet->resize(dots + QSize(2 * around, 2 * around));
    sheet->update();
    setAccessibleDescription(pages->text(current));
    changed();
}

void PreviewPage::leaf(bool forwards) {
    QScrollBar& bar = *verticalScrollBar();
    if (bar.value() != (forwards ? bar.maximum() : bar.minimum()))
        return bar.triggerAction(forwards ? QScrollBar::SliderPageStepAdd : QScrollBar::SliderPageStepSub);
    const int before = current;
    turnTo(current + (forwards ? 1 : -1));
    if (!forwards && current != before)
        bar.setValue(bar.maximum());
}

void PreviewPage::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        return leaf(true);
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
        return leaf(false);
    case Qt::Key_Home:
        turnTo(0);
        return verticalScrollBar()->setValue(0);
    case Qt::Key_End:
        return turnTo(pages ? pages->count() - 1 : 0);
    default:
        QScrollArea::keyPressEvent(event);
    }
}

void PreviewPage::wheelEvent(QWheelEvent* event) {
    constexpr qreal step = 1.1;
    if (!(event->modifiers() & Qt::ControlModifier))
        return QScrollArea::wheelEvent(event);
    if (const int turned = event->angleDelta().y(); turned != 0)
        setZoom(turned > 0 ? factor * step : factor / step);
    event->accept();
}

}  // namespace plandesk::desktop
