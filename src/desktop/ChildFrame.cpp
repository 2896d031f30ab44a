#include "desktop/ChildFrame.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>
#include <algorithm>

namespace plandesk::desktop {

namespace {

constexpr QColor frontBar(0x5B, 0x45, 0x24);
constexpr QColor backBar(0x7A, 0x66, 0x45);
constexpr int edgeWidth = 4;     // where the mouse takes hold of an edge
constexpr int cornerWidth = 16;  // and of two at once
constexpr QSize leastSize{320, 160};

Qt::CursorShape cursorFor(Qt::Edges edges) {
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    return edges ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

}  // namespace

ChildFrame::ChildFrame(QWidget& desk) : QFrame(&desk), bar(new QWidget(this)), title(new QLabel(bar)) {
    setAutoFillBackground(true);
    setMouseTracking(true);
    maximiseBox = makeBox(QStringLiteral("maximiseBox"), {});
    QToolButton* closeBox = makeBox(QStringLiteral("closeBox"), QString(QChar(0x00D7)));
    closeBox->setAccessibleName(tr("Close"));
    closeBox->setToolTip(tr("Close (Ctrl+F4)"));
    connect(maximiseBox, &QToolButton::clicked, this, [this] { toggleMaximised(); });
    connect(closeBox, &QToolButton::clicked, this, [this] { closeWindow(); });
    title->setTextFormat(Qt::PlainText);
    title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    title->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 2, 2, 2);
    row->addWidget(title, 1);
    row->addWidget(maximiseBox);
    row->addWidget(closeBox);
    bar->setAutoFillBackground(true);
    bar->setCursor(Qt::ArrowCursor);
    bar->installEventFilter(this);
    showMaximiseBox();
}

void ChildFrame::setContents(QWidget& shown) {
    contents = &shown;
    contents->setCursor(Qt::ArrowCursor);
}

QToolButton* ChildFrame::makeBox(const QString& name, const QString& sign) {
    auto* box = new QToolButton(bar);
    box->setObjectName(name);
    box->setText(sign);
    box->setAutoRaise(true);
    box->setFocusPolicy(Qt::NoFocus);
    return box;
}

void ChildFrame::showMaximiseBox() {
    const QString word = fillsDesk ? tr("Restore") : tr("Maximise");
    maximiseBox->setText(QString(fillsDesk ? QChar(0x2750) : QChar(0x25A1)));
    maximiseBox->setAccessibleName(word);
    maximiseBox->setToolTip(word + QStringLiteral(" (Ctrl+F10)"));
}

void ChildFrame::showTitle() {
    const QString whole = caption();
    const QString shown = title->fontMetrics().elidedText(whole, Qt::ElideRight, title->width());
    title->setText(shown);
    bar->setToolTip(shown == whole ? QString() : whole);
}

void ChildFrame::colourBar(bool front) {
    QPalette palette;
    palette.setColor(QPalette::Window, front ? frontBar : backBar);
    setPalette(palette);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    bar->setPalette(palette);
}

int ChildFrame::border() const {
    return fillsDesk ? 0 : edgeWidth;
}

QRect ChildFrame::inside() const {
    return rect().adjusted(border(), border(), -border(), -border());
}

void ChildFrame::fit() {
    const QRect room(QPoint(0, 0), parentWidget()->size());
    if (fillsDesk)
        return setGeometry(room);
    const QSize around(2 * border(), 2 * border() + bar->sizeHint().height());
    resize(drawn ? size().boundedTo(room.size()) : naturalSize(room.size() - around) + around);
    if (centred() && !moved && !drawn)
        move((room.width() - width()) / 2, (room.height() - height()) / 2);
}

void ChildFrame::grow() {
    if (fillsDesk || drawn || isHidden())
        return;
    const QSize before = size();
    fit();
    resize(size().expandedTo(before).boundedTo(parentWidget()->size()));
}

void ChildFrame::setMaximised(bool on) {
    if (on == fillsDesk)
        return;
    if (on)
        smaller = geometry();
    fillsDesk = on;
    showMaximiseBox();
    if (!on)
        setGeometry(smaller);
    fit();
    arrange();  // the border has changed, perhaps the size has not
}

void ChildFrame::toggleMaximised() {
    if (inReach())
        wishMaximised(!fillsDesk);
}

void ChildFrame::resizeEvent(QResizeEvent* /*event*/) {
    arrange();
}

void ChildFrame::arrange() {
    const QRect area = inside();
    bar->setGeometry(area.x(), area.y(), area.width(), bar->sizeHint().height());
    bar->layout()->activate();
    showTitle();
    if (contents)
        contents->setGeometry(area.adjusted(0, bar->height(), 0, 0));
}

bool ChildFrame::eventFilter(QObject* watched, QEvent* event) {
    const auto place = [event] { return static_cast<QMouseEvent*>(event)->globalPosition().toPoint(); };
    const bool mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
                       event->type() == QEvent::MouseButtonDblClick;
    if (mouse && !inReach())
        return true;
    if (event->type() == QEvent::MouseButtonPress) {
        grip = place() - pos();
        bringToFront(Qt::MouseFocusReason);
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        toggleMaximised();
    } else if (event->type() == QEvent::MouseMove && !fillsDesk) {
        const QRect room(QPoint(0, 0), parentWidget()->size() - bar->size() / 2);
        const QPoint wanted = place() - grip;
        move(std::clamp(wanted.x(), room.left(), std::max(0, room.right())),
             std::clamp(wanted.y(), room.top(), std::max(0, room.bottom())));
        moved = true;
    }
    return QFrame::eventFilter(watched, event);
}

Qt::Edges ChildFrame::edgesAt(QPoint place) const {
    Qt::Edges edges;
    if (fillsDesk || inside().contains(place))
        return edges;
    // Near a corner both edges are meant, on whichever of them the mouse is.
    edges.setFlag(Qt::LeftEdge, place.x() < cornerWidth);
    edges.setFlag(Qt::RightEdge, place.x() >= width() - cornerWidth);
    edges.setFlag(Qt::TopEdge, place.y() < cornerWidth);
    edges.setFlag(Qt::BottomEdge, place.y() >= height() - cornerWidth);
    return edges;
}

void ChildFrame::mousePressEvent(QMouseEvent* event) {
    drawnEdges = event->button() == Qt::LeftButton && inReach() ? edgesAt(event->pos()) : Qt::Edges();
    drawnFrom = geometry();
    grip = event->globalPosition().toPoint();
    bringToFront(Qt::MouseFocusReason);
}

void ChildFrame::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() & Qt::LeftButton)
        drawEdges(drawnEdges, event->globalPosition().toPoint() - grip, drawnFrom);
    else
        setCursor(cursorFor(edgesAt(event->pos())));
}

void ChildFrame::drawEdges(Qt::Edges edges, QPoint by, const QRect& from) {
    if (!edges)
        return;
    const QRect room(QPoint(0, 0), parentWidget()->size());
    const QSize least = leastSize.boundedTo(room.size());
    QRect place = from;
    if (edges & Qt::LeftEdge)
        place.setLeft(std::min(std::max(0, from.left() + by.x()), from.right() + 1 - least.width()));
    if (edges & Qt::RightEdge)
        place.setRight(std::max(std::min(room.right(), from.right() + by.x()), from.left() + least.width() - 1));
    if (edges & Qt::TopEdge)
        place.setTop(std::min(std::max(0, from.top() + by.y()), from.bottom() + 1 - least.height()));
    if (edges & Qt::BottomEdge)
        place.setBottom(std::max(std::min(room.bottom(), from.bottom() + by.y()), from.top() + least.height() - 1));
    drawn = true;
    setGeometry(place);
}

void ChildFrame::beginSizing() {
    if (fillsDesk)
        return;
    setFocusPolicy(Qt::StrongFocus);
    setFocus(Qt::OtherFocusReason);
    setCursor(Qt::SizeAllCursor);
}

void ChildFrame::keyPressEvent(QKeyEvent* event) {
    constexpr int step = 16;
    switch (event->key()) {
    case Qt::Key_Left:
        return drawEdges(Qt::RightEdge, {-step, 0}, geometry());
    case Qt::Key_Right:
        return drawEdges(Qt::RightEdge, {step, 0}, geometry());
    case Qt::Key_Up:
        return drawEdges(Qt::BottomEdge, {0, -step}, geometry());
    case Qt::Key_Down:
        return drawEdges(Qt::BottomEdge, {0, step}, geometry());
    default:
        clearFocus();
        sizingEnded();
    }
}

void ChildFrame::focusOutEvent(QFocusEvent* /*event*/) {
    setFocusPolicy(Qt::NoFocus);
    unsetCursor();
}

}  // namespace plandesk::desktop
